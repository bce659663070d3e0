#pragma once

#include "store/status.h"

#include <QString>

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

/// A database engine that holds one open database.
class Engine
{
public:
    /// Read transactions give a pass one view of the file; write transactions take the write lock at once,
    /// waiting for other sessions as long as the busy wait.
    enum class Transaction { Read, Write };

    Engine() = default;
    Engine(const Engine &) = delete;
    Engine &operator=(const Engine &) = delete;
    virtual ~Engine() = default;

    /// Null on failure; `status` says why.
    [[nodiscard]] virtual std::unique_ptr<Statement> prepare(const QString &sql) = 0;
    /// Runs statements that give no rows.
    [[nodiscard]] virtual Status execute(const QString &sql) = 0;

    [[nodiscard]] virtual Status begin(Transaction kind) = 0;
    [[nodiscard]] virtual Status commit() = 0;
    virtual void rollback() = 0;
    [[nodiscard]] virtual bool inTransaction() const = 0;

    /// Identity of the row that the last insertion wrote.
    [[nodiscard]] virtual std::int64_t lastInsertedRow() const = 0;
    /// Rows that the last statement changed.
    [[nodiscard]] virtual int changedRows() const = 0;
    [[nodiscard]] virtual Status status() const = 0;
    /// The engine's version text, for example "3.40.1".
    [[nodiscard]] virtual QString version() const = 0;
};

} // namespace velmora::store
