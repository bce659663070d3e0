#pragma once

#include "rules/day_reading.h"

namespace velmora
{

/// A line's verdict.
struct Controle {
    bool presents = false;   ///< the line has controls at all
    QDate echec{1900, 1, 1}; ///< date of the last failure found; 01/01/1900 for none
};

/// Judges a line's days between two dates, read over their `etendueControlee`. The last failure found isn't
/// the one of the latest date: days come first, then hours of the weeks, rests between schedules, windows of
/// rests. Wanted.
[[nodiscard]] Controle controlligne(const Ligne &ligne, const SuiteJours &jours, const QDate &debut,
                                    const QDate &fin);

} // namespace velmora
