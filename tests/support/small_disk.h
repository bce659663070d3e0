#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <sys/mount.h>

namespace velmora::test
{

/// A disk of a few kilobytes, for as long as this lives. Only a privileged process can have one.
class SmallDisk
{
public:
    explicit SmallDisk(const char *options)
        : m_mounted(mount("velmora", path().constData(), "tmpfs", 0, options) == 0)
    {
    }
    ~SmallDisk()
    {
        if (m_mounted) umount2(path().constData(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    [[nodiscard]] bool mounted() const { return m_mounted; }
    [[nodiscard]] QString folder() const { return m_directory.path(); }

private:
    [[nodiscard]] QByteArray path() const { return QFile::encodeName(m_directory.path()); }

    QTemporaryDir m_directory;
    bool m_mounted;
};

} // namespace velmora::test
