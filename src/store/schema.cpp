#include "store/schema.h"

#include <algorithm>

namespace velmora::store
{

namespace
{

QString columnList(const Schema &schema, const Index &index)
{
    QStringList names;
    for (const int column : index.columns)
        names << schema.columns[static_cast<std::size_t>(column)].name;
    return names.join(QStringLiteral(", "));
}

/// A clustered table's key has no default: a row without it is refused.
QString emptyDefault(const Schema &schema, const Column &column)
{
    if (schema.clustered || !column.sought) return {};
    const QString nullBecomesDefault = column.key ? QString() : QStringLiteral(" ON CONFLICT REPLACE");
    return QStringLiteral(" NOT NULL") + nullBecomesDefault + QStringLiteral(" DEFAULT ") +
           (column.isText() ? QStringLiteral("''") : QStringLiteral("0"));
}

} // namespace

int Schema::ordinal(const QString &column) const
{
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const Column &one) { return one.name == column; });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

int Schema::index(const QString &name) const
{
    const auto found =
        std::find_if(indexes.begin(), indexes.end(), [&](const Index &one) { return one.name == name; });
    return found == indexes.end() ? -1 : static_cast<int>(found - indexes.begin());
}

QStringList Schema::creation() const
{
    QStringList definitions;
    for (const Column &column : columns)
        definitions << column.name + QLatin1Char(' ') + column.sqlType + emptyDefault(*this, column);
    if (clustered) {
        definitions << QStringLiteral("CONSTRAINT %1 PRIMARY KEY (%2)")
                           .arg(indexes.front().name, columnList(*this, indexes.front()));
    }
    QStringList statements{QStringLiteral("CREATE TABLE %1 (%2)%3")
                               .arg(table, definitions.join(QStringLiteral(", ")),
                                    clustered ? QStringLiteral(" WITHOUT ROWID") : QString())};
    for (std::size_t i = clustered ? 1 : 0; i < indexes.size(); ++i) {
        if (indexes[i].columns.empty()) continue;
        statements << QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
                          .arg(indexes[i].unique ? QStringLiteral("UNIQUE ") : QString(), indexes[i].name,
                               table, columnList(*this, indexes[i]));
    }
    return statements;
}

void addIndexes(Schema &schema, const std::vector<IndexDef> &indexes)
{
    for (const IndexDef &declared : indexes) {
        Index index{QString::fromLatin1(declared.name), {}, declared.unique};
        for (const char *column : declared.columns) {
            index.columns.push_back(schema.ordinal(QString::fromLatin1(column)));
            Column &indexed = schema.columns[static_cast<std::size_t>(index.columns.back())];
            indexed.sought = true;
            indexed.key = indexed.key || declared.unique;
        }
        schema.indexes.push_back(std::move(index));
    }
}

} // namespace velmora::store
