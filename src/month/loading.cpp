#include "month/loading.h"

#include "folders/membership.h"
#include "month/cursor.h"
#include "month/line_days.h"
#include "month/line_state.h"
#include "month/refresh.h"
#include "month/rows.h"
#include "session/batch.h"
#include "session/records.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int pasGauche = 8;
constexpr int essaisGauche = 4;

int colonneDuJour(const Planning &planning, const QDate &date)
{
    const int colonne = planning.colonnes.colonneDe(date);
    return colonne >= 0 && planning.grille.largeur(colonne) > tailleVisible ? colonne : -1;
}

/// Today's column, or that of the first of the month, or the first.
int colonneDepart(const Planning &planning)
{
    for (const QDate &date : {planning.session.host.today(), planning.periode.premier}) {
        const int colonne = colonneDuJour(planning, date);
        if (colonne >= 0) return colonne;
    }
    return planning.premiereColonne();
}

int colonneDuPremier(const Planning &planning)
{
    return std::max(planning.colonnes.colonneDe(planning.periode.premier), planning.premiereColonne());
}

void chargeLignes(Planning &planning, const Chargement &chargement)
{
    int progres = 1;
    auto lignes = planning.session.base.ligmois.range("ligmois02", {}, {});
    while (planning.lecture.ok() && lignes.next()) {
        if (!dansPeriode(lignes.row(), planning.periode)) continue;
        if (ligdossier(planning.session, lignes.row().nump))
            chargeligne(planning, lignes.row());
        else
            planning.noteLecture(planning.session.base.groupe.status());
        if (chargement.progres) chargement.progres(++progres);
    }
    planning.noteLecture(lignes.status());
}

void prepareTotaux(Planning &planning)
{
    Grille &grille = planning.grille;
    const int derniere = grille.derniereLigne();
    grille.ecrit(derniere, Grille::colonneNom, QStringLiteral("Total Heures"));
    grille.fixeHauteur(derniere, planning.mesures.hautligne * 2 / 3);
    for (int colonne = 0; colonne < grille.colonnes(); ++colonne)
        grille.colore(derniere, colonne, palette::fondTotal, palette::encreTotal);
    for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne)
        grille.ecrit(derniere, colonne, QStringLiteral("0h00 "));
}

void totalise(Planning &planning)
{
    Grille &grille = planning.grille;
    for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne) {
        int somme = 0;
        for (int ligne = Grille::lignesFixes; ligne < grille.derniereLigne(); ++ligne)
            somme += grille.minutes(colonne, ligne);
        grille.fixeMinutes(colonne, 0, somme);
    }
    ecritTotaux(planning);
}

bool sansLigne(const Planning &planning)
{
    return planning.grille.derniereLigne() == Grille::lignesFixes;
}

bool construit(Planning &planning, const Chargement &chargement)
{
    const ReadPass lecture(planning.session.base.engine);
    const ContexteEntete contexte{planning.session.host.today(), planning.session.modecellule,
                                  planning.mesures, [&](const QDate &date) {
                                      const bool ferie = jourferie(planning.session, date);
                                      planning.noteLecture(planning.session.base.ferie.status());
                                      return ferie;
                                  }};
    ecritEntete(planning.grille, planning.colonnes, planning.periode, contexte);
    chargeLignes(planning, chargement);
    prepareTotaux(planning);
    return !sansLigne(planning);
}

/// The built grid has a line, if need be a new one.
bool peuple(Planning &planning, const Chargement &chargement)
{
    if (construit(planning, chargement) || !planning.lecture.ok()) return planning.lecture.ok();
    planning.session.host.message(
        QStringLiteral("vous devez ouvrir au moins une ligne de planning pour cette période !"), titre);
    return chargement.nouvelleligne && chargement.nouvelleligne() && !sansLigne(planning) &&
           planning.lecture.ok();
}

} // namespace

int compteLignes(Session &session, const Periode &periode)
{
    const auto lues = store::Columns<Ligne>::of(&Ligne::datedeb, &Ligne::datefin);
    auto lignes = session.base.ligmois.range("ligmois01", {}, {}, lues);
    int nombre = 0;
    while (lignes.next())
        nombre += dansPeriode(lignes.row(), periode) ? 1 : 0;
    return nombre;
}

bool ligdossier(Session &session, int nump)
{
    return dansDossier(session, nump, session.dossiervue);
}

void chargeligne(Planning &planning, const Ligne &ligne)
{
    Grille &grille = planning.grille;
    const int rangee = grille.insereLigne(planning.mesures.hautligne);
    grille.ecrit(rangee, Grille::colonneNom, ligne.nom);
    grille.fixeNumligne(rangee, ligne.nump);
    marqueferme(planning, ligne, rangee);
    const SuiteJours jours = joursDeLaGrille(planning, ligne);
    sommeavant(planning, jours, rangee);
    rempligne(planning, ligne.nump, jours, rangee);
    marqueControles(planning, ligne, rangee, jours);
}

bool chargi(Planning &planning, const Chargement &chargement)
{
    {
        const DessinSuspendu dessin(planning.grille);
        planning.suivi = false;
        planning.surbrillance = {};
        planning.lecture = {};
        planning.controlpresent = false;
        if (!peuple(planning, chargement)) {
            if (!planning.lecture.ok()) ditErreurBase(planning);
            return false;
        }
        // The verdicts leave the set of today selected.
        if (planning.controlpresent) jeuaudate(planning.session, planning.session.host.today());
        planning.curseur = {Grille::lignesFixes, colonneDepart(planning)};
        planning.colprec = planning.curseur.colonne;
        planning.rowprec = planning.curseur.ligne;
        totalise(planning);
        planning.colonneGauche = colonneDuPremier(planning);
    }
    planning.suivi = true;
    majcommandes(planning);
    return true;
}

int ajusteGauche(const Planning &planning, const std::function<bool(int)> &curseurVisible)
{
    int gauche = planning.colonneGauche;
    for (int essai = 0; essai < essaisGauche && !curseurVisible(gauche); ++essai)
        gauche = std::min(gauche + pasGauche, planning.grille.colonnes() - 1);
    return gauche;
}

} // namespace velmora
