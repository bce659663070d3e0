#pragma once

#include "store/status.h"

#include <QByteArray>
#include <QString>

namespace velmora::store
{

/// Keeps the place of copies to one session at a time, on this machine and on those that share the folder.
/// Its file stands beside the place and goes with the lock. What a kill leaves of it holds nobody up: the
/// next one takes it over, whoever made it.
class CopyingLock
{
public:
    explicit CopyingLock(const QString &target);
    ~CopyingLock();
    CopyingLock(const CopyingLock &) = delete;
    CopyingLock &operator=(const CopyingLock &) = delete;

    /// Takes the place without waiting; busy while another copy is made there.
    [[nodiscard]] Status take();

private:
    [[nodiscard]] bool isStillThere() const;

    QByteArray m_path;
    int m_handle = -1;
    bool m_held = false;
};

} // namespace velmora::store
