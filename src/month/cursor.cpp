#include "month/cursor.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int largeurMinimale = 5;

bool colonneSautee(const Planning &planning, int colonne)
{
    return planning.grille.largeur(colonne) < tailleVisible || !planning.colonnes.estJour(colonne);
}

/// The column that a move onto a skipped one ends on: one further on, and one more if that is a total too.
int colonneApresSaut(const Planning &planning, int colonne)
{
    const int premiere = planning.premiereColonne();
    const int sens = colonne < planning.colprec ? -1 : 1;
    int arrivee = colonne + sens;
    if (arrivee >= premiere && arrivee < planning.grille.colonnes() && !planning.colonnes.estJour(arrivee))
        arrivee += sens;
    if (arrivee >= planning.grille.colonnes()) return planning.colprec;
    return std::max(arrivee, premiere);
}

int ligneApresSaut(const Planning &planning, int ligne)
{
    const int arrivee = ligne < planning.rowprec ? ligne - 1 : ligne + 1;
    if (arrivee >= planning.grille.derniereLigne()) return planning.rowprec;
    return std::max(arrivee, Grille::lignesFixes);
}

} // namespace

void entreCellule(Planning &planning)
{
    if (!planning.suivi || planning.grille.derniereLigne() == Grille::lignesFixes) return;
    Place &curseur = planning.curseur;
    curseur.ligne = std::clamp(curseur.ligne, Grille::lignesFixes, planning.grille.derniereLigne() - 1);
    if (curseur.colonne < planning.premiereColonne())
        curseur.colonne = planning.colprec;
    else if (colonneSautee(planning, curseur.colonne))
        curseur.colonne = colonneApresSaut(planning, curseur.colonne);
    if (planning.grille.hauteur(curseur.ligne) < tailleVisible)
        curseur.ligne = ligneApresSaut(planning, curseur.ligne);
    planning.colprec = curseur.colonne;
    planning.rowprec = curseur.ligne;
}

bool jourDeLigne(const Planning &planning)
{
    const Ligne &ligne = planning.session.base.ligmois.row();
    const QDate date = planning.date(planning.curseur.colonne);
    return planning.grille.estLigne(planning.curseur.ligne) && date >= ligne.datedeb && date <= ligne.datefin;
}

int premierJourVisible(const Planning &planning)
{
    for (int colonne = planning.premiereColonne(); colonne < planning.grille.colonnes(); ++colonne)
        if (!colonneSautee(planning, colonne)) return colonne;
    return planning.premiereColonne();
}

int dernierJourVisible(const Planning &planning)
{
    for (int colonne = planning.grille.colonnes() - 1; colonne > planning.premiereColonne(); --colonne)
        if (!colonneSautee(planning, colonne)) return colonne;
    return planning.premiereColonne();
}

bool etireColonnes(Grille &grille, int twips)
{
    for (int colonne = Grille::colonnesFixes; colonne < grille.colonnes(); ++colonne)
        if (grille.largeur(colonne) + twips < largeurMinimale) return false;
    const DessinSuspendu dessin(grille);
    for (int colonne = Grille::colonnesFixes; colonne < grille.colonnes(); ++colonne)
        grille.fixeLargeur(colonne, grille.largeur(colonne) + twips);
    return true;
}

void etireLignes(Grille &grille, int twips)
{
    const DessinSuspendu dessin(grille);
    for (int ligne = Grille::ligneJour; ligne < grille.derniereLigne(); ++ligne)
        grille.fixeHauteur(ligne, grille.hauteur(ligne) + twips);
}

} // namespace velmora
