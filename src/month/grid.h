#pragma once

#include "month/palette.h"

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

namespace velmora
{

/// One cell of the grid: what it shows.
struct Case {
    QString texte;
    QRgb fond = palette::fond;
    QRgb encre = palette::encre;
    bool gras = false;
};

/// Sizes of the grid in twips, 1440 to the inch.
struct Mesures {
    int largcol = 1700;   ///< width of a day column that holds hours
    int hautligne = 580;  ///< height of a row
    int hautentete = 290; ///< height of a header row
};

/// A run of cells that changed, both corners included, in grid rows and columns.
struct Plage {
    int ligne1 = 0;
    int colonne1 = 0;
    int ligne2 = 0;
    int colonne2 = 0;
};

/// The month's grid: fixed header rows 0 to 2, fixed columns 0 (name) and 1 (state), one row for each line
/// and a last row of totals. It holds text, colours, sizes and the minutes of each cell; everything else is
/// read from the tables at the moment of need. Rows and columns count the fixed ones.
class Grille
{
public:
    static constexpr int lignesFixes = 3;
    static constexpr int colonnesFixes = 2;
    static constexpr int colonneNom = 0;
    static constexpr int colonneEtat = 1;
    static constexpr int ligneJour = 2; ///< header row of the day labels

    Grille();

    /// Sets the columns, all empty, and leaves only the header and the last row.
    void dimensionne(int colonnes);
    /// Adds a row before the last one and returns its number.
    int insereLigne(int hauteur);
    void retireLigne(int ligne);

    [[nodiscard]] int lignes() const { return static_cast<int>(m_rangees.size()); }
    [[nodiscard]] int colonnes() const { return m_colonnes; }
    [[nodiscard]] int derniereLigne() const { return lignes() - 1; } ///< the row of totals
    [[nodiscard]] bool estLigne(int ligne) const { return ligne >= lignesFixes && ligne < derniereLigne(); }

    [[nodiscard]] const Case &lit(int ligne, int colonne) const { return rangee(ligne).cases[rang(colonne)]; }
    void ecrit(int ligne, int colonne, QString texte);
    void colore(int ligne, int colonne, QRgb fond, QRgb encre);
    void graisse(int ligne, int colonne, bool gras);

    [[nodiscard]] int largeur(int colonne) const { return m_largeurs[rang(colonne)]; }
    [[nodiscard]] int hauteur(int ligne) const { return rangee(ligne).hauteur; }
    void fixeLargeur(int colonne, int twips);
    void fixeHauteur(int ligne, int twips);

    /// Number of the row's line, 0 for the other rows.
    [[nodiscard]] int numligne(int ligne) const { return rangee(ligne).nump; }
    void fixeNumligne(int ligne, int nump) { rangee(ligne).nump = nump; }
    /// The row of a line, or -1.
    [[nodiscard]] int ligneDe(int nump) const;

    /// Minutes of a cell; those of row 0 are the total of the column over all lines.
    [[nodiscard]] int minutes(int colonne, int ligne) const { return rangee(ligne).minutes[rang(colonne)]; }
    void fixeMinutes(int colonne, int ligne, int valeur) { rangee(ligne).minutes[rang(colonne)] = valeur; }

    /// Minutes of the month before that lie before the grid's first date.
    [[nodiscard]] int avantmois(int ligne) const { return rangee(ligne).avantmois; }
    void fixeAvantmois(int ligne, int minutes) { rangee(ligne).avantmois = minutes; }

    /// While drawing is suspended changes are gathered; the outermost resumption tells them: rows, then
    /// sizes, then cells, those of a row as one run and equal runs of neighbouring rows together.
    void suspend() { ++m_suspendu; }
    void reprend();

    /// Whoever shows the grid listens here.
    std::function<void(const Plage &)> surChangement;
    std::function<void()> surTaille; ///< widths or heights changed
    std::function<void()> surLignes; ///< rows came or went: the changes of cells that follow count them

private:
    struct Rangee {
        std::vector<Case> cases;
        std::vector<int> minutes;
        int nump = 0;
        int avantmois = 0;
        int hauteur = 0;
        int sale1 = 0; ///< first cell whose change waits to be told, and the one past the last
        int sale2 = 0;
    };

    [[nodiscard]] static std::size_t rang(int place) { return static_cast<std::size_t>(place); }
    [[nodiscard]] Rangee &rangee(int ligne) { return m_rangees[rang(ligne)]; }
    [[nodiscard]] const Rangee &rangee(int ligne) const { return m_rangees[rang(ligne)]; }
    [[nodiscard]] Rangee rangeeVide() const;
    void change(int ligne, int colonne);
    void changeTaille();
    void changeLignes();
    void diffuse();

    std::vector<Rangee> m_rangees;
    std::vector<int> m_largeurs;
    int m_colonnes = 0;
    int m_suspendu = 0;
    bool m_sale = false;
    bool m_tailleSale = false;
    bool m_lignesSales = false;
};

/// Suspends a grid's drawing for a scope.
class DessinSuspendu
{
public:
    explicit DessinSuspendu(Grille &grille) : m_grille(grille) { m_grille.suspend(); }
    ~DessinSuspendu() { m_grille.reprend(); }
    DessinSuspendu(const DessinSuspendu &) = delete;
    DessinSuspendu &operator=(const DessinSuspendu &) = delete;

private:
    Grille &m_grille;
};

} // namespace velmora
