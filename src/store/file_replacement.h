#pragma once

#include "store/status.h"

#include <QString>

namespace velmora::store
{

/// Puts a closed database file in the place of another of the same folder, whole or not at all. An unfinished
/// transaction of the old content goes with it. The change is on the disk when this returns.
[[nodiscard]] Status replaceFile(const QString &source, const QString &target);

} // namespace velmora::store
