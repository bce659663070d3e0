#pragma once

#include <QDate>

#include <array>

namespace velmora
{

/// What the last replay touched, for the month to reload: `nbligrej` entries, at most two, each with a line
/// and its first and last date. An entry whose first date is after its last touches nothing.
struct LignesRejouees {
    int nbligrej = 0;
    std::array<int, 2> ligrej{}; ///< `nump`
    std::array<QDate, 2> debrej;
    std::array<QDate, 2> finrej;
};

/// Makes both spans empty. The count of entries stays as it is.
void videSpans(LignesRejouees &rejeu);

/// Notes that a day was played.
void noteJour(LignesRejouees &rejeu, int nump, const QDate &dat);

/// Notes that an absence was played. A second line's span starts from the null date, 30/12/1899, at both
/// ends and is then only extended. Wanted.
void noteAbsence(LignesRejouees &rejeu, int nump, const QDate &datedeb, const QDate &datefin);

} // namespace velmora
