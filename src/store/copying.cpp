#include "store/copying.h"

#include "store/file_replacement.h"
#include "store/integrity.h"
#include "store/sqlite_engine.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <sqlite3.h>

namespace velmora::store
{

namespace
{

Q_LOGGING_CATEGORY(logStore, "velmora.store")

using Fault = CopyOutcome::Fault;

constexpr int pagesPerStep = 1024;

/// A bare connection, which the engine's own copy works on.
class Connection
{
public:
    Connection() = default;
    ~Connection() { sqlite3_close_v2(m_database); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    [[nodiscard]] Status open(const QString &path, int flags)
    {
        const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &m_database,
                                           flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
        return status(result);
    }
    void waitForLocks(std::chrono::milliseconds longest)
    {
        sqlite3_busy_timeout(m_database, static_cast<int>(longest.count()));
    }
    [[nodiscard]] Status execute(const char *sql)
    {
        return status(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr));
    }
    [[nodiscard]] Status status(int result) const { return noted(result, sqlite3_errmsg(m_database)); }
    /// Puts what has been written to the disk. The engine itself is told not to.
    [[nodiscard]] Status synchronise()
    {
        sqlite3_file *file = nullptr;
        sqlite3_file_control(m_database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
        const int result = file->pMethods->xSync(file, SQLITE_SYNC_FULL);
        return noted(result, sqlite3_errstr(result));
    }
    [[nodiscard]] sqlite3 *get() const { return m_database; }

private:
    static Status noted(int result, const char *utf8)
    {
        if (statusCode(result) == Status::Code::Ok) return {};
        qCWarning(logStore, "copy %d: %s", result, utf8);
        return {statusCode(result), QString::fromUtf8(utf8)};
    }

    sqlite3 *m_database = nullptr;
};

CopyOutcome outcome(Fault fault, const Status &status)
{
    return status.ok() ? CopyOutcome{} : CopyOutcome{fault, status};
}

/// To the engine an empty file is a sound database.
Status checkSource(const QString &source)
{
    const QFileInfo file(source);
    if (!file.isFile()) return {Status::Code::CantOpen, QStringLiteral("there is no such file")};
    if (file.size() == 0) return {Status::Code::NotADatabase, QStringLiteral("the file is empty")};
    return {};
}

/// Opens the file and holds it against writers until the connection goes.
Status holdSource(Connection &from, const QString &source, std::chrono::milliseconds busyWait)
{
    Status status = checkSource(source);
    if (status.ok()) status = from.open(source, SQLITE_OPEN_READWRITE);
    if (!status.ok()) return status;
    from.waitForLocks(busyWait);
    return from.execute("BEGIN; SELECT count(*) FROM sqlite_master");
}

/// Makes the new file. Nobody else knows it, and half of it is thrown away: it needs no journal, and is put
/// to the disk once it is complete.
Status makeTarget(Connection &to, const QString &work)
{
    const Status status = to.open(work, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    return status.ok() ? to.execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF") : status;
}

Fault faultOf(int result)
{
    const bool read = result == SQLITE_IOERR_READ || result == SQLITE_IOERR_SHORT_READ;
    switch (statusCode(result)) {
    case Status::Code::Busy:
    case Status::Code::Damaged:
    case Status::Code::NotADatabase: return Fault::Source;
    default: return read ? Fault::Source : Fault::Target;
    }
}

CopyOutcome copyPages(const Connection &from, const Connection &to, const CopyProgress &progress)
{
    sqlite3_backup *const backup = sqlite3_backup_init(to.get(), "main", from.get(), "main");
    if (!backup) return outcome(Fault::Target, to.status(sqlite3_extended_errcode(to.get())));
    int result = SQLITE_OK;
    while (result == SQLITE_OK) {
        result = sqlite3_backup_step(backup, pagesPerStep);
        const int total = sqlite3_backup_pagecount(backup);
        if (progress && statusCode(result) == Status::Code::Ok)
            progress(total - sqlite3_backup_remaining(backup), total);
    }
    sqlite3_backup_finish(backup);
    return outcome(faultOf(result), to.status(result));
}

CopyOutcome copyLocked(const QString &source, const Connection &to, const CopyOptions &options)
{
    Connection from;
    const Status status = holdSource(from, source, options.busyWait);
    return status.ok() ? copyPages(from, to, options.progress) : CopyOutcome{Fault::Source, status};
}

/// The lock on the file to copy covers the reading alone: a slow disk holds up nobody else.
CopyOutcome transfer(const QString &source, const QString &work, const CopyOptions &options)
{
    Connection to;
    const Status status = makeTarget(to, work);
    if (!status.ok()) return {Fault::Target, status};
    const CopyOutcome copy = copyLocked(source, to, options);
    return copy.ok() ? outcome(Fault::Target, to.synchronise()) : copy;
}

/// Reads the copy back. What can't be read is the place's fault, unsound content the original's.
CopyOutcome checkCopy(const QString &work)
{
    SqliteEngine engine;
    Status status = engine.open(work, {.readOnly = true});
    if (status.ok()) status = checkIntegrity(engine);
    const bool unsound =
        status.code() == Status::Code::Damaged || status.code() == Status::Code::NotADatabase;
    return outcome(unsound ? Fault::Copy : Fault::Target, status);
}

} // namespace

CopyOutcome copyDatabase(const QString &source, const QString &target, const CopyOptions &options)
{
    const QString work = target + QStringLiteral(".partiel");
    QFile::remove(work); // of a copy that was killed
    CopyOutcome copy = transfer(source, work, options);
    if (copy.ok()) copy = checkCopy(work);
    if (copy.ok()) copy = outcome(Fault::Target, replaceFile(work, target));
    if (!copy.ok()) QFile::remove(work);
    return copy;
}

} // namespace velmora::store
