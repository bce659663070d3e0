#pragma once

#include "store/rows.h"

namespace velmora
{

/// What the walk keeps of a week.
struct Semaine {
    QDate lundi{};
    int semheures = 0;     ///< worked minutes
    int semrepos = 0;      ///< rests between two schedules that are too short
    bool sem6j = false;    ///< more than six days in a row were reached
    bool semjour = false;  ///< a day passed its hours
    bool semamp = false;   ///< a day passed its span
    bool sempause = false; ///< a day failed its pauses

    [[nodiscard]] QDate dimanche() const { return lundi.addDays(6); }
};

/// Whether the week's hours fail the line's limit. Reaching it is enough, unlike any other limit. Wanted.
[[nodiscard]] inline bool semaineTropLongue(const Ligne &ligne, const Semaine &semaine)
{
    return ligne.maxs > 0 && semaine.semheures >= ligne.maxs;
}

} // namespace velmora
