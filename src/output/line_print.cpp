#include "output/line_print.h"

#include "foncgen/foncgen.h"
#include "output/page_head.h"

#include <algorithm>
#include <array>

namespace velmora
{

namespace
{

constexpr double taille = 9;

// Columns of the page grid.
constexpr int cadreGauche = 9;
constexpr int cadreDroite = 70;
constexpr int colonneTotal = 10;
constexpr int colonneDate = 12;
constexpr int regleDate = 24;
constexpr int colonneTexte = 27;
constexpr int colonnePeriode = 47;
constexpr int colonneDont = 52;
constexpr int colonneSemaine = 57;
constexpr int largeurDate = (regleDate - colonneDate) * papier::largeurColonne - 60;
constexpr int largeurJour = (cadreDroite - colonneTexte) * papier::largeurColonne - 60;

QString heures(int minutes)
{
    return Foncgen::fwhl(minutes, 5);
}

QString nomJour(const QDate &date)
{
    static const std::array noms{QStringLiteral("Lun"), QStringLiteral("Mar"), QStringLiteral("Mer"),
                                 QStringLiteral("Jeu"), QStringLiteral("Ven"), QStringLiteral("Sam"),
                                 QStringLiteral("Dim")};
    return noms[static_cast<std::size_t>(date.dayOfWeek() - 1)];
}

bool separe(const QDate &date)
{
    return date.dayOfWeek() == Qt::Saturday;
}

/// Days of one week within the period, as ranks from its first day, and the lines that they take.
struct Semaine {
    int debut = 0;
    int fin = 0;    ///< past its last day
    int lignes = 1; ///< with that of its sum
};

std::vector<Semaine> semaines(const QDate &premier, const QDate &dernier)
{
    std::vector<Semaine> toutes;
    int rang = 0;
    for (QDate date = premier; date <= dernier; date = date.addDays(1), ++rang) {
        if (rang == 0 || date.dayOfWeek() == Qt::Monday) toutes.push_back({rang, rang, 1});
        toutes.back().fin = rang + 1;
        toutes.back().lignes += separe(date) ? 2 : 1;
    }
    return toutes;
}

using Page = std::vector<Semaine>;

/// The weeks shared out over pages: none is cut in two, and the line of totals stays with the last.
std::vector<Page> pagesDe(const QDate &premier, const QDate &dernier, int place)
{
    std::vector<Page> pages(1);
    int libre = place;
    const std::vector<Semaine> toutes = semaines(premier, dernier);
    for (const Semaine &semaine : toutes) {
        const int besoin = semaine.lignes + (semaine.fin == toutes.back().fin ? 1 : 0);
        if (besoin > libre && !pages.back().empty()) {
            pages.emplace_back();
            libre = place;
        }
        pages.back().push_back(semaine);
        libre -= semaine.lignes;
    }
    return pages;
}

QString contenu(const JourImprime &jour)
{
    QString texte = jour.horaire ? texteTemps(*jour.horaire) : QStringLiteral("  -  ");
    if (jour.absence) texte += QStringLiteral("  ") + motifabs(*jour.absence);
    return texte;
}

/// Draws the pages of lines over one period.
class PlanningImprime
{
public:
    PlanningImprime(Session &session, Imprimante &imprimante, const QDate &premier, const QDate &dernier)
        : m_session(session), m_codes(session), m_imprimante(imprimante), m_premier(premier),
          m_dernier(dernier)
    {
        m_entete.nometab = session.nometab;
        m_entete.titre1 = QStringLiteral("PLANNING DU ") + Foncgen::dtoc(premier) + QStringLiteral(" AU ") +
                          Foncgen::dtoc(dernier);
        m_entete.titre2 = titreEnsemble();
        m_pages = pagesDe(premier, dernier, imprimante.derniereLigne() - premiereLigne(m_entete) + 1);
    }

    /// The first failure of a reading.
    [[nodiscard]] store::Status &statut() { return m_statut; }

    void imprime(const std::vector<LigneImprimee> &lignes, const Progres &progres)
    {
        m_entete.nbpages = static_cast<int>(lignes.size() * m_pages.size());
        m_total = static_cast<int>(lignes.size()) * nombreJours();
        for (const LigneImprimee &ligne : lignes)
            imprimeLigne(ligne, progres);
        if (lignes.empty()) static_cast<void>(entetepage(m_imprimante, m_entete));
    }

private:
    [[nodiscard]] int nombreJours() const { return static_cast<int>(m_premier.daysTo(m_dernier)) + 1; }

    void imprimeLigne(const LigneImprimee &ligne, const Progres &progres)
    {
        m_jours = joursImprimes(m_session, m_codes, ligne.nump, m_premier, m_dernier, m_statut);
        m_cumperiode = m_cumabs = 0;
        m_entete.titre2 = ligne.nom;
        for (const Page &page : m_pages)
            imprimePage(page, &page == &m_pages.back(), progres);
    }

    void imprimePage(const Page &page, bool derniere, const Progres &progres)
    {
        int ligneimp = entetepage(m_imprimante, m_entete);
        prendPolice();
        int debut = ligneimp;
        for (const Semaine &semaine : page)
            imprimeSemaine(semaine, ligneimp, progres);
        int bas = ligneimp - 1;
        if (derniere) imprimeTotaux(ligneimp);
        Foncgen::tabl(m_imprimante, debut, cadreGauche, bas, cadreDroite, true, true, true, true,
                      {regleDate});
    }

    /// The size at which the longest hours still fit in their column, whatever the font.
    void prendPolice()
    {
        m_imprimante.fixePolice(taille);
        if (m_taille == 0) {
            const QString longues = texteTemps({600, 1200, 630, 660, 690, 720, 0});
            m_taille = std::min(m_imprimante.taillePour(longues, largeurJour),
                                m_imprimante.taillePour(QStringLiteral("Mer 00/00/0000"), largeurDate));
        }
        m_imprimante.fixePolice(m_taille);
    }

    void imprimeSemaine(const Semaine &semaine, int &ligneimp, const Progres &progres)
    {
        int debut = ligneimp;
        int cumsemaine = 0;
        for (int rang = semaine.debut; rang < semaine.fin; ++rang) {
            const QDate date = m_premier.addDays(rang);
            const JourImprime &jour = m_jours[static_cast<std::size_t>(rang)];
            if (separe(date)) ++ligneimp;
            imprimeJour(date, jour, ligneimp);
            ++ligneimp;
            cumsemaine += jour.minutes() + jour.minutesAbsence();
            m_cumabs += jour.minutesAbsence();
            progres(++m_faits, m_total);
        }
        m_cumperiode += cumsemaine;
        Foncgen::pprint(m_imprimante, ligneimp, colonneSemaine,
                        QStringLiteral("( ") + heures(cumsemaine) + QStringLiteral(" )"));
        Foncgen::tabl(m_imprimante, debut, cadreGauche, ligneimp, cadreDroite, true, true, true, true);
        ++ligneimp;
    }

    void imprimeJour(const QDate &date, const JourImprime &jour, int &ligneimp)
    {
        Foncgen::pprint(m_imprimante, ligneimp, colonneDate,
                        nomJour(date) + QLatin1Char(' ') + Foncgen::dtoc(date));
        const QString texte = contenu(jour);
        // Hours fit by the size of the font; only a label may be too long.
        Foncgen::pprint(m_imprimante, ligneimp, colonneTexte,
                        jour.absence ? m_imprimante.abrege(texte, largeurJour) : texte);
    }

    void imprimeTotaux(int ligneimp)
    {
        const QString periode = heures(m_cumperiode);
        const double fin = papier::x(colonnePeriode) + m_imprimante.largeurTexte(periode);
        // A long total pushes what follows it.
        const int apres = static_cast<int>(fin / papier::largeurColonne) + 2;
        Foncgen::pprint(m_imprimante, ligneimp, colonneTotal, QStringLiteral("Total des heures:"));
        Foncgen::pprint(m_imprimante, ligneimp, colonnePeriode, periode);
        Foncgen::pprint(m_imprimante, ligneimp, std::max(colonneDont, apres),
                        QStringLiteral("( dont ") + heures(m_cumabs) + QStringLiteral(" d'absence)"));
        Foncgen::tabl(m_imprimante, ligneimp, cadreGauche, ligneimp, cadreDroite, true, true, true, true);
    }

    Session &m_session;
    CodesAbsence m_codes;
    Imprimante &m_imprimante;
    QDate m_premier;
    QDate m_dernier;
    EntetePage m_entete;
    std::vector<Page> m_pages; ///< of one line; all have the same
    store::Status m_statut;
    double m_taille = 0;
    std::vector<JourImprime> m_jours; ///< of the line under way
    int m_cumperiode = 0;             ///< absences included
    int m_cumabs = 0;
    int m_faits = 0;
    int m_total = 0;
};

} // namespace

QString titreEnsemble()
{
    return QStringLiteral("Ensemble de lignes");
}

QString texteTemps(const Horaire &horaire)
{
    const auto coupe = [](int debut, int fin) {
        return QStringLiteral(" - ") + heures(debut) + QStringLiteral("  et  ") + heures(fin);
    };
    if (!horaire.premiereCoupe())
        return heures(horaire.heurdeb) + QStringLiteral("        -       ") + heures(horaire.heurfin);
    QString texte = heures(horaire.heurdeb) + coupe(horaire.hideb, horaire.hifin);
    if (horaire.secondeCoupe()) texte += coupe(horaire.hideb2, horaire.hifin2);
    return texte + QStringLiteral(" - ") + heures(horaire.heurfin);
}

Impression impressionLigne(Session &session, const LigneImprimee &ligne, const QDate &premier,
                           const QDate &dernier)
{
    return {QStringLiteral("Planning de ") + ligne.nom,
            [&session, ligne, premier, dernier](Imprimante &imprimante, const Progres &progres) {
                PlanningImprime planning(session, imprimante, premier, dernier);
                planning.imprime({ligne}, progres);
                return planning.statut();
            }};
}

Impression impressionEnsemble(Session &session, const QDate &premier, const QDate &dernier,
                              const QString &dossier)
{
    return {titreEnsemble(),
            [&session, premier, dernier, dossier](Imprimante &imprimante, const Progres &progres) {
                PlanningImprime planning(session, imprimante, premier, dernier);
                const auto lignes = lignesImprimees(session, premier, dernier, dossier, planning.statut());
                planning.imprime(lignes, progres);
                return planning.statut();
            }};
}

} // namespace velmora
