#pragma once

#include "store/engine.h"

#include <functional>

namespace velmora::store
{

/// Told how far a copy has come, in pages out of all.
using CopyProgress = std::function<void(int done, int total)>;

/// How the copy of a file ended.
struct CopyOutcome {
    enum class Fault {
        None,
        Source, ///< the file to copy is missing, held by another session or unreadable
        Target, ///< its new place is gone, full, can't be written
        Copy    ///< the copy was made and wasn't sound, since the file isn't
    };

    Fault fault = Fault::None;
    Status status{};

    [[nodiscard]] bool ok() const { return fault == Fault::None; }
};

struct CopyOptions {
    /// How long the copy waits for another session's lock.
    std::chrono::milliseconds busyWait = OpenOptions().busyWait;
    CopyProgress progress{};
};

/// Puts a copy of a database file at `target`, over what is there; whoever calls it has the place's
/// `CopyingLock`. All of the file is read under one lock, so that the copy is one state of it. A session
/// that writes meanwhile waits, and while it waits whoever begins to read does too; after its busy wait its
/// write fails. The lock is let go before the copy is synchronised. Before it takes its place the copy is on
/// the disk, opened read-only and checked whole: on a failure the place keeps the file that it had, and
/// nothing else is left there. Its name is on the disk too when this returns.
[[nodiscard]] CopyOutcome copyDatabase(const QString &source, const QString &target,
                                       const CopyOptions &options = {});

} // namespace velmora::store
