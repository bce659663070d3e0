#include "lines/month_lines.h"

#include "month/line_state.h"
#include "month/loading.h"
#include "month/refresh.h"
#include "month/rows.h"
#include "session/batch.h"

#include <algorithm>
#include <optional>

namespace velmora
{

namespace
{

constexpr int rangeesMaxi = 1000;

/// The line as it is now; nothing, after a message, when it can't be read.
std::optional<Ligne> ligneActuelle(Planning &planning, int nump)
{
    auto &ligmois = planning.session.base.ligmois;
    ligmois.setIndex("ligmois01");
    if (ligmois.seek(store::Cmp::Eq, {nump})) return ligmois.row();
    ditErreurBase(planning);
    return std::nullopt;
}

/// Adds a line's row. One that can't be read to the end is taken out again.
void ajouteRangee(Planning &planning, const Ligne &ligne)
{
    chargeligne(planning, ligne);
    const int rangee = planning.grille.derniereLigne() - 1;
    if (planning.lecture.ok())
        ajoutetotal(planning, rangee);
    else
        planning.grille.retireLigne(rangee);
}

} // namespace

bool ligneAdmise(const Planning &planning)
{
    if (planning.grille.lignes() != rangeesMaxi) return true;
    planning.session.host.message(QStringLiteral("Limite de lignes atteinte pour la période !"), titre);
    return false;
}

void ajouteLignesAbsentes(Planning &planning)
{
    const DessinSuspendu dessin(planning.grille);
    const ReadPass lecture(planning.session.base.engine);
    planning.lecture = {};
    auto lignes = planning.session.base.ligmois.range("ligmois02", {}, {});
    while (planning.lecture.ok() && lignes.next()) {
        const Ligne &ligne = lignes.row();
        if (dansPeriode(ligne, planning.periode) && planning.grille.ligneDe(ligne.nump) < 0)
            ajouteRangee(planning, ligne);
    }
    planning.noteLecture(lignes.status());
}

void suitNouvelleLigne(Planning &planning)
{
    const TravailGrille travail(planning);
    ajouteLignesAbsentes(planning);
    if (!planning.lecture.ok()) ditErreurBase(planning);
}

void suitDates(Planning &planning, int nump)
{
    const int rangee = planning.grille.ligneDe(nump);
    const auto ligne = ligneActuelle(planning, nump);
    if (rangee < 0 || !ligne) return;
    const TravailGrille travail(planning);
    if (ligne->datefin < planning.periode.debgrille)
        retireRangee(planning, rangee);
    else
        majlignecomplet(planning, *ligne, rangee);
}

void suitNom(Planning &planning, int nump)
{
    const int rangee = planning.grille.ligneDe(nump);
    const auto ligne = ligneActuelle(planning, nump);
    if (rangee >= 0 && ligne) planning.grille.ecrit(rangee, Grille::colonneNom, ligne->nom);
}

void suitControles(Planning &planning, int nump)
{
    if (const auto ligne = ligneActuelle(planning, nump)) refaitControles(planning, *ligne);
}

bool ligneSupprimable(const Planning &planning)
{
    if (planning.grille.derniereLigne() - Grille::lignesFixes > 1) return true;
    planning.session.host.message(QStringLiteral("Vous devez avoir au moins une ligne: modifiez la !"),
                                  titre);
    return false;
}

void suitSuppression(Planning &planning, int nump)
{
    const int rangee = planning.grille.ligneDe(nump);
    if (rangee < 0) return;
    const TravailGrille travail(planning);
    retireRangee(planning, rangee);
    planning.curseur.ligne = std::max(rangee - 1, Grille::lignesFixes);
}

} // namespace velmora
