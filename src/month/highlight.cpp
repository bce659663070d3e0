#include "month/highlight.h"

namespace velmora
{

namespace
{

/// The label of a day column; total columns keep theirs.
void coloreJour(Planning &planning, int colonne, QRgb fond, QRgb encre)
{
    if (planning.colonnes.estJour(colonne)) planning.grille.colore(Grille::ligneJour, colonne, fond, encre);
}

void rendCouleurs(Planning &planning)
{
    const Place place = planning.surbrillance.place;
    Grille &grille = planning.grille;
    if (place.ligne < 0 || place.ligne >= grille.lignes()) return;
    grille.colore(place.ligne, place.colonne, planning.surbrillance.fond, planning.surbrillance.encre);
    grille.colore(place.ligne, Grille::colonneNom, palette::fondFixe, palette::encreFixe);
    const bool aujourdhui = planning.date(place.colonne) == planning.session.host.today();
    coloreJour(planning, place.colonne, aujourdhui ? palette::fondAujourdhui : palette::fondFixe,
               aujourdhui ? palette::encreAujourdhui : palette::encreFixe);
}

} // namespace

void coloreCase(Planning &planning, const Place &place, QRgb fond, QRgb encre)
{
    if (place != planning.surbrillance.place) {
        planning.grille.colore(place.ligne, place.colonne, fond, encre);
        return;
    }
    planning.surbrillance.fond = fond;
    planning.surbrillance.encre = encre;
}

void deplaceSurbrillance(Planning &planning)
{
    Grille &grille = planning.grille;
    const Place place = planning.curseur;
    rendCouleurs(planning);
    grille.colore(place.ligne, Grille::colonneNom, palette::fondSelection, palette::encreSelection);
    coloreJour(planning, place.colonne, palette::fondSelection, palette::encreSelection);
    const Case &courante = grille.lit(place.ligne, place.colonne);
    planning.surbrillance = {place, courante.fond, courante.encre};
    grille.colore(place.ligne, place.colonne, palette::fondSelection, palette::encreSelection);
}

} // namespace velmora
