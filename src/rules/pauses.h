#pragma once

#include "store/rows.h"

namespace velmora
{

/// Whether the pauses between a day's slices satisfy a line's minimum in minutes; always with a minimum of 0.
/// More than 6 hours of work need a break of the minimum, the last break counting alone; more than 12 hours
/// need breaks of the minimum and 20 minutes together; no slice may pass 6 hours.
[[nodiscard]] bool pauseok(const JourSit &jour, int pause);

} // namespace velmora
