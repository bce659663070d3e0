#include "month/grid.h"

#include <algorithm>
#include <utility>

namespace velmora
{

namespace
{

// Height of the spare last row until it becomes the row of totals.
constexpr int hauteurReserve = 50;

} // namespace

Grille::Grille()
{
    dimensionne(colonnesFixes);
}

Grille::Rangee Grille::rangeeVide() const
{
    Rangee vide;
    vide.cases.resize(rang(m_colonnes));
    vide.minutes.resize(rang(m_colonnes));
    return vide;
}

void Grille::dimensionne(int colonnes)
{
    m_colonnes = colonnes;
    m_largeurs.assign(rang(colonnes), 0);
    m_rangees.assign(lignesFixes + 1, rangeeVide());
    for (Rangee &ligne : m_rangees)
        for (Case &une : ligne.cases)
            une = {{}, palette::fondFixe, palette::encreFixe, false};
    m_rangees.back().hauteur = hauteurReserve;
    m_tailleSale = true;
    changeLignes();
}

int Grille::insereLigne(int hauteur)
{
    const int ligne = derniereLigne();
    Rangee nouvelle = rangeeVide();
    nouvelle.hauteur = hauteur;
    for (int colonne = 0; colonne < std::min(m_colonnes, colonnesFixes); ++colonne)
        nouvelle.cases[rang(colonne)] = {{}, palette::fondFixe, palette::encreFixe, false};
    m_rangees.insert(m_rangees.end() - 1, std::move(nouvelle));
    changeLignes();
    return ligne;
}

void Grille::retireLigne(int ligne)
{
    m_rangees.erase(m_rangees.begin() + ligne);
    changeLignes();
}

void Grille::ecrit(int ligne, int colonne, QString texte)
{
    QString &ancien = rangee(ligne).cases[rang(colonne)].texte;
    if (ancien == texte) return;
    ancien = std::move(texte);
    change(ligne, colonne);
}

void Grille::colore(int ligne, int colonne, QRgb fond, QRgb encre)
{
    Case &une = rangee(ligne).cases[rang(colonne)];
    if (une.fond == fond && une.encre == encre) return;
    une.fond = fond;
    une.encre = encre;
    change(ligne, colonne);
}

void Grille::graisse(int ligne, int colonne, bool gras)
{
    rangee(ligne).cases[rang(colonne)].gras = gras;
    change(ligne, colonne);
}

void Grille::fixeLargeur(int colonne, int twips)
{
    m_largeurs[rang(colonne)] = twips;
    changeTaille();
}

void Grille::fixeHauteur(int ligne, int twips)
{
    if (rangee(ligne).hauteur == twips) return;
    rangee(ligne).hauteur = twips;
    changeTaille();
}

int Grille::ligneDe(int nump) const
{
    for (int ligne = lignesFixes; ligne < derniereLigne(); ++ligne)
        if (numligne(ligne) == nump) return ligne;
    return -1;
}

void Grille::change(int ligne, int colonne)
{
    if (m_suspendu == 0) {
        if (surChangement) surChangement({ligne, colonne, ligne, colonne});
        return;
    }
    Rangee &changee = rangee(ligne);
    const bool premiere = changee.sale1 == changee.sale2;
    changee.sale1 = premiere ? colonne : std::min(changee.sale1, colonne);
    changee.sale2 = std::max(changee.sale2, colonne + 1);
    m_sale = true;
}

void Grille::changeTaille()
{
    m_tailleSale = true;
    if (m_suspendu == 0) reprend();
}

void Grille::changeLignes()
{
    // A view that hears of the rows forgets its sizes.
    m_lignesSales = true;
    m_tailleSale = true;
    if (m_suspendu == 0) reprend();
}

void Grille::reprend()
{
    if (m_suspendu > 0 && --m_suspendu > 0) return;
    if (std::exchange(m_lignesSales, false) && surLignes) surLignes();
    if (std::exchange(m_tailleSale, false) && surTaille) surTaille();
    if (std::exchange(m_sale, false)) diffuse();
}

void Grille::diffuse()
{
    std::vector<Plage> plages;
    for (int ligne = 0; ligne < lignes(); ++ligne) {
        Rangee &lue = rangee(ligne);
        if (lue.sale1 == lue.sale2) continue;
        const Plage plage{ligne, lue.sale1, ligne, lue.sale2 - 1};
        lue.sale1 = lue.sale2 = 0;
        const bool suite = !plages.empty() && plages.back().ligne2 == ligne - 1 &&
                           plages.back().colonne1 == plage.colonne1 &&
                           plages.back().colonne2 == plage.colonne2;
        if (suite)
            plages.back().ligne2 = ligne;
        else
            plages.push_back(plage);
    }
    if (!surChangement) return;
    for (const Plage &plage : plages)
        surChangement(plage);
}

} // namespace velmora
