#include "foncgen/foncgen.h"
#include "output/page_head.h"
#include "output/printed_grid.h"

#include <algorithm>
#include <numeric>

// The print services of the general-function object, on the page grid.
namespace velmora
{

namespace
{

/// The part of a text's width that lies left of its column.
constexpr double aGauche = 0;
constexpr double auMilieu = 0.5;
constexpr double aDroite = 1;
/// Between the end of a text and the rule that may stand on its column.
constexpr int jeu = 40;

void ecrit(Imprimante &imprimante, int &ligne, int colonne, const QString &texte, double part)
{
    const double marge = (papier::hauteurLigne - imprimante.hauteurTexte()) / 2;
    qsizetype debut = 0;
    for (;; ++ligne) {
        const qsizetype fin = texte.indexOf(QLatin1Char('\n'), debut);
        const QString une = fin < 0 && debut == 0 ? texte : texte.mid(debut, fin < 0 ? -1 : fin - debut);
        double retrait = part > 0 ? part * imprimante.largeurTexte(une) : 0;
        if (part == aDroite) retrait += jeu;
        imprimante.ecrit(papier::x(colonne) - retrait, papier::y(ligne) + marge, une);
        if (fin < 0) return;
        debut = fin + 1;
    }
}

/// A grid laid out for a page: the left edges of its columns and the right edge of the last.
class TableImprimee
{
public:
    TableImprimee(Imprimante &imprimante, const GrilleImprimee &grille, const QList<int> &colonnes)
        : m_imprimante(imprimante), m_grille(grille), m_colonnes(colonnes)
    {
        mesure();
    }

    /// Rows that fit on a page below their titles.
    [[nodiscard]] int rangeesParPage(int premiere) const { return m_imprimante.derniereLigne() - premiere; }

    /// One page of the table: the titles, then rows from one to before another.
    void page(int premiere, qsizetype debut, qsizetype fin)
    {
        m_imprimante.fixePolice(m_taille);
        rangee(premiere, m_grille.titres);
        int ligne = premiere;
        for (qsizetype i = debut; i < fin; ++i)
            rangee(++ligne, m_grille.rangees[i]);
        cadre(premiere, ligne);
    }

private:
    void mesure()
    {
        m_imprimante.fixePolice(m_taille);
        QList<double> largeurs;
        for (const int colonne : m_colonnes)
            largeurs << largeur(colonne);
        const double total = std::accumulate(largeurs.cbegin(), largeurs.cend(), 0.0);
        const double reduction = std::min(1.0, m_imprimante.largeurPage() / std::max(total, 1.0));
        m_taille *= reduction;
        double gauche = (m_imprimante.largeurPage() - total * reduction) / 2;
        m_bords << gauche;
        for (const double une : std::as_const(largeurs))
            m_bords << (gauche += une * reduction);
    }

    [[nodiscard]] double largeur(int colonne) const
    {
        double plusLarge = m_imprimante.largeurTexte(m_grille.titres.value(colonne));
        for (const QStringList &rangee : m_grille.rangees)
            plusLarge = std::max(plusLarge, m_imprimante.largeurTexte(rangee.value(colonne)));
        return plusLarge + 2 * papier::largeurColonne;
    }

    void rangee(int ligne, const QStringList &cases)
    {
        const double marge = (papier::hauteurLigne - m_imprimante.hauteurTexte()) / 2;
        for (qsizetype i = 0; i < m_colonnes.size(); ++i) {
            const double place = m_bords[i + 1] - m_bords[i];
            const QString texte = m_imprimante.abrege(cases.value(m_colonnes[i]), place);
            const double retrait = (place - m_imprimante.largeurTexte(texte)) / 2;
            m_imprimante.ecrit(m_bords[i] + retrait, papier::y(ligne) + marge, texte);
        }
    }

    void cadre(int premiere, int derniere)
    {
        const double haut = papier::y(premiere);
        const double bas = papier::y(derniere + 1);
        for (const double x : std::as_const(m_bords))
            m_imprimante.trait(x, haut, x, bas);
        for (const int ligne : {premiere, premiere + 1, derniere + 1})
            m_imprimante.trait(m_bords.first(), papier::y(ligne), m_bords.last(), papier::y(ligne));
    }

    Imprimante &m_imprimante;
    const GrilleImprimee &m_grille;
    QList<int> m_colonnes;
    QList<double> m_bords;
    double m_taille = 9;
};

} // namespace

void Foncgen::pprint(Imprimante &imprimante, int &ligne, int colonne, const QString &texte)
{
    ecrit(imprimante, ligne, colonne, texte, aGauche);
}

void Foncgen::pprintc(Imprimante &imprimante, int &ligne, int colonne, const QString &texte)
{
    ecrit(imprimante, ligne, colonne, texte, auMilieu);
}

void Foncgen::pprintd(Imprimante &imprimante, int &ligne, int colonne, const QString &texte)
{
    ecrit(imprimante, ligne, colonne, texte, aDroite);
}

void Foncgen::tabl(Imprimante &imprimante, int &ligne, int colonne, int derniereLigne, int derniereColonne,
                   bool haut, bool bas, bool gauche, bool droite, const std::array<int, 8> &regles)
{
    const int x1 = papier::x(colonne);
    const int x2 = papier::x(derniereColonne);
    const int y1 = papier::y(ligne);
    const int y2 = papier::y(derniereLigne + 1);
    if (haut) imprimante.trait(x1, y1, x2, y1);
    if (bas) imprimante.trait(x1, y2, x2, y2);
    if (gauche) imprimante.trait(x1, y1, x1, y2);
    if (droite) imprimante.trait(x2, y1, x2, y2);
    for (const int regle : regles)
        if (regle != 0) imprimante.trait(papier::x(regle), y1, papier::x(regle), y2);
    ligne = derniereLigne;
}

void Foncgen::remplir(Imprimante &imprimante, int &ligne, int colonne, int derniereLigne, int derniereColonne,
                      QRgb couleur)
{
    const QPointF coin(papier::x(colonne), papier::y(ligne));
    imprimante.remplit({coin, QPointF(papier::x(derniereColonne), papier::y(derniereLigne + 1))}, couleur);
    ligne = derniereLigne;
}

void Foncgen::msfgimpr(Imprimante &imprimante, const GrilleImprimee &grille, const QString &titre,
                       const QString &nometab, QChar orientation, const QList<int> &colonnes)
{
    imprimante.oriente(orientation == QLatin1Char('P') ? QPageLayout::Portrait : QPageLayout::Landscape);
    TableImprimee table(imprimante, grille, colonnes);
    EntetePage entete{nometab, titre, {}, 0};
    const qsizetype parPage = table.rangeesParPage(premiereLigne(entete));
    const qsizetype nombre = grille.rangees.size();
    entete.nbpages = int(std::max<qsizetype>(1, (nombre + parPage - 1) / parPage));
    for (int page = 0; page < entete.nbpages; ++page) {
        const int premiere = entetepage(imprimante, entete);
        table.page(premiere, page * parPage, std::min(nombre, (page + 1) * parPage));
    }
}

} // namespace velmora
