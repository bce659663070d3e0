#include "month/highlight.h"

namespace velmora
{

namespace
{

struct Couleurs {
    QRgb fond;
    QRgb encre;
};

/// The label of a day column; total columns keep theirs.
void coloreJour(Planning &planning, int colonne, const Couleurs &couleurs)
{
    if (planning.colonnes.estJour(colonne))
        planning.grille.colore(Grille::ligneJour, colonne, couleurs.fond, couleurs.encre);
}

Couleurs couleursJour(const Planning &planning, int colonne)
{
    if (planning.date(colonne) == planning.session.host.today())
        return {palette::fondAujourdhui, palette::encreAujourdhui};
    return {palette::fondFixe, palette::encreFixe};
}

void rendCouleurs(Planning &planning)
{
    const Place place = planning.surbrillance.place;
    Grille &grille = planning.grille;
    if (place.ligne < 0 || place.ligne >= grille.lignes()) return;
    grille.colore(place.ligne, place.colonne, planning.surbrillance.fond, planning.surbrillance.encre);
    grille.colore(place.ligne, Grille::colonneNom, palette::fondFixe, palette::encreFixe);
    coloreJour(planning, place.colonne, couleursJour(planning, place.colonne));
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

void quitteRangee(Planning &planning, int rangee)
{
    Place &place = planning.surbrillance.place;
    if (place.ligne == rangee) {
        coloreJour(planning, place.colonne, couleursJour(planning, place.colonne));
        place = {-1, -1};
    } else if (place.ligne > rangee) {
        --place.ligne;
    }
}

void deplaceSurbrillance(Planning &planning)
{
    Grille &grille = planning.grille;
    const Place place = planning.curseur;
    rendCouleurs(planning);
    grille.colore(place.ligne, Grille::colonneNom, palette::fondSelection, palette::encreSelection);
    coloreJour(planning, place.colonne, {palette::fondSelection, palette::encreSelection});
    const Case &courante = grille.lit(place.ligne, place.colonne);
    planning.surbrillance = {place, courante.fond, courante.encre};
    grille.colore(place.ligne, place.colonne, palette::fondSelection, palette::encreSelection);
}

} // namespace velmora
