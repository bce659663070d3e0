#pragma once

#include "month/absence_cells.h"
#include "session/day_hours.h"

#include <vector>

namespace velmora
{

/// A line as a print names it.
struct LigneImprimee {
    int nump = 0;
    QString nom;
};

/// The lines that are open on some date of a period, by name; those of a folder, or all for an empty name.
/// A list that can't be read ends where it fails and says so.
[[nodiscard]] std::vector<LigneImprimee> lignesImprimees(Session &session, const QDate &premier,
                                                         const QDate &dernier, const QString &dossier,
                                                         store::Status &statut);

/// The absence of a day, with its code's row unless the code is unknown.
struct AbsenceImprimee {
    QString codabs;
    std::optional<CodeAbsence> code;
    int minutes = 0; ///< what the day counts for
};

/// A line's day as the prints show it. A day may have both hours and an absence.
struct JourImprime {
    std::optional<Horaire> horaire; ///< the hours, when they count
    std::optional<AbsenceImprimee> absence;

    [[nodiscard]] int minutes() const { return horaire ? horaire->minutes : 0; }
    [[nodiscard]] int minutesAbsence() const { return absence ? absence->minutes : 0; }
};

/// The days of a line from one date to another, read in one pass. An absence whose day has the value of its
/// hours counts those that it covers: hours that count themselves aren't taken twice.
[[nodiscard]] std::vector<JourImprime> joursImprimes(Session &session, CodesAbsence &codes, int nump,
                                                     const QDate &premier, const QDate &dernier,
                                                     store::Status &statut);

/// What a day under an absence says of it: its code, " - " and the code's long label.
[[nodiscard]] QString motifabs(const AbsenceImprimee &absence);

} // namespace velmora
