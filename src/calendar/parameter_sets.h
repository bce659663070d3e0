#pragma once

#include "calendar/holiday_generation.h"

#include <QStringList>

namespace velmora
{

/// A parameter set as a row of the list; it begins with the date.
[[nodiscard]] QString lignejeu(const JeuParam &jeu);

/// All sets as rows, by date.
[[nodiscard]] QStringList listejeux(Session &session);

/// Puts `parcg` on the set of exactly this date. False when there is none.
[[nodiscard]] bool placejeu(Session &session, const QDate &date);

/// Deletes a date's set once the user confirms; the holidays stay as they are. False when it is still there.
[[nodiscard]] bool supprjeu(Session &session, const QDate &date);

/// Whether the list may close: a set applies today, or the user leaves all the same.
[[nodiscard]] bool peutfermer(Session &session);

/// What the entry of a set holds.
struct SaisieJeu {
    QString dat;
    int region = 0;
    QString nometab;
};

/// What the entry starts with. To add: today, with the region and the name of the last set; else the current
/// set of `parcg`. The session takes the name.
[[nodiscard]] SaisieJeu saisieDepart(Session &session);

/// Whether a set may be stored: one that is added has no date of another, which is told.
[[nodiscard]] bool contg(Session &session, const QString &dat);

/// Stores what was entered, as a new set or in the set of its date, and puts `parcg` on it; the session takes
/// the name. False when it was refused, which is told, or given up.
[[nodiscard]] bool enregistrejeu(Session &session, const SaisieJeu &saisie);

/// What the holidays are asked for once the current set of `parcg` is stored. They begin anew from its date
/// even when the region stands unchanged: this is wanted.
[[nodiscard]] DemandeFeries demandeDuJeu(Session &session);

} // namespace velmora
