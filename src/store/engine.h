#pragma once

#include "store/status.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string_view>

namespace velmora::store
{

/// One prepared statement. Positions of parameters count from 1, of columns from 0.
class Statement
{
public:
    enum class Step { Row, Done, Failed };

    Statement() = default;
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    virtual ~Statement() = default;

    virtual void bindInt(int position, std::int64_t value) = 0;
    virtual void bindReal(int position, double value) = 0;
    virtual void bindText(int position, std::string_view utf8) = 0;
    virtual void bindNull(int position) = 0;

    /// Runs to the next row or to the end. After Failed, `status` says why.
    [[nodiscard]] virtual Step step() = 0;
    [[nodiscard]] virtual Status status() const = 0;
    /// Makes the statement ready for new values; the bound ones stay until they are bound again.
    virtual void reset() = 0;

    [[nodiscard]] virtual bool columnIsNull(int column) const = 0;
    /// The column as a number; null and texts that are no number read as 0.
    [[nodiscard]] virtual std::int64_t columnInt(int column) const = 0;
    [[nodiscard]] virtual double columnReal(int column) const = 0;
    /// The column as UTF-8, valid until the next step or reset. Empty for null.
    [[nodiscard]] virtual std::string_view columnText(int column) const = 0;
};

/// How a database is opened.
struct OpenOptions {
    bool create = false;    ///< make the file when it is missing
    bool readOnly = false;  ///< open without the right to write
    bool damaged = false;   ///< read what can be read of a file whose structure is broken
    bool exclusive = false; ///< keep the file to this session from the opening on
    /// How long an operation waits for another session's lock before it fails as busy.
    std::chrono::milliseconds busyWait{5000};
};

/// A database engine that holds one open database.
class Engine
{
public:
    /// Read transactions give a pass one view of the file; write transactions take the file at once,
    /// waiting for other sessions as long as the busy wait; whoever reads waits until they end.
    enum class Transaction { Read, Write };

    Engine() = default;
    Engine(const Engine &) = delete;
    Engine &operator=(const Engine &) = delete;
    virtual ~Engine() = default;

    /// Opens `path`, after closing what was open. A file that is no database of the engine, or that can't be
    /// locked as asked, is a failure, and nothing is written to it.
    [[nodiscard]] virtual Status open(const QString &path, const OpenOptions &options) = 0;
    virtual void close() = 0;
    /// Said once the open file is known as one of ours: the engine may now write its own settings to it.
    [[nodiscard]] virtual Status adopt() = 0;

    /// Null on failure; `status` says why.
    [[nodiscard]] virtual std::unique_ptr<Statement> prepare(const QString &sql) = 0;
    /// Runs statements that give no rows.
    [[nodiscard]] virtual Status execute(const QString &sql) = 0;

    /// An engine may give a write transaction up by itself when its disk fails. Then nothing runs until
    /// `commit`, which fails, or `rollback`: what belongs to the transaction must not be written alone.
    [[nodiscard]] virtual Status begin(Transaction kind) = 0;
    [[nodiscard]] virtual Status commit() = 0;
    virtual void rollback() = 0;
    /// Gives a write transaction up, as a failing disk would.
    virtual void giveUp() = 0;
    [[nodiscard]] virtual bool inTransaction() const = 0;

    /// A mark within the transaction, to which what is written after it can be taken back. Marks nest: the
    /// latest is meant.
    [[nodiscard]] virtual Status setMark() = 0;
    [[nodiscard]] virtual Status dropMark() = 0;
    [[nodiscard]] virtual Status rollbackToMark() = 0;

    /// Identity of the row that the last insertion wrote.
    [[nodiscard]] virtual std::int64_t lastInsertedRow() const = 0;
    /// Rows that the last statement changed.
    [[nodiscard]] virtual int changedRows() const = 0;
    [[nodiscard]] virtual Status status() const = 0;
    /// The engine's version text, for example "3.40.1".
    [[nodiscard]] virtual QString version() const = 0;
};

} // namespace velmora::store
