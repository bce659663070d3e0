#include "store/table_base.h"

#include "store/collation.h"

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

QString placeholders(qsizetype count)
{
    return QStringList(count, QStringLiteral("?")).join(QLatin1Char(','));
}

/// "(a, b) >= (?, ?)".
QString comparison(const QStringList &columns, const char *op)
{
    return QStringLiteral("(%1) %2 (%3)")
        .arg(columns.join(QLatin1Char(',')), QString::fromLatin1(op), placeholders(columns.size()));
}

// Kinds of statement, the high part of a shortcut.
enum Kind { Seek = 1, Step, End, Reread, Insert, Update, Delete };

std::int64_t shortcut(Kind kind, int index = 0, int first = 0, int second = 0)
{
    return ((static_cast<std::int64_t>(kind) * 16 + index) * 16 + first) * 16 + second;
}

} // namespace

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

template <class MakeSql> TableBase::Slot &TableBase::cached(std::int64_t shortcutKey, MakeSql &&makeSql)
{
    const auto known = m_shortcuts.find(shortcutKey);
    if (known != m_shortcuts.end() && *known->second) {
        m_status = {};
        return *known->second;
    }
    Slot &slot = prepared(makeSql());
    m_shortcuts[shortcutKey] = &slot;
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

QStringList TableBase::orderColumns(const Index &ordered) const
{
    QStringList names;
    for (const int column : ordered.columns)
        names << columnName(column, true);
    // Rows of one key are told apart by their identity.
    if (!m_schema.clustered) names << QStringLiteral("rowid");
    return names;
}

QString TableBase::order(const Index &ordered, bool forward) const
{
    const QString direction = forward ? QStringLiteral(" ASC") : QStringLiteral(" DESC");
    return QStringLiteral(" ORDER BY ") + orderColumns(ordered).join(direction + QLatin1Char(',')) +
           direction;
}

QString TableBase::identity() const
{
    if (!m_schema.clustered) return QStringLiteral("rowid = ?");
    QStringList terms;
    for (const int column : primary().columns)
        terms << columnName(column, false) + QStringLiteral(" = ?");
    return terms.join(QStringLiteral(" AND "));
}

TableBase::Slot &TableBase::seekStatement(Cmp wanted, std::size_t parts)
{
    return cached(shortcut(Seek, m_index, static_cast<int>(wanted), static_cast<int>(parts)), [&] {
        QStringList columns;
        for (std::size_t i = 0; i < parts && i < index().columns.size(); ++i)
            columns << columnName(index().columns[i], wanted != Cmp::Eq);
        const bool forward = wanted != Cmp::Le && wanted != Cmp::Lt;
        const QString where = wanted == Cmp::Eq
                                  ? columns.join(QStringLiteral(" = ? AND ")) + QStringLiteral(" = ?")
                                  : comparison(columns, symbol(wanted));
        return selectAll() + QStringLiteral(" WHERE ") + where + order(index(), forward) +
               QStringLiteral(" LIMIT 1");
    });
}

TableBase::Slot &TableBase::stepStatement(bool forward)
{
    return cached(shortcut(Step, m_index, forward), [&] {
        return selectAll() + QStringLiteral(" WHERE ") +
               comparison(orderColumns(index()), forward ? ">" : "<") + order(index(), forward) +
               QStringLiteral(" LIMIT 1");
    });
}

TableBase::Slot &TableBase::endStatement(bool forward)
{
    return cached(shortcut(End, m_index, forward),
                  [&] { return selectAll() + order(index(), forward) + QStringLiteral(" LIMIT 1"); });
}

TableBase::Slot &TableBase::rangeStatement(int ranged, std::size_t fromParts, std::size_t toParts,
                                           const std::vector<int> &columns)
{
    const Index &ordered = m_schema.indexes[static_cast<std::size_t>(ranged)];
    QStringList wanted;
    for (const int column : columns)
        wanted << m_schema.columns[static_cast<std::size_t>(column)].name;
    QStringList keys;
    for (const int column : ordered.columns)
        keys << columnName(column, true);
    QStringList bounds;
    if (fromParts > 0) bounds << comparison(keys.first(static_cast<qsizetype>(fromParts)), ">=");
    if (toParts > 0) bounds << comparison(keys.first(static_cast<qsizetype>(toParts)), "<=");
    QString sql = QStringLiteral("SELECT %1 FROM %2").arg(wanted.join(QLatin1Char(',')), m_schema.table);
    if (!bounds.isEmpty()) sql += QStringLiteral(" WHERE ") + bounds.join(QStringLiteral(" AND "));
    return prepared(sql + order(ordered, true));
}

TableBase::Slot &TableBase::rereadStatement()
{
    return cached(shortcut(Reread), [&] { return selectAll() + QStringLiteral(" WHERE ") + identity(); });
}

TableBase::Slot &TableBase::insertStatement()
{
    return cached(shortcut(Insert), [&] {
        QStringList names;
        for (const Column &column : m_schema.columns)
            names << column.name;
        return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
            .arg(m_schema.table, names.join(QLatin1Char(',')), placeholders(names.size()));
    });
}

TableBase::Slot &TableBase::updateStatement()
{
    return cached(shortcut(Update), [&] {
        QStringList terms;
        for (const Column &column : m_schema.columns)
            terms << column.name + QStringLiteral(" = ?");
        return QStringLiteral("UPDATE %1 SET %2 WHERE %3")
            .arg(m_schema.table, terms.join(QLatin1Char(',')), identity());
    });
}

TableBase::Slot &TableBase::deleteStatement()
{
    return cached(shortcut(Delete),
                  [&] { return QStringLiteral("DELETE FROM %1 WHERE %2").arg(m_schema.table, identity()); });
}

} // namespace velmora::store
