#include "store/copying_lock.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora::store
{

namespace
{

/// Opens the file, made for every user: the next to need it may be another one than the first.
int openShared(const char *path)
{
    constexpr mode_t everybody = 0666;
    for (;;) {
        const int made = ::open(path, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, everybody);
        if (made >= 0) ::fchmod(made, everybody); // past the process's mask
        if (made >= 0 || errno != EEXIST) return made;
        const int found = ::open(path, O_RDWR | O_NOFOLLOW | O_CLOEXEC);
        if (found >= 0 || errno != ENOENT) return found; // else it has just gone
    }
}

/// Whether another process has the file. A file system that knows no locks is left to itself.
bool isTaken(int handle)
{
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    // Held by this handle and not by the process: two sessions of one process stand apart as well.
    return ::fcntl(handle, F_OFD_SETLK, &whole) != 0 && (errno == EAGAIN || errno == EACCES);
}

Status failure(int error)
{
    const bool full = error == ENOSPC || error == EDQUOT;
    return {full ? Status::Code::Full : Status::Code::CantOpen, QString::fromLocal8Bit(std::strerror(error))};
}

} // namespace

CopyingLock::CopyingLock(const QString &target)
    : m_path(QFile::encodeName(target + QStringLiteral(".verrou")))
{
}

CopyingLock::~CopyingLock()
{
    if (m_held) ::unlink(m_path.constData()); // while it is held, so that it is ours
    if (m_handle >= 0) ::close(m_handle);
}

Status CopyingLock::take()
{
    m_handle = openShared(m_path.constData());
    if (m_handle < 0) return failure(errno);
    m_held = !isTaken(m_handle) && isStillThere();
    return m_held ? Status{} : Status{Status::Code::Busy, QStringLiteral("another copy is made there")};
}

/// Whoever had the lock may have removed its file between our opening and our locking it.
bool CopyingLock::isStillThere() const
{
    struct stat held = {};
    struct stat named = {};
    return ::fstat(m_handle, &held) == 0 && ::lstat(m_path.constData(), &named) == 0 &&
           held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

} // namespace velmora::store
