#include "month/line_days.h"

#include "rules/walk.h"

#include <algorithm>

namespace velmora
{

namespace
{

using Colonnes = std::vector<int>;

Colonnes reunies(Colonnes colonnes, const Colonnes &autres)
{
    std::copy_if(autres.begin(), autres.end(), std::back_inserter(colonnes), [&](int autre) {
        return std::find(colonnes.begin(), colonnes.end(), autre) == colonnes.end();
    });
    return colonnes;
}

/// The columns that the cells read, and with them those that the line's rules read.
const Colonnes &colonnesLues(const Ligne &ligne)
{
    static const auto cases =
        store::Columns<JourSit>::of(&JourSit::dat, &JourSit::Val, &JourSit::heurdeb, &JourSit::heurfin,
                                    &JourSit::hideb, &JourSit::hifin, &JourSit::hideb2, &JourSit::hifin2);
    if (!aControles(ligne)) return cases;
    static const auto sansPause = reunies(cases, colonnesControlees(false));
    static const auto avecPause = reunies(cases, colonnesControlees(true));
    return controlePauses(ligne) ? avecPause : sansPause;
}

Etendue etendueLue(const Periode &periode, const Ligne &ligne)
{
    const QDate premier(periode.debgrille.year(), periode.debgrille.month(), 1);
    if (!aControles(ligne)) return {premier, periode.fingrille};
    const Etendue controlee = etendueControlee(ligne, periode.debgrille, periode.fingrille);
    return {std::min(premier, controlee.premier), std::max(periode.fingrille, controlee.dernier)};
}

} // namespace

/// One range serves cells and rules: a failure of its reading counts as one of the grid's.
SuiteJours joursDeLaGrille(Planning &planning, const Ligne &ligne)
{
    const Etendue etendue = etendueLue(planning.periode, ligne);
    SuiteJours jours(etendue.premier, etendue.dernier);
    planning.noteLecture(litSuite(planning.session, ligne.nump, colonnesLues(ligne), jours));
    return jours;
}

} // namespace velmora
