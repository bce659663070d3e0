#pragma once

#include "month/planning.h"

namespace velmora
{

/// The colours that a cell has when it is neither highlighted nor selected.
[[nodiscard]] Couleurs couleursPropres(const Planning &planning, const Place &place);

/// Gives a cell its own colours. On the highlighted cell and on selected ones they wait as its saved colours.
void coloreCase(Planning &planning, const Place &place, QRgb fond, QRgb encre);

/// Moves the highlight to the current cell: the previous cell, its name and its day label get their colours
/// back, the current ones take the selection's. The cursor doesn't move.
void deplaceSurbrillance(Planning &planning);

/// Keeps the highlight on its cell after a row has been removed, or forgets it with the row.
void quitteRangee(Planning &planning, int rangee);

} // namespace velmora
