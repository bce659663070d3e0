#include "rules/verdict.h"

#include "rules/rest_windows.h"
#include "rules/walk.h"

namespace velmora
{

Controle controlligne(const Ligne &ligne, const SuiteJours &jours, const QDate &debut, const QDate &fin)
{
    Controle controle{.presents = aControles(ligne)};
    if (!controle.presents) return controle;
    const Parcours parcours = parcourt(ligne, jours, debut, fin, maniereVerdict);
    if (parcours.dernierJour.isValid()) controle.echec = parcours.dernierJour;
    for (const Semaine &semaine : parcours.semaines)
        if (semaineTropLongue(ligne, semaine)) controle.echec = semaine.dimanche();
    for (const Semaine &semaine : parcours.semaines)
        if (semaine.semrepos > 0) controle.echec = semaine.dimanche();
    const Lundis &lundis = parcours.lundis;
    const auto fenetres = fenetresEnDefaut(ligne, jours, lundis.premier, lundis.dernier);
    if (!fenetres.empty()) controle.echec = fenetres.back().debut;
    return controle;
}

} // namespace velmora
