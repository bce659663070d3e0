#pragma once

#include "session/day_run.h"

namespace velmora
{

/// What the rules know of a day's hours, in minutes: all 0 without hours, and under an absence.
struct JourLu {
    int hjour = 0;    ///< worked time
    int hdebjour = 0; ///< its start
    int hfinjour = 0; ///< its end on the day's own scale: beyond 1440 after midnight

    [[nodiscard]] bool travaille() const { return hjour > 0; }
};

[[nodiscard]] JourLu lirejour(const SuiteJours &jours, const QDate &date);

/// The row of a date whatever its `Val`, or null when the date has none.
[[nodiscard]] const JourSit *existejour(const SuiteJours &jours, const QDate &date);

} // namespace velmora
