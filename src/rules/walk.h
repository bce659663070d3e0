#pragma once

#include "rules/day_reading.h"
#include "rules/weeks.h"

#include <vector>

namespace velmora
{

/// Whether a line has controls at all. Its four switches act together: one of them switches on every rule
/// whose limit isn't 0, and the rule of six days in a row. Wanted; only the rests over two weeks have a
/// switch of their own.
[[nodiscard]] bool aControles(const Ligne &ligne);

/// The Mondays that a walk goes from and to.
struct Lundis {
    QDate premier;
    QDate dernier;
};

/// First Monday from a date on and last one up to another, both within the line's own dates. Between two
/// Mondays the first comes after the last, and no day is walked.
[[nodiscard]] Lundis lundisDe(const Ligne &ligne, const QDate &debut, const QDate &fin);

/// First and last date of a run of days, both included.
struct Etendue {
    QDate premier;
    QDate dernier;
};

/// The days that the rules read: from the day before the first Monday to the end of the last window of rests.
[[nodiscard]] Etendue etendueControlee(const Ligne &ligne, const QDate &debut, const QDate &fin);
/// The columns that they read of them, with the slices only for the pauses.
[[nodiscard]] const std::vector<int> &colonnesControlees(bool pauses);
[[nodiscard]] inline bool controlePauses(const Ligne &ligne)
{
    return ligne.pause != 0;
}

/// In what the verdict and the report part. Each difference is wanted.
struct Maniere {
    /// The first Monday is judged against the schedule of the day before it.
    bool veilleJugee;
    /// The day before counts among the days in a row.
    bool veilleComptee;
    /// Once its week has had work, a day without work leaves its end of 0 as that of the last schedule. Else
    /// only a worked day leaves its end.
    bool finParSemaine;
    /// Weeks that are held; later ones aren't judged.
    std::size_t semainesMaxi;
};

inline constexpr Maniere maniereVerdict{true, false, true, 100};
inline constexpr Maniere maniereRapport{false, true, false, 500};

/// What a walk over the days found.
struct Parcours {
    Lundis lundis{};
    std::vector<Semaine> semaines{}; ///< the weeks judged: whole ones only, so not that of the last Monday
    QDate dernierJour{};             ///< last day that failed by itself or was one more than six; may be none
};

[[nodiscard]] Parcours parcourt(const Ligne &ligne, const SuiteJours &jours, const QDate &debut,
                                const QDate &fin, const Maniere &maniere);

} // namespace velmora
