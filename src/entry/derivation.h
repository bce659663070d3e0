#pragma once

#include "entry/normalisation.h"
#include "store/rows.h"

namespace velmora
{

/// A worked day as it is stored, from the normalised texts of the entry: the slices as typed, the start and
/// the end of the day and its two cuts. `heurtrav` and `heurpaye` are the minutes of the text of the total,
/// which isn't computed again. The line, the date and the moment of writing (`nump`, `dat`, `datj`) are left
/// to the caller.
[[nodiscard]] JourSit jourDeSaisie(const SaisieHoraire::Textes &textes, const QString &total);

} // namespace velmora
