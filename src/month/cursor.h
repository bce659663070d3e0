#pragma once

#include "month/planning.h"

namespace velmora
{

/// A column or row below this width or height, in twips, counts as hidden.
inline constexpr int tailleVisible = 150;

/// Keeps the cursor on real cells after it has moved: it skips total columns, hidden columns and hidden rows
/// in the direction of travel, and stays within the lines. Notes the final cell as the one left next. Does
/// nothing while the grid doesn't react.
void entreCellule(Planning &planning);

/// Whether the cursor's date lies within the dates of the current row of `ligmois`.
[[nodiscard]] bool jourDeLigne(const Planning &planning);

/// First and last day column that isn't hidden.
[[nodiscard]] int premierJourVisible(const Planning &planning);
[[nodiscard]] int dernierJourVisible(const Planning &planning);

/// Widens the day and total columns by so many twips. False, with nothing changed, when a width would fall
/// below 5.
[[nodiscard]] bool etireColonnes(Grille &grille, int twips);

/// Heightens the rows from the day labels to the last line by so many twips. That the row of the day labels
/// stretches with the lines is wanted.
void etireLignes(Grille &grille, int twips);

} // namespace velmora
