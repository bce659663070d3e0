#pragma once

#include "month/planning.h"
#include "rules/verdict.h"

namespace velmora
{

/// What a state cell shows of a verdict.
struct Etat {
    QString texte;
    QRgb encre = palette::encre;
};

/// The state of a line with controls in a view that begins at a date: "Pb" for a failure after today, in its
/// own colour, or from the view's first date on; else "Ok". An earlier failure leaves "Ok". Wanted.
/// `enteteOk` tells that the header of the state column reads "Ok".
[[nodiscard]] Etat etatDe(const Controle &controle, const QDate &debut, const QDate &aujourdhui,
                          bool enteteOk = false);

/// Writes the state cell of a row from its line's days. A line without controls leaves the cell as it is,
/// also one that had some. Wanted. The first line with controls opens the column.
void marqueControles(Planning &planning, const Ligne &ligne, int rangee, const SuiteJours &jours);

/// Judges a line anew and marks its row, after a change of its limits. A line that isn't shown does nothing.
void refaitControles(Planning &planning, const Ligne &ligne);

/// Shows the report of a line over the grid's dates, then marks its row anew.
void montreRapport(Planning &planning, const Ligne &ligne);

} // namespace velmora
