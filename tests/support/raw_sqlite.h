#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

#include <sqlite3.h>

namespace velmora::test
{

/// Another program on one of the files: a bare connection that knows nothing of the system's collation and
/// doesn't wait for locks.
class RawSqlite
{
public:
    explicit RawSqlite(const QString &path)
    {
        sqlite3_open(QFile::encodeName(path).constData(), &m_database);
    }
    ~RawSqlite() { sqlite3_close(m_database); }
    RawSqlite(const RawSqlite &) = delete;
    RawSqlite &operator=(const RawSqlite &) = delete;

    bool run(const QString &sql)
    {
        return sqlite3_exec(m_database, sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    }

    /// The rows as texts, their columns joined by '|'; a null shows as "NULL".
    QStringList rows(const QString &sql)
    {
        QStringList found;
        const auto note = [](void *target, int count, char **values, char **) {
            QStringList columns;
            for (int i = 0; i < count; ++i)
                columns << (values[i] ? QString::fromUtf8(values[i]) : QStringLiteral("NULL"));
            static_cast<QStringList *>(target)->append(columns.join(QLatin1Char('|')));
            return 0;
        };
        sqlite3_exec(m_database, sql.toUtf8().constData(), note, &found, nullptr);
        return found;
    }

    /// The one value of a query.
    QString value(const QString &sql) { return rows(sql).join(QLatin1Char('\n')); }

private:
    sqlite3 *m_database = nullptr;
};

/// Breaks a table's first page without touching what an opening reads.
inline void breakTable(const QString &path, const QString &table)
{
    const qint64 page =
        RawSqlite(path)
            .value(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(table))
            .toLongLong();
    QFile file(path);
    if (file.open(QIODevice::ReadWrite) && file.seek((page - 1) * 4096)) file.write(QByteArray(4096, 'Z'));
}

} // namespace velmora::test
