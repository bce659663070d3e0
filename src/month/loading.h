#pragma once

#include "month/planning.h"

#include <functional>

namespace velmora
{

/// What the build of a month calls back.
struct Chargement {
    std::function<void(int valeur)> progres{}; ///< the progress bar's value, from 1
    std::function<bool()> nouvelleligne{};     ///< opens the new line dialog; true when a line came of it
};

/// Lines open in the period, of every folder: the scale of the progress bar. A failure shortens the scale and
/// is told by the load, which reads the same lines.
[[nodiscard]] int compteLignes(Session &session, const Periode &periode);

/// Whether the folder filter lets a line through: it is empty, or the folder holds the line.
[[nodiscard]] bool ligdossier(Session &session, int nump);

/// Builds the whole grid: header, lines by name, totals, cursor. False when no line is shown and none is
/// made, or, after a message, when the tables can't be read to the end: the form then closes.
[[nodiscard]] bool chargi(Planning &planning, const Chargement &chargement);

/// Adds the row of a line before the row of totals and fills it. Column totals are left to the caller.
void chargeligne(Planning &planning, const Ligne &ligne);

/// The first column in view so that the cursor's column is: from `planning.colonneGauche` on by eights, four
/// times at most.
[[nodiscard]] int ajusteGauche(const Planning &planning,
                               const std::function<bool(int gauche)> &curseurVisible);

} // namespace velmora
