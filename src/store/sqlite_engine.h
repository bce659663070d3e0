#pragma once

#include "store/engine.h"

#include <chrono>

struct sqlite3;

namespace velmora::store
{

/// How a file is opened.
struct SqliteOptions {
    bool create = false;    ///< make the file when it is missing
    bool readOnly = false;  ///< open without the right to write
    bool exclusive = false; ///< keep the file to this session from the opening on
    std::chrono::milliseconds busyWait{5000};
};

/// The embedded engine: one SQLite file. Rollback journal and full synchronisation, since the main file may
/// lie in a shared folder.
class SqliteEngine : public Engine
{
public:
    SqliteEngine();
    ~SqliteEngine() override;

    /// Opens `path`. A file that is no SQLite database, or that can't be locked as asked, is a failure, and
    /// nothing is written to it.
    [[nodiscard]] Status open(const QString &path, const SqliteOptions &options);
    void close();
    /// Truncates the rollback journal after a transaction rather than deleting it, which spares a shared
    /// folder a write. Said only of a file that is known as ours, since it may write to it.
    [[nodiscard]] Status keepJournalFile();

    [[nodiscard]] std::unique_ptr<Statement> prepare(const QString &sql) override;
    [[nodiscard]] Status execute(const QString &sql) override;
    [[nodiscard]] Status begin(Transaction kind) override;
    [[nodiscard]] Status commit() override;
    void rollback() override;
    [[nodiscard]] bool inTransaction() const override;
    [[nodiscard]] std::int64_t lastInsertedRow() const override;
    [[nodiscard]] int changedRows() const override;
    [[nodiscard]] Status status() const override;
    [[nodiscard]] QString version() const override;

private:
    [[nodiscard]] Status configure(const SqliteOptions &options);
    [[nodiscard]] Status noted(int result) const;

    sqlite3 *m_database = nullptr;
    std::unique_ptr<Statement> m_begin[2];
    std::unique_ptr<Statement> m_commit;
};

/// What an SQLite result code means for the callers of the store.
[[nodiscard]] Status::Code statusCode(int sqliteResult);

} // namespace velmora::store
