#pragma once

#include "rules/day_reading.h"

#include <vector>

namespace velmora
{

/// Days of a window.
inline constexpr int joursFenetre = 15;

/// Fifteen days from a Monday in which the rests don't come up to the line's counts.
struct FenetreRepos {
    QDate debut{};
    bool hebdo = false;    ///< too few rests of 24 hours
    bool contigus = false; ///< too few rests of 48 hours

    [[nodiscard]] QDate fin() const { return debut.addDays(joursFenetre - 1); }
};

/// The windows that fail, of those that start on each Monday from the first on to a week after the last. None
/// unless the line has the rests over two weeks on.
[[nodiscard]] std::vector<FenetreRepos> fenetresEnDefaut(const Ligne &ligne, const SuiteJours &jours,
                                                         const QDate &premierLundi,
                                                         const QDate &dernierLundi);

} // namespace velmora
