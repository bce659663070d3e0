#include "month/refresh.h"

#include "month/cells.h"
#include "month/highlight.h"
#include "month/line_state.h"
#include "session/records.h"

#include <utility>

namespace velmora
{

namespace
{

constexpr int derniereAnneeFermee = 2090;

/// Puts `ligmois` on the current line. A line that is gone is told, and what follows runs on the row read
/// before: the check doesn't stop the cycle.
const Ligne &ligneCourante(Planning &planning)
{
    auto &ligmois = planning.session.base.ligmois;
    ligmois.setIndex("ligmois01");
    if (!ligmois.seek(store::Cmp::Eq, {planning.grille.numligne(planning.curseur.ligne)}))
        ditErreurBase(planning);
    return ligmois.row();
}

/// What the cell allows. A total column answers for the day before it, whose date it holds.
void commandesCellule(Planning &planning, const Ligne &ligne)
{
    EtatCommandes &etat = planning.commandes;
    const QDate date = planning.date(planning.curseur.colonne);
    etat.couper = etat.copier = etat.coller = etat.absence = etat.supprimer = true;
    Session &session = planning.session;
    const int nump = planning.grille.numligne(planning.curseur.ligne);
    session.base.sitper.setIndex("sitper01");
    if (date < ligne.datedeb || date > ligne.datefin)
        etat.couper = etat.copier = etat.coller = etat.absence = etat.supprimer = false;
    else if (absjour(session, nump, date))
        etat.couper = etat.copier = etat.coller = false;
    else if (!session.base.sitper.seek(store::Cmp::Eq, {nump, date}))
        etat.couper = etat.copier = false;
    if (!planning.pressepapiers.tient(session)) etat.coller = false;
}

/// The cycle but for the report. Returns the line that the row shows, or stands for when it is gone.
Ligne suitCurseur(Planning &planning, const std::function<void()> &montreStatut)
{
    const TravailGrille travail(planning);
    const Place place = planning.curseur;
    const int nump = planning.grille.numligne(place.ligne);
    planning.dateStatut = planning.date(place.colonne);
    planning.texteStatut = textestatut(planning.session, nump, planning.dateStatut);
    if (montreStatut) montreStatut();
    Ligne ligne = ligneCourante(planning);
    planning.commandes.fermerLigne = ligneOuverte(ligne);
    planning.commandes.reouvrirLigne = !planning.commandes.fermerLigne;
    deplaceSurbrillance(planning);
    commandesCellule(planning, ligne);
    majcommandes(planning);
    planning.commandes.ligneCourante = planning.grille.lit(place.ligne, Grille::colonneNom).texte;
    planning.commandes.renommerLigne = true;
    ligne.nump = nump;
    return ligne;
}

/// The last line shown has been closed before the grid's dates: there is nothing for the commands to act on.
void sansLigne(Planning &planning, const std::function<void()> &montreStatut)
{
    planning.texteStatut.clear();
    if (montreStatut) montreStatut();
    planning.commandes = {};
    majcommandes(planning);
    planning.rapportdemande = false;
}

} // namespace

void ditErreurBase(const Planning &planning)
{
    planning.session.host.message(QStringLiteral("Une erreur de base de données vient de se produire: fermer "
                                                 "l'application et relancer la !"),
                                  titre);
}

bool ligneOuverte(const Ligne &ligne)
{
    return ligne.datefin.year() > derniereAnneeFermee;
}

void majcommandes(Planning &planning)
{
    planning.commandes.annuler = planning.session.peutannul;
    planning.commandes.refaire = planning.session.peutrefaire;
}

void cycle(Planning &planning, const std::function<void()> &montreStatut,
           const std::function<void()> &montreCommandes)
{
    planning.suivi = true;
    const bool surLigne = planning.grille.estLigne(planning.curseur.ligne);
    Ligne ligne;
    if (surLigne)
        ligne = suitCurseur(planning, montreStatut);
    else
        sansLigne(planning, montreStatut);
    if (montreCommandes) montreCommandes();
    if (!surLigne) return;
    // The grid draws again: the report stands over the row that it is about.
    if (std::exchange(planning.rapportdemande, false)) montreRapport(planning, ligne);
}

} // namespace velmora
