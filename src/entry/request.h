#pragma once

#include "session/session.h"

#include <optional>

namespace velmora
{

/// What a day entry is about, read once when its dialog opens.
struct JourneeSaisie {
    QDate dd; ///< first date
    QDate df; ///< last date, included
    int nump = 0;
    QString nom;                 ///< name of the line; empty without a line
    QString titre;               ///< of the entry: the line's heading with its dates
    std::optional<JourSit> jour; ///< hours stored for `dd`; those of the other dates are not looked at

    [[nodiscard]] bool existe() const { return jour.has_value(); }
};

/// Leaves in the session what a day entry is given: the line's heading, the date, and the last date of the
/// selection when there is one. False, with nothing changed, on a date outside the period of the current row
/// of `ligmois`: then the entry doesn't open.
[[nodiscard]] bool prepareSaisie(Session &session, const QString &entete, int numligne, const QDate &date,
                                 const std::optional<QDate> &finSelection = std::nullopt);

/// Reads what `saisdeb`, `saisfin`, `saisnom` and `saisligne` stand for. `ligmois` is on the line.
[[nodiscard]] JourneeSaisie journeeSaisie(Session &session);

} // namespace velmora
