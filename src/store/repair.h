#pragma once

#include "store/status.h"

#include <QString>

namespace velmora::store
{

/// Puts in the place of a damaged journal file a new one with what can be read of it: each table is read
/// forwards and then backwards up to the damage. A ring of operations that has lost slots gets them back as
/// free ones, and the ages of the others close up; one without its head row is dropped with its images. The
/// new file is made under `work`, in the same folder, and takes the place of the old one whole or not at all,
/// while the old one is locked. A file that another session holds, that can't be written or that isn't a
/// journal of this system is a failure and keeps its content, but for an unfinished transaction, which the
/// engine undoes as at any opening.
[[nodiscard]] Status repairJournal(const QString &damaged, const QString &work);

} // namespace velmora::store
