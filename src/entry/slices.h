#pragma once

#include "store/rows.h"

#include <array>
#include <vector>

// The three slices of work of a day, as plain values, and the rules between them.
namespace velmora
{

/// One slice of work, in minutes of the day. Equal ends are an empty slice; an end before the start runs
/// over midnight.
struct Tranche {
    int deb = 0;
    int fin = 0;

    [[nodiscard]] bool vide() const { return deb == fin; }
    [[nodiscard]] bool passeMinuit() const { return fin < deb; }
    /// Length in minutes, 0 to 1440.
    [[nodiscard]] int minutes() const { return fin - deb + (passeMinuit() ? minutesParJour : 0); }
    bool operator==(const Tranche &) const = default;
};

using Tranches = std::array<Tranche, 3>;

/// A stretch of the hour bar in minutes from the 0h00 of the first day: `b` passes 1440 after midnight.
struct Trait {
    int a = 0;
    int b = 0;
    bool operator==(const Trait &) const = default;
};

/// Whether a value is a moment of the day: 0 to 1440, both included.
[[nodiscard]] bool dansLeJour(int minutes);

/// Every slice after an empty one takes its bounds.
void cascade(Tranches &tranches);

/// A slice that starts before the end of the one before it: an empty one moves to that end, a normal one is
/// cut to start there, one that runs over midnight is left as it is.
void enchaine(Tranches &tranches);

/// Moves each empty slice from index `premier` on to the end that precedes it: `x` at first, then the end of
/// the last slice that isn't empty.
void chaineVides(Tranches &tranches, std::size_t premier, int x);

/// Worked minutes of the three slices.
[[nodiscard]] int totalMinutes(const Tranches &tranches);

/// Whether the hour bar shows the night scale: a slice runs over midnight, and neither it nor a slice before
/// it starts before 9h00.
[[nodiscard]] bool echelleDeNuit(const Tranches &tranches);

/// The stretches to paint, empty slices left out. From the first slice over midnight on they lie a day later.
[[nodiscard]] std::vector<Trait> traits(const Tranches &tranches);

} // namespace velmora
