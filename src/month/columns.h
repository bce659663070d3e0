#pragma once

#include "month/grid.h"
#include "month/period.h"

#include <functional>
#include <vector>

namespace velmora
{

/// What each grid column is: a date, or one of the totals that stand among the dates. The arrays are indexed
/// by grid column, `coljour` by date rank from 1.
struct Colonnes {
    std::vector<QDate> datecol; ///< of a total column, the date of the day before it
    std::vector<int> coljour;   ///< column of the date
    std::vector<bool> coltot;   ///< a total column
    std::vector<bool> colsem;   ///< a week total
    std::vector<bool> colmois;  ///< the total of the month shown
    std::vector<bool> colavant; ///< the total of the month before
    std::vector<bool> colapres; ///< the total of another month
    std::vector<QRgb> fondjour; ///< the background that the date gives to the cells of its column

    [[nodiscard]] int nombre() const { return static_cast<int>(datecol.size()); }
    [[nodiscard]] bool estJour(int colonne) const
    {
        return colonne >= Grille::colonnesFixes && colonne < nombre() &&
               !coltot[static_cast<std::size_t>(colonne)];
    }
    /// The column of a date of the period, or -1.
    [[nodiscard]] int colonneDe(const QDate &date) const;
};

/// What the header needs to know beside the period.
struct ContexteEntete {
    QDate aujourdhui;
    int modecellule = 1;
    Mesures mesures;
    std::function<bool(const QDate &)> jourferie;
};

/// The columns of a period in their order: each date, after a Sunday its week's total, after the last day of
/// a month the month's total.
[[nodiscard]] Colonnes colonnesDe(const Periode &periode);

/// Sizes the grid for the columns and writes its three header rows: month, week and day labels with their
/// colours, and the width of each column. Fills `fondjour`.
void ecritEntete(Grille &grille, Colonnes &colonnes, const Periode &periode, const ContexteEntete &contexte);

/// "Juin / 2026".
[[nodiscard]] QString libelleMois(const QDate &date);

} // namespace velmora
