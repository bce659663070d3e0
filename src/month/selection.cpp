#include "month/selection.h"

#include "month/highlight.h"

#include <algorithm>
#include <utility>

namespace velmora
{

namespace
{

/// Saves the own colours of a column's cell and gives it the selection's.
void selectionne(Planning &planning, int colonne)
{
    if (!planning.colonnes.estJour(colonne)) return;
    const Place place{planning.selection.selligne, colonne};
    const Couleurs propres = couleursPropres(planning, place);
    planning.selection.coulfond[colonne] = propres.fond;
    planning.selection.coultexte[colonne] = propres.encre;
    planning.grille.colore(place.ligne, place.colonne, palette::fondSelection, palette::encreSelection);
}

void deselectionne(Planning &planning, int colonne)
{
    Selection &selection = planning.selection;
    if (!selection.coulfond.contains(colonne)) return;
    const QRgb fond = selection.coulfond.take(colonne);
    const QRgb encre = selection.coultexte.take(colonne);
    coloreCase(planning, {selection.selligne, colonne}, fond, encre);
}

void termine(Planning &planning)
{
    Selection &selection = planning.selection;
    for (const int colonne : selection.coulfond.keys())
        deselectionne(planning, colonne);
    selection.selact = selection.selglisse = false;
    selection.seldeb = 0;
    selection.selfin = 0;
}

} // namespace

bool estSelectionnee(const Planning &planning, const Place &place)
{
    return planning.selection.selact && place.ligne == planning.selection.selligne &&
           planning.selection.coulfond.contains(place.colonne);
}

void commenceSelection(Planning &planning)
{
    const Place place = planning.curseur;
    const Grille &grille = planning.grille;
    if (!grille.estLigne(place.ligne) || place.colonne >= grille.colonnes() - 1) return;
    selvide(planning);
    planning.suivi = false;
    Selection &selection = planning.selection;
    selection.selligne = place.ligne;
    selection.seldeb = selection.selfin = place.colonne;
    selection.selact = selection.selglisse = true;
    selectionne(planning, place.colonne);
}

void glisseSelection(Planning &planning, int colonne)
{
    Selection &selection = planning.selection;
    if (!selection.selglisse || !planning.colonnes.estJour(colonne)) return;
    const DessinSuspendu dessin(planning.grille);
    if (colonne > selection.selfin) {
        for (int prise = selection.selfin + 1; prise <= colonne; ++prise)
            selectionne(planning, prise);
        selection.selfin = colonne;
    } else if (colonne < selection.selfin) {
        const int premiere = colonne < selection.seldeb + 1 ? selection.seldeb : colonne;
        for (int rendue = premiere; rendue <= selection.selfin; ++rendue)
            deselectionne(planning, rendue);
        selection.selfin = premiere - 1;
    }
}

void finitSelection(Planning &planning)
{
    Selection &selection = planning.selection;
    if (!selection.selact || !std::exchange(selection.selglisse, false)) return;
    while (selection.selfin > selection.seldeb && !planning.colonnes.estJour(selection.selfin))
        --selection.selfin;
    planning.curseur = {selection.selligne, selection.seldeb};
    if (selection.selfin <= selection.seldeb) {
        const DessinSuspendu dessin(planning.grille);
        termine(planning);
    }
    planning.suivi = true;
}

void selvide(Planning &planning)
{
    const DessinSuspendu dessin(planning.grille);
    termine(planning);
}

PlageJours plageCourante(const Planning &planning)
{
    const int courante = planning.curseur.colonne;
    if (!planning.selection.selact) return {courante, courante};
    return {std::min(courante, planning.selection.selfin), std::max(courante, planning.selection.selfin)};
}

} // namespace velmora
