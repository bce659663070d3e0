#pragma once

#include "store/status.h"

#include <QString>

namespace velmora::store
{

/// Saves what can be read of a damaged journal file into a new file beside it: each table is read forwards
/// and then backwards up to the damage. A file that another session holds, or that isn't a journal of this
/// system, is not touched and is a failure; so is a target that can't be written.
[[nodiscard]] Status salvageJournal(const QString &damaged, const QString &target);

} // namespace velmora::store
