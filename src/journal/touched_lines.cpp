#include "journal/touched_lines.h"

#include <algorithm>

namespace velmora
{

namespace
{

const QDate dateNulle(1899, 12, 30);

void ouvre(LignesRejouees &rejeu, int nump, const QDate &premier, const QDate &dernier)
{
    const auto entree = static_cast<std::size_t>(rejeu.nbligrej++);
    rejeu.ligrej[entree] = nump;
    rejeu.debrej[entree] = premier;
    rejeu.finrej[entree] = dernier;
}

/// Takes the span into the line's entry. False when it has none and one is free. A third line widens the
/// second's entry and gets none of its own, on purpose.
bool etend(LignesRejouees &rejeu, int nump, const QDate &premier, const QDate &dernier)
{
    if (rejeu.nbligrej == 0) return false;
    const bool premiere = nump == rejeu.ligrej[0];
    if (!premiere && rejeu.nbligrej == 1) return false;
    const std::size_t entree = premiere ? 0 : 1;
    rejeu.debrej[entree] = std::min(rejeu.debrej[entree], premier);
    rejeu.finrej[entree] = std::max(rejeu.finrej[entree], dernier);
    return true;
}

} // namespace

void videSpans(LignesRejouees &rejeu)
{
    rejeu.debrej.fill(QDate(2009, 1, 1));
    rejeu.finrej.fill(QDate(1900, 1, 1));
}

void noteJour(LignesRejouees &rejeu, int nump, const QDate &dat)
{
    if (!etend(rejeu, nump, dat, dat)) ouvre(rejeu, nump, dat, dat);
}

void noteAbsence(LignesRejouees &rejeu, int nump, const QDate &datedeb, const QDate &datefin)
{
    if (etend(rejeu, nump, datedeb, datefin)) return;
    if (rejeu.nbligrej == 0)
        ouvre(rejeu, nump, datedeb, datefin);
    else
        ouvre(rejeu, nump, dateNulle, dateNulle);
}

} // namespace velmora
