#pragma once

#include "month/planning.h"

namespace velmora
{

// How the month's grid follows the commands on lines: only the rows concerned change. A failure of the tables
// is told.

/// Whether the grid takes one more line; a message says when not. The test is for 1000 rows and not for more,
/// so that a grid which its load has brought past them doesn't refuse. Wanted.
[[nodiscard]] bool ligneAdmise(const Planning &planning);

/// Adds a row, before the row of totals, for every line of the period that the grid doesn't show yet: the new
/// one, those of other workstations, and those that the folder leaves out, since the folder counts again at
/// the next opening only. Wanted. A failure is left in `planning.lecture`.
void ajouteLignesAbsentes(Planning &planning);

/// The same after a new line, in the open month.
void suitNouvelleLigne(Planning &planning);

/// A line's dates have changed: its row is built again, or removed when the line now ends before the grid.
void suitDates(Planning &planning, int nump);

/// A line has another name.
void suitNom(Planning &planning, int nump);

/// A line's controls have changed: the state of its controls is computed again.
void suitControles(Planning &planning, int nump);

/// Whether a line may be deleted; a message says that the only one shown may not, whatever lines there are
/// outside the period.
[[nodiscard]] bool ligneSupprimable(const Planning &planning);

/// A line was deleted: its row goes and the cursor to the row before, or stays on the first one.
void suitSuppression(Planning &planning, int nump);

} // namespace velmora
