#pragma once

#include <QString>
#include <QStringList>

#include <string_view>
#include <type_traits>
#include <vector>

namespace velmora::store
{

/// An index as a table declares it.
struct IndexDef {
    const char *name;
    std::vector<const char *> columns;
    bool unique = false;
};

/// What a table is beside its fields; specialised beside each row as a struct derived from
/// `TableDefaults`, with `name` and `indexes()`. The first index is the standing one.
struct TableDefaults {
    /// The rows lie in the order of the first index, which is then their primary key.
    static constexpr bool clustered = false;
    /// Fields of the struct that the table doesn't have.
    static constexpr bool keeps(std::string_view) { return true; }
    /// Fields that sort as a French reader expects.
    static constexpr bool sortsAsFrench(std::string_view) { return false; }
};
template <class Row> struct TableDef;

/// What a column's values are, beyond their SQL type.
enum class Nature { Number, Truth, Real, Text, Date, Moment };

struct Column {
    QString name;
    QString sqlType;
    Nature nature = Nature::Text;
    bool french = false;
    bool sought = false; ///< part of an index
    bool key = false;    ///< part of a unique index

    [[nodiscard]] bool isText() const { return sqlType == QLatin1String("TEXT"); }
};

struct Index {
    QString name;
    std::vector<int> columns; ///< ordinals of the columns
    bool unique = false;
};

/// A table at run time: what its statements are made of.
struct Schema {
    QString table;
    bool clustered = false;
    std::vector<Column> columns;
    std::vector<Index> indexes;

    [[nodiscard]] int ordinal(const QString &column) const;
    [[nodiscard]] int index(const QString &name) const; ///< -1 when there is none of that name
    /// The statements that make the table and its indexes. A column of an index is never null, so that a
    /// row which another tool wrote without it still has its place in the order: outside the keys, a null
    /// that a tool writes becomes the empty value.
    [[nodiscard]] QStringList creation() const;
};

/// The columns and indexes as declared, filled in by `schemaOf`.
void addIndexes(Schema &schema, const std::vector<IndexDef> &indexes);

/// A row type's schema, made once.
template <class Row> const Schema &schemaOf();

} // namespace velmora::store
