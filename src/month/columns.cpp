#include "month/columns.h"

#include "foncgen/foncgen.h"

#include "session/values.h"

#include <array>

namespace velmora
{

namespace
{

// Widths in twips.
constexpr int largeurNomEtEtat = 2100;
constexpr int largeurEtat = 60;
constexpr int ajoutTotalSemaine = 220;
constexpr int ajoutTotalMois = 350;

enum class Sorte { Jour, TotalSemaine, TotalMois };

void ajoute(Colonnes &colonnes, const QDate &date, Sorte sorte, const Periode &periode)
{
    const bool totalMois = sorte == Sorte::TotalMois;
    const bool duMois = totalMois && date.month() == periode.moisvu;
    const bool duMoisAvant = totalMois && !duMois && date.month() == periode.moisavant;
    colonnes.datecol.push_back(date);
    colonnes.coltot.push_back(sorte != Sorte::Jour);
    colonnes.colsem.push_back(sorte == Sorte::TotalSemaine);
    colonnes.colmois.push_back(duMois);
    colonnes.colavant.push_back(duMoisAvant);
    colonnes.colapres.push_back(totalMois && !duMois && !duMoisAvant);
    colonnes.fondjour.push_back(palette::fond);
}

/// Walks the columns from left to right and writes their header.
class Entete
{
public:
    Entete(Grille &grille, Colonnes &colonnes, const ContexteEntete &contexte, const Periode &periode)
        : m_grille(grille), m_colonnes(colonnes), m_contexte(contexte),
          m_semaine(Foncgen::nosem(periode.debgrille)), m_mois(libelleMois(periode.debgrille))
    {
    }

    void ecritColonne(int colonne)
    {
        const auto rang = static_cast<std::size_t>(colonne);
        const QDate date = m_colonnes.datecol[rang];
        if (m_colonnes.colsem[rang])
            totalSemaine(colonne, date);
        else if (m_colonnes.coltot[rang])
            totalMois(colonne, date);
        else
            jour(colonne, date);
    }

private:
    void jour(int colonne, const QDate &date)
    {
        const bool ferie = m_contexte.jourferie(date);
        const int largcol = m_contexte.mesures.largcol;
        m_grille.fixeLargeur(colonne, m_contexte.modecellule == 0 ? largcol / 2 : largcol);
        bandeau(colonne);
        m_grille.ecrit(Grille::ligneJour, colonne,
                       ferie ? QLatin1Char('F') + Foncgen::strz(date.day(), 2) : lettrejour(date));
        m_grille.graisse(Grille::ligneJour, colonne, ferie);
        if (date == m_contexte.aujourdhui)
            m_grille.colore(Grille::ligneJour, colonne, palette::fondAujourdhui, palette::encreAujourdhui);
        m_colonnes.fondjour[static_cast<std::size_t>(colonne)] = ferie                   ? palette::ferie
                                                                 : date.dayOfWeek() >= 6 ? m_bande
                                                                                         : palette::fond;
    }

    void totalSemaine(int colonne, const QDate &date)
    {
        m_grille.fixeLargeur(colonne, m_contexte.mesures.largcol / 2 + ajoutTotalSemaine);
        bandeau(colonne);
        m_grille.ecrit(Grille::ligneJour, colonne, QStringLiteral("Total Sem."));
        // A year that ends on a Sunday has no reset here, so its successor's weeks run on from 53. Wanted:
        // after the grid's first week this rule alone counts.
        ++m_semaine;
        const QDate demain = date.addDays(1);
        const bool finDAnnee = date.month() == 12 && demain.day() > 28;
        const bool debutDAnnee = date.month() == 1 && date.day() < 4;
        if (finDAnnee || debutDAnnee) m_semaine = 1;
    }

    /// The labels and the band change at this column: it stands at the head of the next month's run.
    void totalMois(int colonne, const QDate &date)
    {
        m_mois = libelleMois(date.addDays(1));
        m_bande = m_bande == palette::bande1 ? palette::bande2 : palette::bande1;
        m_grille.fixeLargeur(colonne, m_contexte.mesures.largcol / 2 + ajoutTotalMois);
        bandeau(colonne);
        m_grille.ecrit(Grille::ligneJour, colonne,
                       QStringLiteral("Tot.Mois ") + QString::number(date.month()));
    }

    void bandeau(int colonne)
    {
        m_grille.ecrit(0, colonne, m_mois);
        m_grille.ecrit(1, colonne, QStringLiteral("[ ") + QString::number(m_semaine) + QStringLiteral(" ]"));
        m_grille.colore(0, colonne, m_bande, palette::encreFixe);
        m_grille.colore(1, colonne, m_bande, palette::encreFixe);
    }

    Grille &m_grille;
    Colonnes &m_colonnes;
    const ContexteEntete &m_contexte;
    int m_semaine;
    QString m_mois;
    QRgb m_bande = palette::bande1;
};

} // namespace

int Colonnes::colonneDe(const QDate &date) const
{
    if (nombre() <= Grille::colonnesFixes) return -1;
    const auto rang = datecol[Grille::colonnesFixes].daysTo(date) + 1;
    if (rang < 1 || rang >= static_cast<qint64>(coljour.size())) return -1;
    return coljour[static_cast<std::size_t>(rang)];
}

Colonnes colonnesDe(const Periode &periode)
{
    Colonnes colonnes;
    for (int fixe = 0; fixe < Grille::colonnesFixes; ++fixe)
        ajoute(colonnes, {}, Sorte::Jour, periode);
    colonnes.coljour.push_back(0);
    if (!periode.debgrille.isValid()) return colonnes;
    for (QDate date = periode.debgrille; date <= periode.fingrille; date = date.addDays(1)) {
        colonnes.coljour.push_back(colonnes.nombre());
        ajoute(colonnes, date, Sorte::Jour, periode);
        const QDate demain = date.addDays(1);
        if (demain.dayOfWeek() == Qt::Monday) ajoute(colonnes, date, Sorte::TotalSemaine, periode);
        if (demain.month() != date.month()) ajoute(colonnes, date, Sorte::TotalMois, periode);
    }
    return colonnes;
}

void ecritEntete(Grille &grille, Colonnes &colonnes, const Periode &periode, const ContexteEntete &contexte)
{
    grille.dimensionne(colonnes.nombre());
    grille.fixeLargeur(Grille::colonneEtat, largeurEtat);
    grille.fixeLargeur(Grille::colonneNom, largeurNomEtEtat - largeurEtat);
    for (int ligne = 0; ligne < Grille::lignesFixes; ++ligne)
        grille.fixeHauteur(ligne, contexte.mesures.hautentete);
    grille.ecrit(1, Grille::colonneEtat, QStringLiteral("N° semaine"));
    grille.ecrit(Grille::ligneJour, Grille::colonneEtat, QStringLiteral("Jour"));
    Entete entete(grille, colonnes, contexte, periode);
    for (int colonne = Grille::colonnesFixes; colonne < colonnes.nombre(); ++colonne)
        entete.ecritColonne(colonne);
}

QString libelleMois(const QDate &date)
{
    static const std::array<QString, 12> noms{
        QStringLiteral("Janv."), QStringLiteral("Fév."), QStringLiteral("Mars"),    QStringLiteral("Avril"),
        QStringLiteral("Mai"),   QStringLiteral("Juin"), QStringLiteral("Juillet"), QStringLiteral("Août"),
        QStringLiteral("Sept."), QStringLiteral("Oct."), QStringLiteral("Nov."),    QStringLiteral("Déc.")};
    return noms[static_cast<std::size_t>(date.month() - 1)] + QStringLiteral(" / ") +
           QString::number(date.year());
}

} // namespace velmora
