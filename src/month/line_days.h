#pragma once

#include "month/planning.h"
#include "session/day_run.h"

namespace velmora
{

/// A line's days of the grid and, for a line with controls, those around it that the rules read, in one pass.
/// They begin at the first of the month of the grid's first date. A failure of the table is left in
/// `planning.lecture`.
[[nodiscard]] SuiteJours joursDeLaGrille(Planning &planning, const Ligne &ligne);

} // namespace velmora
