#pragma once

#include "month/planning.h"
#include "session/day_run.h"

namespace velmora
{

/// Closes the days of a row outside its line's dates ("////") and empties the others.
void marqueferme(Planning &planning, const Ligne &ligne, int rangee);

/// Computes the row's `avantmois`: the minutes of the first days of the month before, ahead of the grid.
/// Every day with a row counts, valid or not, and absences don't enter it. This difference from the cells is
/// wanted.
void sommeavant(Planning &planning, const SuiteJours &jours, int rangee);

/// Fills every cell of a row from the line's days and the tables of absences, with its week and month totals.
/// A failure of the tables is left in `planning.lecture`.
void rempligne(Planning &planning, int nump, const SuiteJours &jours, int rangee);

/// Takes the row's minutes out of every column total and clears them.
void soustotal(Planning &planning, int rangee);

/// Adds the row's minutes to every column total and writes the row of totals.
void ajoutetotal(Planning &planning, int rangee);

/// Refills a row after an edit of its line, with the column totals, the mark of its controls and the state of
/// the commands. When the
/// tables can't be read to the end, the row keeps what it showed and a message says so.
void majligne(Planning &planning, int nump, int rangee);

/// The same for a line whose dates changed too.
void majlignecomplet(Planning &planning, const Ligne &ligne, int rangee);

/// Removes a row with its share of the column totals, and the selection. The highlight, if it was on that
/// row, is forgotten; the cursor is left to the caller.
void retireRangee(Planning &planning, int rangee);

/// Reloads the rows of the lines that the last undo or redo touched, two at the most.
void refaitLignesRejouees(Planning &planning);

/// Shows the totals in hundredths of an hour (`mnucent`) or in hours and minutes (`mnuhm`). Only the texts
/// change; the tables aren't read.
void choisitCentiemes(Planning &planning, bool centiemes);

/// Writes the row of totals from the column totals.
void ecritTotaux(Planning &planning);

/// The text of a closed day.
[[nodiscard]] QString texteFerme();

} // namespace velmora
