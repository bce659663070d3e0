#pragma once

#include "month/planning.h"

namespace velmora
{

/// Whether the cell belongs to the selection and carries its colours.
[[nodiscard]] bool estSelectionnee(const Planning &planning, const Place &place);

/// The left button goes down on the current cell: a selection that exists is removed and a new one begins
/// there. Does nothing on the last column or outside the lines.
void commenceSelection(Planning &planning);

/// The pointer is over a column while the left button drags: the selection grows to it on its own row, or
/// shrinks back. A column that is no day changes nothing. Back on the anchor the selection is empty, its end
/// before its start; that is wanted, and so is that nothing left of the anchor is ever selected.
void glisseSelection(Planning &planning, int colonne);

/// The left button comes up: the cursor goes to the start of the selection, and a selection of one day ends.
void finitSelection(Planning &planning);

/// Removes the selection and gives its cells their colours back.
void selvide(Planning &planning);

/// First and last column of what a command acts on: the selection from the current column on, or the current
/// column alone.
struct PlageJours {
    int premiere = 0;
    int derniere = 0;
};
[[nodiscard]] PlageJours plageCourante(const Planning &planning);

} // namespace velmora
