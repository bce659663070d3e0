#pragma once

#include "rules/day_reading.h"

namespace velmora
{

/// The report of a line's failures between two dates, read over their `etendueControlee`, under its name.
/// Empty for none, and for a line without controls.
[[nodiscard]] QString rapportcontrole(const Ligne &ligne, const SuiteJours &jours, const QDate &debut,
                                      const QDate &fin);

} // namespace velmora
