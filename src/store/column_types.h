#pragma once

#include "store/engine.h"
#include "store/schema.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

namespace velmora::store
{

/// How a C++ type is held in a column: its SQL type, its nature, and its passage to and from a statement. A
/// null reads as the type's empty value.
template <class T> struct ColumnType;

template <> struct ColumnType<int> {
    static constexpr const char *sql = "INTEGER";
    static constexpr Nature nature = Nature::Number;
    static void bind(Statement &statement, int position, int value) { statement.bindInt(position, value); }
    static int read(const Statement &statement, int column)
    {
        return static_cast<int>(statement.columnInt(column));
    }
};

/// True is -1 in the file.
template <> struct ColumnType<bool> {
    static constexpr const char *sql = "INTEGER";
    static constexpr Nature nature = Nature::Truth;
    static void bind(Statement &statement, int position, bool value)
    {
        statement.bindInt(position, value ? -1 : 0);
    }
    static bool read(const Statement &statement, int column) { return statement.columnInt(column) != 0; }
};

template <> struct ColumnType<double> {
    static constexpr const char *sql = "REAL";
    static constexpr Nature nature = Nature::Real;
    static void bind(Statement &statement, int position, double value)
    {
        statement.bindReal(position, value);
    }
    static double read(const Statement &statement, int column) { return statement.columnReal(column); }
};

/// A null text is a null QString.
template <> struct ColumnType<QString> {
    static constexpr const char *sql = "TEXT";
    static constexpr Nature nature = Nature::Text;
    static void bind(Statement &statement, int position, const QString &value)
    {
        if (value.isNull()) return statement.bindNull(position);
        const QByteArray utf8 = value.toUtf8();
        statement.bindText(position, {utf8.constData(), static_cast<std::size_t>(utf8.size())});
    }
    static QString read(const Statement &statement, int column)
    {
        if (statement.columnIsNull(column)) return {};
        const auto text = statement.columnText(column);
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
};

/// ISO-8601 text, "2026-06-03". Of a longer text the first ten characters count.
template <> struct ColumnType<QDate> {
    static constexpr const char *sql = "TEXT";
    static constexpr Nature nature = Nature::Date;
    static void bind(Statement &statement, int position, const QDate &value);
    static QDate read(const Statement &statement, int column);
};

/// ISO-8601 text, "2026-06-03T08:15:00", local time.
template <> struct ColumnType<QDateTime> {
    static constexpr const char *sql = "TEXT";
    static constexpr Nature nature = Nature::Moment;
    static void bind(Statement &statement, int position, const QDateTime &value);
    static QDateTime read(const Statement &statement, int column);
};

template <class T> struct ColumnType<std::optional<T>> {
    static constexpr const char *sql = ColumnType<T>::sql;
    static constexpr Nature nature = ColumnType<T>::nature;
    static void bind(Statement &statement, int position, const std::optional<T> &value)
    {
        if (value) return ColumnType<T>::bind(statement, position, *value);
        statement.bindNull(position);
    }
    static std::optional<T> read(const Statement &statement, int column)
    {
        if (statement.columnIsNull(column)) return std::nullopt;
        return ColumnType<T>::read(statement, column);
    }
};

} // namespace velmora::store
