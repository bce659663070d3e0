#include "store/sqlite_engine.h"

#include "store/collation.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <sqlite3.h>

namespace velmora::store
{

namespace
{

Q_LOGGING_CATEGORY(logStore, "velmora.store")

/// Notes a failure on the store's log category and turns it into a status.
Status failure(sqlite3 *database, int result)
{
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return {};
    const QString text = QString::fromUtf8(database ? sqlite3_errmsg(database) : sqlite3_errstr(result));
    qCWarning(logStore, "%d: %s", result, qUtf8Printable(text));
    return {statusCode(result), text};
}

} // namespace

class SqliteEngine::Prepared : public Statement
{
public:
    Prepared(const SqliteEngine &engine, sqlite3_stmt *statement)
        : m_engine(engine), m_database(engine.m_database), m_statement(statement)
    {
    }
    ~Prepared() override { sqlite3_finalize(m_statement); }

    void bindInt(int position, std::int64_t value) override
    {
        bound(sqlite3_bind_int64(m_statement, position, value));
    }
    void bindReal(int position, double value) override
    {
        bound(sqlite3_bind_double(m_statement, position, value));
    }
    void bindText(int position, std::string_view utf8) override
    {
        bound(sqlite3_bind_text64(m_statement, position, utf8.data(), utf8.size(), SQLITE_TRANSIENT,
                                  SQLITE_UTF8));
    }
    void bindNull(int position) override { bound(sqlite3_bind_null(m_statement, position)); }

    Step step() override
    {
        // A value that couldn't be bound must not run as the one before it.
        if (m_status.ok() && m_engine.lost()) m_status = lostStatus();
        if (!m_status.ok()) return Step::Failed;
        const int result = sqlite3_step(m_statement);
        if (result == SQLITE_ROW) return Step::Row;
        if (result == SQLITE_DONE) return Step::Done;
        m_status = failure(m_database, result);
        return Step::Failed;
    }
    Status status() const override { return m_status; }
    void reset() override
    {
        sqlite3_reset(m_statement);
        m_status = {};
    }

    bool columnIsNull(int column) const override
    {
        return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
    }
    std::int64_t columnInt(int column) const override { return sqlite3_column_int64(m_statement, column); }
    double columnReal(int column) const override { return sqlite3_column_double(m_statement, column); }
    std::string_view columnText(int column) const override
    {
        const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
        if (!text) return {};
        return {text, static_cast<std::size_t>(sqlite3_column_bytes(m_statement, column))};
    }

private:
    void bound(int result)
    {
        if (result != SQLITE_OK && m_status.ok()) m_status = failure(m_database, result);
    }

    const SqliteEngine &m_engine;
    sqlite3 *m_database;
    sqlite3_stmt *m_statement;
    Status m_status;
};

Status::Code statusCode(int sqliteResult)
{
    switch (sqliteResult & 0xff) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE: return Status::Code::Ok;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return Status::Code::Busy;
    case SQLITE_FULL: return Status::Code::Full;
    case SQLITE_READONLY:
    case SQLITE_PERM: return Status::Code::ReadOnly;
    case SQLITE_CORRUPT: return Status::Code::Damaged;
    case SQLITE_NOTADB: return Status::Code::NotADatabase;
    case SQLITE_CANTOPEN: return Status::Code::CantOpen;
    case SQLITE_IOERR: return Status::Code::Io;
    case SQLITE_CONSTRAINT: return Status::Code::Constraint;
    default: return Status::Code::Misuse;
    }
}

SqliteEngine::SqliteEngine() = default;

SqliteEngine::~SqliteEngine()
{
    close();
}

void SqliteEngine::close()
{
    for (auto *statement : {&m_begin[0], &m_begin[1], &m_commit, &m_setMark, &m_dropMark})
        statement->reset();
    sqlite3_close_v2(m_database);
    m_database = nullptr;
    m_writing = false;
}

Status SqliteEngine::lostStatus()
{
    return {Status::Code::Io, QStringLiteral("the transaction is gone")};
}

Status SqliteEngine::noted(int result) const
{
    return failure(m_database, result);
}

Status SqliteEngine::open(const QString &path, const OpenOptions &options)
{
    close();
    // To the engine an empty file is an empty database, and locking it would write to it.
    const QFileInfo file(path);
    if (!options.create && file.isFile() && file.size() == 0)
        return {Status::Code::NotADatabase, QStringLiteral("the file is empty")};
    int flags = options.readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (options.create) flags |= SQLITE_OPEN_CREATE;
    // A session has one thread, so each call is spared the connection's mutex.
    flags |= SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &m_database,
                                       flags | SQLITE_OPEN_EXRESCODE, nullptr);
    Status status = noted(result);
    if (status.ok()) status = configure(options);
    if (!status.ok()) close();
    return status;
}

Status SqliteEngine::configure(const OpenOptions &options)
{
    sqlite3_busy_timeout(m_database, static_cast<int>(options.busyWait.count()));
    sqlite3_extended_result_codes(m_database, 1);
    if (!options.readOnly && sqlite3_db_readonly(m_database, "main") == 1)
        return {Status::Code::ReadOnly, QStringLiteral("the file can't be written")};
    Status status = registerCollation(m_database);
    if (!status.ok()) return status;
    // Under this setting the engine reads a file that is shorter than its header says.
    if (options.damaged) status = execute(QStringLiteral("PRAGMA writable_schema = ON"));
    if (!status.ok()) return status;
    status = execute(QStringLiteral("PRAGMA synchronous = FULL; PRAGMA foreign_keys = OFF;"
                                    "PRAGMA cache_size = -16000"));
    // The lock outlives the transaction.
    if (status.ok() && options.exclusive)
        status = execute(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; ROLLBACK"));
    // The first read tells a foreign file from a database.
    if (status.ok()) status = execute(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    return status;
}

Status SqliteEngine::adopt()
{
    return execute(QStringLiteral("PRAGMA journal_mode = TRUNCATE"));
}

std::unique_ptr<Statement> SqliteEngine::prepare(const QString &sql)
{
    sqlite3_stmt *statement = nullptr;
    const QByteArray utf8 = sql.toUtf8();
    const int result = sqlite3_prepare_v3(m_database, utf8.constData(), static_cast<int>(utf8.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (!noted(result).ok() || !statement) return nullptr;
    return std::make_unique<Prepared>(*this, statement);
}

Status SqliteEngine::execute(const QString &sql)
{
    if (lost()) return lostStatus();
    return noted(sqlite3_exec(m_database, sql.toUtf8().constData(), nullptr, nullptr, nullptr));
}

Status SqliteEngine::runKept(std::unique_ptr<Statement> &statement, const QString &sql)
{
    if (!statement) statement = prepare(sql);
    if (!statement) return status();
    const auto step = statement->step();
    const Status outcome = step == Statement::Step::Failed ? statement->status() : Status{};
    statement->reset();
    return outcome;
}

Status SqliteEngine::begin(Transaction kind)
{
    // A commit must not meet a reader: what it waits for, it waits for here.
    if (kind == Transaction::Read) return runKept(m_begin[0], QStringLiteral("BEGIN"));
    const Status begun = runKept(m_begin[1], QStringLiteral("BEGIN EXCLUSIVE"));
    m_writing = m_writing || begun.ok();
    return begun;
}

Status SqliteEngine::commit()
{
    const Status committed = runKept(m_commit, QStringLiteral("COMMIT"));
    m_writing = m_writing && inTransaction();
    return committed;
}

void SqliteEngine::rollback()
{
    giveUp();
    m_writing = false;
}

void SqliteEngine::giveUp()
{
    if (inTransaction()) execute(QStringLiteral("ROLLBACK")).ignore();
}

bool SqliteEngine::inTransaction() const
{
    return m_database && sqlite3_get_autocommit(m_database) == 0;
}

Status SqliteEngine::setMark()
{
    return runKept(m_setMark, QStringLiteral("SAVEPOINT etape"));
}

Status SqliteEngine::dropMark()
{
    return runKept(m_dropMark, QStringLiteral("RELEASE etape"));
}

Status SqliteEngine::rollbackToMark()
{
    return execute(QStringLiteral("ROLLBACK TO etape; RELEASE etape"));
}

std::int64_t SqliteEngine::lastInsertedRow() const
{
    return sqlite3_last_insert_rowid(m_database);
}

int SqliteEngine::changedRows() const
{
    return sqlite3_changes(m_database);
}

Status SqliteEngine::status() const
{
    const int result = m_database ? sqlite3_extended_errcode(m_database) : SQLITE_CANTOPEN;
    if (statusCode(result) == Status::Code::Ok) return {};
    return {statusCode(result), QString::fromUtf8(m_database ? sqlite3_errmsg(m_database) : "closed")};
}

QString SqliteEngine::version() const
{
    return QString::fromLatin1(sqlite3_libversion());
}

} // namespace velmora::store
