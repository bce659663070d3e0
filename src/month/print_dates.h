#pragma once

#include "month/planning.h"

namespace velmora
{

// What the print and export commands leave in the session for their dialogs. A total column stands for the
// day before it, whose date it holds.

/// For the monthly prints and the export: `impdate` the date of the current column, `impdeb` and `impfin` the
/// first and last day of its month, which needn't be the month opened.
void datesDuMois(Planning &planning);

/// For the print of the current line: the same, with its name in `saisdeb` and its number in `saisligne`.
void datesDeLigne(Planning &planning);

/// For the week print: `impdate` the date of the current column, `impdeb` and `impfin` the grid's bounds.
void datesDeSemaine(Planning &planning);

/// For the practised schedules: `impdate` and `impdeb` the grid's bounds; `impfin` is left as it is.
void datesDHoraires(Planning &planning);

} // namespace velmora
