#pragma once

#include "store/engine.h"
#include "store/schema.h"

#include <QDate>

#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <variant>

namespace velmora::store
{

/// How a sought key compares with the rows: the first row at or after it, or the last one before it.
enum class Cmp { Eq, Ge, Gt, Le, Lt };

/// Whether a change is under way on a table, as the guards ask it.
enum class EditMode { None, InProgress, Add };

/// A value sought in an index.
class KeyValue
{
public:
    KeyValue(int value) : m_value(static_cast<std::int64_t>(value)) {}
    KeyValue(const QDate &value) : m_value(value) {}
    KeyValue(QString value) : m_value(std::move(value)) {}

    void bind(Statement &statement, int position) const;
    friend bool operator==(const KeyValue &, const KeyValue &) = default;

private:
    std::variant<std::int64_t, QDate, QString> m_value;
};

/// A whole key of an index or its first columns.
using Key = std::vector<KeyValue>;

/// First values that two keys share.
[[nodiscard]] std::size_t sharedParts(const Key &from, const Key &to);

/// The part of a table that doesn't depend on its row's type: the current index and the statements, made
/// once each and kept for the table's life.
class TableBase
{
public:
    TableBase(Engine &engine, const Schema &schema) : m_engine(engine), m_schema(schema) {}
    TableBase(const TableBase &) = delete;
    TableBase &operator=(const TableBase &) = delete;
    virtual ~TableBase() = default;

    /// Makes an index of the table current. A name that isn't one of its indexes changes nothing.
    void setIndex(const char *name);
    [[nodiscard]] QString currentIndex() const;

    [[nodiscard]] EditMode editMode() const { return m_editMode; }
    /// The last operation on the table: tells a row that isn't there from a failure of the engine.
    [[nodiscard]] const Status &status() const { return m_status; }
    /// Count of rows; 0 on a failure, which `status` tells.
    [[nodiscard]] int recordCount();
    /// Whether the table has no row; true on a failure, which `status` tells.
    [[nodiscard]] bool isEmpty();
    /// Whether an update failed and its values still wait in the edit.
    [[nodiscard]] bool updatePending() const { return m_updatePending; }
    /// Writes the values of the edit or of the new row. After a failure the edit stays as it is.
    virtual Status update() = 0;
    /// Drops the edit or the new row.
    void cancelUpdate();
    /// Forgets the statements and the current row, so that the database can be closed: the table is again as
    /// before its first use.
    virtual void release();

protected:
    using Slot = std::unique_ptr<Statement>;

    // Each of these gives the statement for the table's current index, made at its first use. Its first
    // column is the row's identity for the engine; clustered tables, known by their key, have 0 there.
    [[nodiscard]] Slot &seekStatement(Cmp comparison, std::size_t parts);
    [[nodiscard]] Slot &stepStatement(bool forward);
    [[nodiscard]] Slot &endStatement(bool forward);
    /// Binds the whole of `from`, then what `to` doesn't share with it.
    [[nodiscard]] Slot &rangeStatement(int index, const Key &from, const Key &to,
                                       const std::vector<int> &columns);
    [[nodiscard]] Slot &rereadStatement();
    [[nodiscard]] Slot &insertStatement();
    [[nodiscard]] Slot &updateStatement();
    [[nodiscard]] Slot &deleteStatement();
    [[nodiscard]] Slot &deleteRunStatement(std::size_t parts);

    [[nodiscard]] const Index &index() const { return m_schema.indexes[static_cast<std::size_t>(m_index)]; }
    [[nodiscard]] const Index &primary() const { return m_schema.indexes.front(); }
    /// Runs a statement that gives no rows.
    [[nodiscard]] Status run(Slot &statement);

    Engine &m_engine;
    const Schema &m_schema;
    int m_index = 0;
    EditMode m_editMode = EditMode::None;
    bool m_updatePending = false;
    Status m_status;

private:
    /// What tells the passes over runs of rows apart: index, count of first values that both bounds share,
    /// counts of values of each bound, columns read.
    using RangeKey = std::tuple<int, std::size_t, std::size_t, std::size_t, std::vector<int>>;

    [[nodiscard]] Slot &prepared(const QString &sql);
    [[nodiscard]] QString rangeSql(const RangeKey &range) const;
    [[nodiscard]] QString placeholder(int column) const;
    [[nodiscard]] QString comparison(const std::vector<int> &columns, const char *op,
                                     bool withIdentity) const;
    [[nodiscard]] QString selectAll() const;
    [[nodiscard]] QString columnName(int column, bool sorted) const;
    [[nodiscard]] bool hasRowid() const { return !m_schema.clustered; }
    [[nodiscard]] QString order(const Index &index, bool forward) const;
    [[nodiscard]] QString equality(const std::vector<int> &columns) const;
    [[nodiscard]] QString identity() const;
    [[nodiscard]] int scalar(const QString &sql);

    std::map<QString, Slot> m_statements;
    std::map<std::int64_t, Slot *> m_shortcuts;
    std::map<RangeKey, Slot *> m_ranges;

    template <class Shortcuts, class MakeSql>
    Slot &cached(Shortcuts &shortcuts, const typename Shortcuts::key_type &key, MakeSql &&makeSql);
};

} // namespace velmora::store
