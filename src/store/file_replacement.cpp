#include "store/file_replacement.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

namespace velmora::store
{

namespace
{

/// The new name outlives a stick that is pulled out. A file system that can't be told so is left to itself.
void syncFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
}

} // namespace

Status replaceFile(const QString &source, const QString &target)
{
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(source).toStdString(), QFile::encodeName(target).toStdString(),
                            error);
    if (error) return {Status::Code::Io, QString::fromStdString(error.message())};
    QFile::remove(target + QStringLiteral("-journal"));
    syncFolder(QFileInfo(target).path());
    return {};
}

} // namespace velmora::store
