#pragma once

#include "session/session.h"

#include <QStringList>

namespace velmora
{

/// A holiday as a row of the list: its date, two tabulations, its label.
[[nodiscard]] QString ligneferie(const JourFerie &jour);

/// All holidays as rows, by date.
[[nodiscard]] QStringList listeferies(Session &session);

/// The date that a row of a calendar's list begins with.
[[nodiscard]] QDate dateDeLigne(const QString &ligne);

/// The row to select once a holiday has been added, or -1: the first one that begins with its first date and
/// has its last date as characters 12 to 21. A row has two tabulations and no last date, so hardly any label
/// ever matches and the list shows no selection: this is wanted.
[[nodiscard]] int ligneAjoutee(const QStringList &lignes, const JourFerie &jour);

// Each of these says in a message why it does nothing, and then returns false. They use the store directly: a
// row that another workstation holds is not tried again.

/// Adds a holiday entered by hand, which no generation deletes, and puts `ferie` on it. Refused before
/// 1 January 1990 and on a date that has a row; `ferie` then stays where it was.
[[nodiscard]] bool ajouteferie(Session &session, const QDate &date, const QString &lib);

/// Changes the label of a date's holiday and puts `ferie` on it. From then on the row counts as generated,
/// also one entered by hand, and a generation that begins anew may delete it: this is wanted.
[[nodiscard]] bool modifieferie(Session &session, const QDate &date, const QString &lib);

/// Deletes a date's holiday once the user confirms. False without a message when the answer is no.
[[nodiscard]] bool supprferie(Session &session, const QDate &date);

} // namespace velmora
