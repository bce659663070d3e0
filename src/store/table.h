#pragma once

#include "store/table_base.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace velmora::store
{

/// Which row is meant, whatever changes around it: what a table hands out to come back to a row.
template <class Row> class Bookmark
{
public:
    Bookmark() = default;
    Bookmark(std::int64_t rowid, Row row) : m_set(true), m_rowid(rowid), m_row(std::move(row)) {}

    [[nodiscard]] bool isEmpty() const { return !m_set; }
    [[nodiscard]] std::int64_t rowid() const { return m_rowid; }
    [[nodiscard]] const Row &row() const { return m_row; }

private:
    bool m_set = false;
    std::int64_t m_rowid = 0;
    Row m_row;
};

/// How one column of a row type is read and bound.
template <class Row> struct ColumnAccess {
    void (*read)(Row &, const Statement &, int column);
    void (*bind)(const Row &, Statement &, int position);
    std::ptrdiff_t offset; ///< of the member in the row
};

/// Every column of the row's table, in order.
template <class Row> const std::vector<ColumnAccess<Row>> &accessOf();

/// The columns of a row type that a pass reads, as their ordinals.
template <class Row> class Columns
{
public:
    /// The columns of these members of the row.
    template <class... Members> static std::vector<int> of(Members Row::*...members)
    {
        return {ordinalOf(members)...};
    }
    static std::vector<int> all()
    {
        std::vector<int> ordinals(accessOf<Row>().size());
        for (std::size_t i = 0; i < ordinals.size(); ++i)
            ordinals[i] = static_cast<int>(i);
        return ordinals;
    }

private:
    template <class Member> static int ordinalOf(Member Row::*member)
    {
        const Row probe{};
        const auto offset =
            reinterpret_cast<const char *>(&(probe.*member)) - reinterpret_cast<const char *>(&probe);
        const auto &access = accessOf<Row>();
        for (std::size_t i = 0; i < access.size(); ++i)
            if (access[i].offset == offset) return static_cast<int>(i);
        return -1;
    }
};

/// A run of rows read in one pass, forward. The table's current row doesn't move. At most one pass over the
/// same columns of an index is open at a time: a second one within it makes both fail.
template <class Row> class Rows
{
public:
    Rows(Statement *statement, std::vector<int> columns)
        : m_statement(statement), m_columns(std::move(columns))
    {
    }
    Rows(Rows &&other) noexcept
        : m_statement(std::exchange(other.m_statement, nullptr)), m_columns(std::move(other.m_columns)),
          m_row(std::move(other.m_row))
    {
    }
    Rows &operator=(Rows &&) = delete;
    ~Rows()
    {
        if (m_statement) m_statement->reset();
    }

    /// Reads the next row; false at the end and on a failure.
    [[nodiscard]] bool next()
    {
        if (!m_statement || m_statement->step() != Statement::Step::Row) return false;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            m_access[static_cast<std::size_t>(m_columns[i])].read(m_row, *m_statement, static_cast<int>(i));
        return true;
    }
    /// The row read last; fields that the pass doesn't read keep their empty values.
    [[nodiscard]] const Row &row() const { return m_row; }
    [[nodiscard]] Status status() const
    {
        return m_statement ? m_statement->status() : Status{Status::Code::Misuse, {}};
    }

private:
    Statement *m_statement;
    std::vector<int> m_columns;
    const std::vector<ColumnAccess<Row>> &m_access = accessOf<Row>();
    Row m_row;
};

/// A table with a current row and a current index, as the procedures walk and change it. A step to the next
/// row is a seek past the current key, so a walk is right while rows change under it.
template <class Row> class Table : public TableBase
{
public:
    explicit Table(Engine &engine) : TableBase(engine, schemaOf<Row>()) {}

    /// Looks for a row by a comparison on the whole key of the current index or its first columns. True when
    /// there is one, which becomes current; else the current row stays, and `status` tells a failure.
    bool seek(Cmp comparison, const Key &key)
    {
        Slot &statement = seekStatement(comparison, key.size());
        if (!statement) return false;
        int position = 0;
        for (const KeyValue &value : key)
            value.bind(*statement, ++position);
        return take(statement);
    }

    /// An end of the table in the order of the index. In an empty table there is no current row then.
    bool first() { return takeEnd(endStatement(true)); }
    bool last() { return takeEnd(endStatement(false)); }
    /// The row after or before the current one in the order of the index. At the end there is no current
    /// row until the next seek, and `atEnd` is true.
    bool next() { return stepTo(true); }
    bool previous() { return stepTo(false); }
    [[nodiscard]] bool atEnd() const { return m_atEnd; }
    [[nodiscard]] bool hasRow() const { return m_hasRow; }

    /// The current row, or the values of the edit while one is under way.
    [[nodiscard]] const Row &row() const { return m_editMode == EditMode::None ? m_current : m_buffer; }
    /// The current row as it was read, also while an edit of it is under way.
    [[nodiscard]] const Row &current() const { return m_current; }
    /// The values to write, only between `edit` or `addNew` and `update`.
    [[nodiscard]] Row &values() { return m_buffer; }

    /// Begins a change of the current row, read again from the file. `update` then writes that row, whatever
    /// row has become current.
    Status edit()
    {
        if (!m_hasRow) return m_status = noRow();
        if (!reread(m_rowid, m_current)) return m_status.ok() ? m_status = noRow() : m_status;
        m_buffer = m_current;
        m_edited = bookmark();
        m_moved = false;
        m_editMode = EditMode::InProgress;
        return m_status;
    }
    /// Begins a new row with empty values.
    Status addNew()
    {
        m_buffer = Row{};
        m_editMode = EditMode::Add;
        return m_status = {};
    }
    Status update() override
    {
        if (m_editMode == EditMode::None) return m_status = {Status::Code::Misuse, QStringLiteral("no edit")};
        const bool adding = m_editMode == EditMode::Add;
        const Status outcome = adding ? insert() : rewrite();
        m_updatePending = !outcome.ok();
        if (!outcome.ok()) return m_status = outcome;
        m_editMode = EditMode::None;
        m_lastModified = {adding ? m_engine.lastInsertedRow() : m_edited.rowid(), m_buffer};
        if (!adding && !m_moved) m_current = m_buffer;
        return m_status = outcome;
    }
    /// Deletes the current row. A step from it still goes to its neighbours.
    Status erase()
    {
        if (!m_hasRow) return m_status = noRow();
        Slot &statement = deleteStatement();
        if (!statement) return m_status;
        bindIdentity(*statement, 0, m_rowid, m_current);
        Status outcome = changedOne(statement);
        if (outcome.ok()) m_hasRow = false;
        return outcome;
    }

    /// Deletes every row whose primary key begins with these values; none may be there. The current row is
    /// not looked at.
    Status eraseRun(const Key &key)
    {
        Slot &statement = deleteRunStatement(key.size());
        if (!statement) return m_status;
        int position = 0;
        for (const KeyValue &value : key)
            value.bind(*statement, ++position);
        return run(statement);
    }

    void release() override
    {
        TableBase::release();
        m_hasRow = m_atEnd = false;
        m_current = m_buffer = {};
        m_lastModified = m_edited = {};
    }

    /// The row that `update` wrote last; empty before the first.
    [[nodiscard]] const Bookmark<Row> &lastModified() const { return m_lastModified; }
    /// Makes the row that `update` has just written current. Within a transaction nobody else can have
    /// changed it, and it isn't read again.
    bool goToModified()
    {
        if (!m_engine.inTransaction() || m_lastModified.isEmpty()) return goTo(m_lastModified);
        m_current = m_lastModified.row();
        m_rowid = m_lastModified.rowid();
        m_hasRow = m_moved = true;
        m_atEnd = false;
        m_status = {};
        return true;
    }
    [[nodiscard]] Bookmark<Row> bookmark() const
    {
        return m_hasRow ? Bookmark<Row>(m_rowid, m_current) : Bookmark<Row>();
    }
    /// Makes the row of a bookmark current. False when it is gone.
    bool goTo(const Bookmark<Row> &mark)
    {
        if (mark.isEmpty()) return false;
        return reread(mark.rowid(), mark.row());
    }

    /// Reads the rows from one key to another, both included, in the order of an index. An empty key leaves
    /// that side open. An index or a column that the table doesn't have is a mistake of the caller's and a
    /// failure.
    [[nodiscard]] Rows<Row> range(const char *indexName, const Key &from, const Key &to,
                                  const std::vector<int> &columns = Columns<Row>::all())
    {
        const int ranged = m_schema.index(QString::fromLatin1(indexName));
        const bool known = ranged >= 0 && std::find(columns.begin(), columns.end(), -1) == columns.end();
        Q_ASSERT_X(known, "range", "no such index or column");
        if (!known) return {nullptr, columns};
        Slot &statement = rangeStatement(ranged, from, to, columns);
        if (!statement) return {nullptr, columns};
        int position = 0;
        for (const KeyValue &value : from)
            value.bind(*statement, ++position);
        for (std::size_t part = sharedParts(from, to); part < to.size(); ++part)
            to[part].bind(*statement, ++position);
        return {statement.get(), columns};
    }

private:
    static Status noRow() { return {Status::Code::NoRow, QStringLiteral("no current row")}; }

    bool takeEnd(Slot &statement)
    {
        if (!statement) return false;
        if (take(statement)) return true;
        if (m_status.ok()) endWalk();
        return false;
    }

    void endWalk()
    {
        m_hasRow = false;
        m_atEnd = true;
    }

    bool take(Slot &statement)
    {
        const auto step = statement->step();
        m_status = step == Statement::Step::Failed ? statement->status() : Status{};
        if (step == Statement::Step::Row) {
            m_rowid = statement->columnInt(0);
            int column = 0;
            for (const auto &access : accessOf<Row>())
                access.read(m_current, *statement, ++column);
            m_hasRow = m_moved = true;
            m_atEnd = false;
        }
        statement->reset();
        return step == Statement::Step::Row;
    }

    bool stepTo(bool forward)
    {
        Slot &statement = stepStatement(forward);
        if (!statement) return false;
        int position = 0;
        for (const int column : index().columns)
            bindColumn(*statement, ++position, column, m_current);
        if (!m_schema.clustered) statement->bindInt(++position, m_rowid);
        const bool found = take(statement);
        if (!found) endWalk();
        return found;
    }

    static void bindColumn(Statement &statement, int position, int column, const Row &row)
    {
        accessOf<Row>()[static_cast<std::size_t>(column)].bind(row, statement, position);
    }

    void bindIdentity(Statement &statement, int position, std::int64_t rowid, const Row &row)
    {
        if (!m_schema.clustered) return statement.bindInt(position + 1, rowid);
        for (const int column : primary().columns)
            bindColumn(statement, ++position, column, row);
    }

    int bindAll(Statement &statement)
    {
        int position = 0;
        for (const auto &access : accessOf<Row>())
            access.bind(m_buffer, statement, ++position);
        return position;
    }

    bool reread(std::int64_t rowid, const Row &row)
    {
        Slot &statement = rereadStatement();
        if (!statement) return false;
        bindIdentity(*statement, 0, rowid, row);
        return take(statement);
    }

    Status changedOne(Slot &statement)
    {
        const Status outcome = run(statement);
        if (outcome.ok() && m_engine.changedRows() == 0) return m_status = noRow();
        return outcome;
    }

    Status insert()
    {
        Slot &statement = insertStatement();
        if (!statement) return m_status;
        bindAll(*statement);
        return run(statement);
    }

    Status rewrite()
    {
        Slot &statement = updateStatement();
        if (!statement) return m_status;
        bindIdentity(*statement, bindAll(*statement), m_edited.rowid(), m_edited.row());
        return changedOne(statement);
    }

    Row m_current;
    Row m_buffer;
    std::int64_t m_rowid = 0;
    bool m_hasRow = false;
    bool m_atEnd = false;
    bool m_moved = false;   ///< a row has been read since the edit began
    Bookmark<Row> m_edited; ///< the row under edit, as it was
    Bookmark<Row> m_lastModified;
};

} // namespace velmora::store
