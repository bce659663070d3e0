#include "month/highlight.h"

#include "month/selection.h"

namespace velmora
{

namespace
{

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
    if (!estSelectionnee(planning, place))
        grille.colore(place.ligne, place.colonne, planning.surbrillance.fond, planning.surbrillance.encre);
    grille.colore(place.ligne, Grille::colonneNom, palette::fondFixe, palette::encreFixe);
    coloreJour(planning, place.colonne, couleursJour(planning, place.colonne));
}

} // namespace

Couleurs couleursPropres(const Planning &planning, const Place &place)
{
    if (place == planning.surbrillance.place)
        return {planning.surbrillance.fond, planning.surbrillance.encre};
    const Selection &selection = planning.selection;
    if (estSelectionnee(planning, place))
        return {selection.coulfond.value(place.colonne), selection.coultexte.value(place.colonne)};
    const Case &une = planning.grille.lit(place.ligne, place.colonne);
    return {une.fond, une.encre};
}

void coloreCase(Planning &planning, const Place &place, QRgb fond, QRgb encre)
{
    const bool surbrillante = place == planning.surbrillance.place;
    const bool selectionnee = estSelectionnee(planning, place);
    if (surbrillante) planning.surbrillance = {place, fond, encre};
    if (selectionnee) {
        planning.selection.coulfond.insert(place.colonne, fond);
        planning.selection.coultexte.insert(place.colonne, encre);
    }
    if (!surbrillante && !selectionnee) planning.grille.colore(place.ligne, place.colonne, fond, encre);
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
    const Couleurs propres = couleursPropres(planning, place);
    planning.surbrillance = {place, propres.fond, propres.encre};
    grille.colore(place.ligne, place.colonne, palette::fondSelection, palette::encreSelection);
}

} // namespace velmora
