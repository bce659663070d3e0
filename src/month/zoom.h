#pragma once

#include "month/day_bars.h"
#include "month/planning.h"

namespace velmora
{

/// A row of the day zoom: a line's day.
struct LigneZoom {
    int nump = 0;
    QString nom;
    QString marque;  ///< "*" when the line works that day or comes out of a night
    QString horaire; ///< what it works; the absence's code or "////" when it can't
    std::vector<Barre> barres;
};

/// One day of all lines of the month grid, in its order.
struct ZoomJour {
    QString titre; ///< "mercredi 3"
    std::vector<LigneZoom> lignes;
    store::Status lecture; ///< first failure of the tables
};

/// Reads a day of all lines, with the nights that the day before has begun. A day that doesn't count, for an
/// absence covers it, isn't shown: the absence is.
[[nodiscard]] ZoomJour zoomDuJour(Planning &planning, const QDate &date);

/// The heading of the times, and the titles of a row's texts, in their order: number, name, mark, times.
[[nodiscard]] QStringList titresZoom(const ZoomJour &zoom);
[[nodiscard]] QStringList textesZoom(const LigneZoom &ligne);

} // namespace velmora
