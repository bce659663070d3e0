#pragma once

#include "store/rows.h"

#include <QDate>
#include <QString>

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
};

/// "NOM le 03/06/2026" for one day, "NOM du 03/06/2026 au 05/06/2026" for several.
[[nodiscard]] QString titreSaisie(const QString &saisnom, const QString &saisdeb, const QString &saisfin);

/// Whether the entry opens on a date: only within the period of its line.
[[nodiscard]] bool saisiePossible(const Ligne &ligne, const QDate &date);

} // namespace velmora
