#pragma once

#include "store/rows.h"

namespace velmora
{

/// The times of a day's hours and its worked minutes. `minutes` is (heurfin - heurdeb) - (hifin - hideb) -
/// (hifin2 - hideb2) with every time below `heurdeb` counted on into the next day; the times are on the
/// clock, 0 to 1440.
struct Horaire {
    int heurdeb = 0;
    int heurfin = 0;
    int hideb = 0;
    int hifin = 0;
    int hideb2 = 0;
    int hifin2 = 0;
    int minutes = 0;

    [[nodiscard]] bool premiereCoupe() const { return hifin != hideb; }
    [[nodiscard]] bool secondeCoupe() const { return hifin2 != hideb2; }
};

[[nodiscard]] Horaire horaireDuJour(const JourSit &jour);

} // namespace velmora
