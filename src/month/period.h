#pragma once

#include "store/rows.h"

#include <QDate>

namespace velmora
{

/// The dates that a month's grid spans, from a Monday to a Sunday, with the months around it.
struct Periode {
    QDate premier; ///< first of the month shown
    QDate debgrille;
    QDate fingrille;
    int moisavant = 0; ///< number of the month before, 1 to 12
    int moisvu = 0;
    int moisapres = 0;
};

/// The period of the grid that shows a month: from the Monday on or before 27 days ahead of its first to the
/// Sunday on or after the end of the month that holds its 57th day. Invalid dates for a month outside 1 to
/// 12.
[[nodiscard]] Periode periodeDuMois(int mois, int annee);

/// Whether a line is open on some date of the period.
[[nodiscard]] bool dansPeriode(const Ligne &ligne, const Periode &periode);

} // namespace velmora
