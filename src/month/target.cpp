#include "month/target.h"

#include "month/selection.h"

namespace velmora
{

std::optional<Cible> cibleCourante(Planning &planning)
{
    const int rangee = planning.curseur.ligne;
    if (!planning.grille.estLigne(rangee)) return std::nullopt;
    auto &ligmois = planning.session.base.ligmois;
    ligmois.setIndex("ligmois01");
    if (!ligmois.seek(store::Cmp::Eq, {planning.grille.numligne(rangee)})) return std::nullopt;
    const PlageJours plage = plageCourante(planning);
    Cible cible{ligmois.row(), rangee, planning.date(plage.premiere), planning.date(plage.derniere)};
    cible.ligne.nom = planning.grille.lit(rangee, Grille::colonneNom).texte;
    return cible;
}

} // namespace velmora
