#pragma once

#include "store/engine.h"

struct sqlite3;

namespace velmora::store
{

/// The embedded engine: one SQLite file. Rollback journal and full synchronisation, since the main file may
/// lie in a shared folder.
class SqliteEngine : public Engine
{
public:
    class Prepared;

    SqliteEngine();
    ~SqliteEngine() override;

    [[nodiscard]] Status open(const QString &path, const OpenOptions &options) override;
    void close() override;
    /// Truncates the rollback journal after a transaction rather than deleting it, which spares a shared
    /// folder a write.
    [[nodiscard]] Status adopt() override;

    [[nodiscard]] std::unique_ptr<Statement> prepare(const QString &sql) override;
    [[nodiscard]] Status execute(const QString &sql) override;
    [[nodiscard]] Status begin(Transaction kind) override;
    [[nodiscard]] Status commit() override;
    void rollback() override;
    void giveUp() override;
    [[nodiscard]] bool inTransaction() const override;
    [[nodiscard]] Status setMark() override;
    [[nodiscard]] Status dropMark() override;
    [[nodiscard]] Status rollbackToMark() override;
    [[nodiscard]] std::int64_t lastInsertedRow() const override;
    [[nodiscard]] int changedRows() const override;
    [[nodiscard]] Status status() const override;
    [[nodiscard]] QString version() const override;

private:
    [[nodiscard]] Status configure(const OpenOptions &options);
    [[nodiscard]] Status noted(int result) const;
    /// Runs a statement that is prepared at its first use and kept.
    [[nodiscard]] Status runKept(std::unique_ptr<Statement> &statement, const QString &sql);
    /// A write transaction was begun and the engine gave it up by itself.
    [[nodiscard]] bool lost() const { return m_writing && !inTransaction(); }
    [[nodiscard]] static Status lostStatus();

    sqlite3 *m_database = nullptr;
    bool m_writing = false; ///< from the begin of a write transaction to its commit or rollback
    std::unique_ptr<Statement> m_begin[2];
    std::unique_ptr<Statement> m_commit;
    std::unique_ptr<Statement> m_setMark;
    std::unique_ptr<Statement> m_dropMark;
};

/// What an SQLite result code means for the callers of the store.
[[nodiscard]] Status::Code statusCode(int sqliteResult);

} // namespace velmora::store
