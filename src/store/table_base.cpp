#include "store/table_base.h"

#include "store/collation.h"
#include "store/column_types.h"

#include <numeric>

namespace velmora::store
{

namespace
{

const char *symbol(Cmp comparison)
{
    switch (comparison) {
    case Cmp::Eq: return "=";
    case Cmp::Ge: return ">=";
    case Cmp::Gt: return ">";
    case Cmp::Le: return "<=";
    case Cmp::Lt: return "<";
    }
    return "=";
}

/// The columns of an index from one place to the one before another.
std::vector<int> between(const Index &index, std::size_t first, std::size_t end)
{
    const auto begin = index.columns.begin();
    return {begin + static_cast<std::ptrdiff_t>(first),
            begin + static_cast<std::ptrdiff_t>(std::min(end, index.columns.size()))};
}

std::vector<int> leading(const Index &index, std::size_t parts)
{
    return between(index, 0, parts);
}

std::vector<int> everyColumn(const Schema &schema)
{
    std::vector<int> columns(schema.columns.size());
    std::iota(columns.begin(), columns.end(), 0);
    return columns;
}

// Kinds of statement, the high part of a shortcut.
enum Kind { Seek = 1, Step, End, Reread, Insert, Update, Delete, DeleteRun };

std::int64_t shortcut(Kind kind, int index = 0, int first = 0, int second = 0)
{
    return ((static_cast<std::int64_t>(kind) * 16 + index) * 16 + first) * 16 + second;
}

} // namespace

std::size_t sharedParts(const Key &from, const Key &to)
{
    const auto differs = std::mismatch(from.begin(), from.end(), to.begin(), to.end());
    return static_cast<std::size_t>(differs.first - from.begin());
}

void KeyValue::bind(Statement &statement, int position) const
{
    if (const auto *number = std::get_if<std::int64_t>(&m_value))
        statement.bindInt(position, *number);
    else if (const auto *date = std::get_if<QDate>(&m_value))
        ColumnType<QDate>::bind(statement, position, *date);
    else
        ColumnType<QString>::bind(statement, position, std::get<QString>(m_value));
}

void TableBase::setIndex(const char *name)
{
    const int found = m_schema.index(QString::fromLatin1(name));
    if (found >= 0) m_index = found;
}

QString TableBase::currentIndex() const
{
    return index().name;
}

int TableBase::scalar(const QString &sql)
{
    Slot &statement = prepared(sql);
    if (!statement) return 0;
    const auto step = statement->step();
    m_status = statement->status();
    const int value = step == Statement::Step::Row ? static_cast<int>(statement->columnInt(0)) : 0;
    statement->reset();
    return value;
}

int TableBase::recordCount()
{
    return scalar(QStringLiteral("SELECT count(*) FROM ") + m_schema.table);
}

bool TableBase::isEmpty()
{
    return scalar(QStringLiteral("SELECT EXISTS (SELECT 1 FROM %1)").arg(m_schema.table)) == 0;
}

void TableBase::cancelUpdate()
{
    m_editMode = EditMode::None;
    m_updatePending = false;
}

void TableBase::release()
{
    cancelUpdate();
    m_shortcuts.clear();
    m_ranges.clear();
    m_statements.clear();
    m_index = 0;
}

Status TableBase::run(Slot &statement)
{
    const auto step = statement->step();
    m_status = step == Statement::Step::Failed ? statement->status() : Status{};
    statement->reset();
    return m_status;
}

TableBase::Slot &TableBase::prepared(const QString &sql)
{
    Slot &slot = m_statements[sql];
    if (!slot) slot = m_engine.prepare(sql);
    m_status = slot ? Status{} : m_engine.status();
    return slot;
}

template <class Shortcuts, class MakeSql>
TableBase::Slot &TableBase::cached(Shortcuts &shortcuts, const typename Shortcuts::key_type &key,
                                   MakeSql &&makeSql)
{
    const auto known = shortcuts.find(key);
    if (known != shortcuts.end() && *known->second) {
        m_status = {};
        return *known->second;
    }
    Slot &slot = prepared(makeSql());
    shortcuts[key] = &slot;
    return slot;
}

QString TableBase::columnName(int column, bool sorted) const
{
    const Column &named = m_schema.columns[static_cast<std::size_t>(column)];
    if (!sorted || !named.french) return named.name;
    return named.name + QStringLiteral(" COLLATE ") + QString::fromLatin1(collationFrancais);
}

QString TableBase::selectAll() const
{
    QStringList names{m_schema.clustered ? QStringLiteral("0") : QStringLiteral("rowid")};
    for (const Column &column : m_schema.columns)
        names << column.name;
    return QStringLiteral("SELECT %1 FROM %2").arg(names.join(QLatin1Char(',')), m_schema.table);
}

QString TableBase::placeholder(int column) const
{
    const Column &named = m_schema.columns[static_cast<std::size_t>(column)];
    const bool neverNull = hasRowid() && named.sought && named.isText();
    return neverNull ? QStringLiteral("ifnull(?, '')") : QStringLiteral("?");
}

/// "(a, b) >= (?, ?)". With the identity, rows of one key are told apart.
QString TableBase::comparison(const std::vector<int> &columns, const char *op, bool withIdentity) const
{
    QStringList names;
    QStringList values;
    for (const int column : columns) {
        names << columnName(column, true);
        values << placeholder(column);
    }
    if (withIdentity && hasRowid()) {
        names << QStringLiteral("rowid");
        values << QStringLiteral("?");
    }
    const QLatin1Char comma(',');
    return QStringLiteral("(%1) %2 (%3)").arg(names.join(comma), QLatin1String(op), values.join(comma));
}

QString TableBase::order(const Index &ordered, bool forward) const
{
    QStringList names;
    for (const int column : ordered.columns)
        names << columnName(column, true);
    if (hasRowid()) names << QStringLiteral("rowid");
    const QString direction = forward ? QStringLiteral(" ASC") : QStringLiteral(" DESC");
    return QStringLiteral(" ORDER BY ") + names.join(direction + QLatin1Char(',')) + direction;
}

QString TableBase::equality(const std::vector<int> &columns) const
{
    QStringList terms;
    for (const int column : columns)
        terms << columnName(column, false) + QStringLiteral(" = ") + placeholder(column);
    return terms.join(QStringLiteral(" AND "));
}

QString TableBase::identity() const
{
    return hasRowid() ? QStringLiteral("rowid = ?") : equality(primary().columns);
}

TableBase::Slot &TableBase::seekStatement(Cmp wanted, std::size_t parts)
{
    const auto key = shortcut(Seek, m_index, static_cast<int>(wanted), static_cast<int>(parts));
    return cached(m_shortcuts, key, [&] {
        const std::vector<int> columns = leading(index(), parts);
        const bool forward = wanted != Cmp::Le && wanted != Cmp::Lt;
        const QString where =
            wanted == Cmp::Eq ? equality(columns) : comparison(columns, symbol(wanted), false);
        return selectAll() + QStringLiteral(" WHERE ") + where + order(index(), forward) +
               QStringLiteral(" LIMIT 1");
    });
}

TableBase::Slot &TableBase::stepStatement(bool forward)
{
    return cached(m_shortcuts, shortcut(Step, m_index, forward), [&] {
        return selectAll() + QStringLiteral(" WHERE ") +
               comparison(index().columns, forward ? ">" : "<", true) + order(index(), forward) +
               QStringLiteral(" LIMIT 1");
    });
}

TableBase::Slot &TableBase::endStatement(bool forward)
{
    return cached(m_shortcuts, shortcut(End, m_index, forward),
                  [&] { return selectAll() + order(index(), forward) + QStringLiteral(" LIMIT 1"); });
}

QString TableBase::rangeSql(const RangeKey &range) const
{
    const auto &[ranged, shared, fromParts, toParts, columns] = range;
    const Index &ordered = m_schema.indexes[static_cast<std::size_t>(ranged)];
    QStringList wanted;
    for (const int column : columns)
        wanted << columnName(column, false);
    // A shared value is said once: the engine then compares only the rest of the key on each row.
    QStringList bounds;
    for (const int column : leading(ordered, shared))
        bounds << columnName(column, false) + QStringLiteral(" = ?");
    if (fromParts > shared) bounds << comparison(between(ordered, shared, fromParts), ">=", false);
    if (toParts > shared) bounds << comparison(between(ordered, shared, toParts), "<=", false);
    QString sql = QStringLiteral("SELECT %1 FROM %2").arg(wanted.join(QLatin1Char(',')), m_schema.table);
    if (!bounds.isEmpty()) sql += QStringLiteral(" WHERE ") + bounds.join(QStringLiteral(" AND "));
    return sql + order(ordered, true);
}

TableBase::Slot &TableBase::rangeStatement(int ranged, const Key &from, const Key &to,
                                           const std::vector<int> &columns)
{
    const RangeKey key{ranged, sharedParts(from, to), from.size(), to.size(), columns};
    return cached(m_ranges, key, [&] { return rangeSql(key); });
}

TableBase::Slot &TableBase::rereadStatement()
{
    return cached(m_shortcuts, shortcut(Reread),
                  [&] { return selectAll() + QStringLiteral(" WHERE ") + identity(); });
}

TableBase::Slot &TableBase::insertStatement()
{
    return cached(m_shortcuts, shortcut(Insert), [&] {
        QStringList names;
        QStringList values;
        for (const int column : everyColumn(m_schema)) {
            names << columnName(column, false);
            values << placeholder(column);
        }
        return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
            .arg(m_schema.table, names.join(QLatin1Char(',')), values.join(QLatin1Char(',')));
    });
}

TableBase::Slot &TableBase::updateStatement()
{
    return cached(m_shortcuts, shortcut(Update), [&] {
        QStringList terms;
        for (const int column : everyColumn(m_schema))
            terms << columnName(column, false) + QStringLiteral(" = ") + placeholder(column);
        return QStringLiteral("UPDATE %1 SET %2 WHERE %3")
            .arg(m_schema.table, terms.join(QLatin1Char(',')), identity());
    });
}

TableBase::Slot &TableBase::deleteStatement()
{
    return cached(m_shortcuts, shortcut(Delete),
                  [&] { return QStringLiteral("DELETE FROM %1 WHERE %2").arg(m_schema.table, identity()); });
}

TableBase::Slot &TableBase::deleteRunStatement(std::size_t parts)
{
    return cached(m_shortcuts, shortcut(DeleteRun, static_cast<int>(parts)), [&] {
        return QStringLiteral("DELETE FROM %1 WHERE %2")
            .arg(m_schema.table, equality(leading(primary(), parts)));
    });
}

} // namespace velmora::store
