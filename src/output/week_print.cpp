#include "output/week_print.h"

#include "foncgen/foncgen.h"
#include "month/cells.h"
#include "output/page_head.h"
#include "output/printed_days.h"

#include <algorithm>
#include <array>

namespace velmora
{

namespace
{

constexpr int jours = 7;
constexpr double taille = 8;
constexpr QRgb encreNormale = 0xff000000U;

// Columns of the page grid. Texts stand a column to the right of the rule before them.
constexpr int cadreGauche = 1;
constexpr int cadreDroite = 113;
constexpr int colonneNom = 2;
constexpr int premierJour = 18;
constexpr int largeurJour = 12;
constexpr int colonneEffectives = 107;
constexpr int colonneAbsences = 113;
constexpr int cadreTotaux = 77;
constexpr int lignesTotaux = 2;

constexpr int colonneJour(int jour)
{
    return premierJour + jour * largeurJour;
}
constexpr int regleAvant(int colonne)
{
    return colonne - 1;
}
/// The rules before each day and before the totals.
constexpr std::array<int, 8> regles = [] {
    std::array<int, 8> toutes{};
    for (int jour = 0; jour <= jours; ++jour)
        toutes[static_cast<std::size_t>(jour)] = regleAvant(colonneJour(jour));
    return toutes;
}();

// Widths that texts may take.
constexpr int placeNom = (premierJour - colonneNom - 1) * papier::largeurColonne - 40;
constexpr int placeJour = (largeurJour - 1) * papier::largeurColonne - 40;
constexpr int placeTotal = (colonneAbsences - colonneEffectives) * papier::largeurColonne - 60;
constexpr int placeLibelle = (regleAvant(colonneJour(jours)) - cadreTotaux - 1) * papier::largeurColonne;

struct CaseSemaine {
    QString texte;
    int lignes = 1;
    bool absence = false;
    bool couleur = false; ///< the cell has the colours of its code
    QRgb fond = 0;
    QRgb encre = 0;
};

struct RangeeSemaine {
    QString nom;
    std::array<CaseSemaine, jours> cases;
    int effectives = 0;
    int absences = 0;
    int hauteur = 1;
};

QString heures(int minutes)
{
    return Foncgen::fwhl(minutes, 5);
}

QString titreJour(const QDate &date)
{
    static const std::array noms{QStringLiteral("Dim"), QStringLiteral("Lun"), QStringLiteral("Mar"),
                                 QStringLiteral("Mer"), QStringLiteral("Jeu"), QStringLiteral("Ven"),
                                 QStringLiteral("Sam")};
    return noms[static_cast<std::size_t>(date.dayOfWeek() % jours)] + QLatin1Char(' ') + Foncgen::dtoc(date);
}

/// What a cell says of an absence: the short label, failing that the code, "?" for an unknown one.
QString texteAbsence(const AbsenceImprimee &absence)
{
    if (!absence.code) return QStringLiteral("?");
    return absence.code->libecour.isEmpty() ? absence.codabs : absence.code->libecour;
}

CaseSemaine caseDe(const JourImprime &jour, bool couleur)
{
    CaseSemaine une;
    if (jour.horaire) {
        une.texte = texteHoraire(*jour.horaire, TranchesJour);
        une.lignes = static_cast<int>(une.texte.count(QLatin1Char('\n'))) + 1;
    } else if (jour.absence) {
        une.texte = texteAbsence(*jour.absence);
        une.absence = true;
        une.couleur = couleur && jour.absence->code && jour.absence->code->bcouleur;
    }
    if (une.couleur) {
        une.fond = 0xff000000U | static_cast<QRgb>(jour.absence->code->backc);
        une.encre = 0xff000000U | static_cast<QRgb>(jour.absence->code->forec);
    }
    return une;
}

RangeeSemaine rangeeDe(const LigneImprimee &ligne, const std::vector<JourImprime> &lus,
                       const ChoixSemaine &choix)
{
    RangeeSemaine rangee{.nom = ligne.nom, .cases = {}};
    for (std::size_t jour = 0; jour < rangee.cases.size(); ++jour) {
        const JourImprime &un = lus[jour];
        rangee.cases[jour] = caseDe(un, choix.couleur);
        rangee.hauteur = std::max(rangee.hauteur, rangee.cases[jour].lignes);
        rangee.effectives += un.minutes();
        if (choix.valorisees) rangee.absences += un.minutesAbsence();
    }
    return rangee;
}

/// The rows of the week, read line by line so that no lock is held meanwhile.
std::vector<RangeeSemaine> litRangees(Session &session, const ChoixSemaine &choix, const Progres &progres,
                                      store::Status &statut)
{
    const QDate dernier = choix.premier.addDays(jours - 1);
    const auto lignes = lignesImprimees(session, choix.premier, dernier, choix.dossier, statut);
    CodesAbsence codes(session);
    std::vector<RangeeSemaine> rangees;
    for (const LigneImprimee &ligne : lignes) {
        const auto lus = joursImprimes(session, codes, ligne.nump, choix.premier, dernier, statut);
        rangees.push_back(rangeeDe(ligne, lus, choix));
        progres(static_cast<int>(rangees.size()), static_cast<int>(2 * lignes.size()));
    }
    return rangees;
}

/// Rows of each page, as ranks past the last one, within `place` lines.
std::vector<std::size_t> finsDePage(const std::vector<RangeeSemaine> &rangees, int place)
{
    std::vector<std::size_t> fins;
    int libre = place;
    for (std::size_t rang = 0; rang < rangees.size(); ++rang) {
        const int reserve = rang + 1 == rangees.size() ? lignesTotaux : 0;
        if (rangees[rang].hauteur + reserve > libre) {
            fins.push_back(rang);
            libre = place;
        }
        libre -= rangees[rang].hauteur;
    }
    fins.push_back(rangees.size());
    return fins;
}

/// Draws the table of a week.
class TableSemaine
{
public:
    TableSemaine(Imprimante &imprimante, const ChoixSemaine &choix) : m_imprimante(imprimante), m_choix(choix)
    {
        m_imprimante.oriente(QPageLayout::Landscape);
    }

    void imprime(const std::vector<RangeeSemaine> &rangees, EntetePage entete, const Progres &progres)
    {
        // The first line below the head has the titles of the columns.
        const int place = m_imprimante.derniereLigne() - premiereLigne(entete);
        const std::vector<std::size_t> fins = finsDePage(rangees, place);
        entete.nbpages = static_cast<int>(fins.size());
        const auto total = static_cast<int>(rangees.size());
        int ligneimp = 0;
        std::size_t rang = 0;
        for (const std::size_t fin : fins) {
            ligneimp = commencePage(entete);
            for (; rang < fin; ++rang) {
                imprimeRangee(rangees[rang], ligneimp);
                progres(total + static_cast<int>(rang) + 1, 2 * total);
            }
        }
        imprimeTotaux(rangees, ligneimp);
    }

private:
    int commencePage(const EntetePage &entete)
    {
        int ligneimp = entetepage(m_imprimante, entete);
        m_imprimante.fixePolice(taille);
        if (m_tailleHeures == 0)
            m_tailleHeures = m_imprimante.taillePour(QStringLiteral("10h40 - 20h40"), placeJour);
        Foncgen::pprint(m_imprimante, ligneimp, colonneNom, QStringLiteral("Nom "));
        for (int jour = 0; jour < jours; ++jour)
            ecritAjuste(ligneimp, colonneJour(jour), titreJour(m_choix.premier.addDays(jour)), placeJour,
                        Foncgen::pprint);
        const QString effectives = QStringLiteral("Tot. H. Eff.");
        ecritAjuste(ligneimp, colonneEffectives, effectives, placeTotal, Foncgen::pprintd);
        ecritAjuste(ligneimp, colonneAbsences, QStringLiteral("Tot. abs."), placeTotal, Foncgen::pprintd);
        encadre(ligneimp, 1);
        return ligneimp;
    }

    /// Writes a text that is never shortened: it gets smaller where its place is too narrow.
    template <class Service>
    void ecritAjuste(int ligne, int colonne, const QString &texte, int place, Service service)
    {
        m_imprimante.fixePolice(m_imprimante.taillePour(texte, place));
        service(m_imprimante, ligne, colonne, texte);
        m_imprimante.fixePolice(taille);
    }

    /// Frames the lines of a row and goes on below it.
    void encadre(int &ligneimp, int hauteur)
    {
        Foncgen::tabl(m_imprimante, ligneimp, cadreGauche, ligneimp + hauteur - 1, cadreDroite, true, true,
                      true, true, regles);
        ++ligneimp;
    }

    void imprimeRangee(const RangeeSemaine &rangee, int &ligneimp)
    {
        for (int jour = 0; jour < jours; ++jour)
            imprimeCase(rangee.cases[static_cast<std::size_t>(jour)], jour, ligneimp, rangee.hauteur);
        int ligne = ligneimp;
        Foncgen::pprint(m_imprimante, ligne, colonneNom, m_imprimante.abrege(rangee.nom, placeNom));
        ecritAjuste(ligneimp, colonneEffectives, heures(rangee.effectives), placeTotal, Foncgen::pprintd);
        ecritAjuste(ligneimp, colonneAbsences, heures(rangee.absences), placeTotal, Foncgen::pprintd);
        encadre(ligneimp, rangee.hauteur);
    }

    void imprimeCase(const CaseSemaine &une, int jour, int ligneimp, int hauteur)
    {
        if (!une.absence) return imprimeHeures(une, jour, ligneimp);
        const int gauche = regleAvant(colonneJour(jour));
        int ligne = ligneimp;
        if (une.couleur) {
            Foncgen::remplir(m_imprimante, ligne, gauche, ligneimp + hauteur - 1, gauche + largeurJour,
                             une.fond);
            m_imprimante.fixeEncre(une.encre);
        }
        ligne = ligneimp;
        Foncgen::pprintc(m_imprimante, ligne, gauche + largeurJour / 2,
                         m_imprimante.abrege(une.texte, placeJour));
        if (une.couleur) m_imprimante.fixeEncre(encreNormale);
    }

    void imprimeHeures(const CaseSemaine &une, int jour, int ligne)
    {
        m_imprimante.fixePolice(m_tailleHeures);
        Foncgen::pprint(m_imprimante, ligne, colonneJour(jour), une.texte);
        m_imprimante.fixePolice(taille);
    }

    void imprimeTotaux(const std::vector<RangeeSemaine> &rangees, int ligneimp)
    {
        int effectives = 0;
        int absences = 0;
        for (const RangeeSemaine &rangee : rangees) {
            effectives += rangee.effectives;
            absences += rangee.absences;
        }
        const int libelles = regleAvant(colonneJour(jours));
        ecritAjuste(ligneimp, libelles, QStringLiteral("H. EFF. TOTAL :"), placeLibelle, Foncgen::pprintd);
        ecritAjuste(ligneimp, colonneEffectives, heures(effectives), placeTotal, Foncgen::pprintd);
        ecritAjuste(ligneimp + 1, libelles, QStringLiteral(" ABS. TOTAL :"), placeLibelle, Foncgen::pprintd);
        ecritAjuste(ligneimp + 1, colonneAbsences, heures(absences), placeTotal, Foncgen::pprintd);
        Foncgen::tabl(m_imprimante, ligneimp, cadreTotaux, ligneimp + lignesTotaux - 1, cadreDroite, true,
                      true, true, true, {libelles});
    }

    Imprimante &m_imprimante;
    ChoixSemaine m_choix;
    double m_tailleHeures = 0; ///< at which a slice of hours fits in its cell, whatever the font
};

} // namespace

Impression impressionSemaine(Session &session, const ChoixSemaine &choix)
{
    const QString titreSemaine = QStringLiteral("Planning hebdomadaire");
    return {titreSemaine, [&session, choix, titreSemaine](Imprimante &imprimante, const Progres &progres) {
                store::Status statut;
                const auto rangees = litRangees(session, choix, progres, statut);
                const QString dossier =
                    choix.dossier.isEmpty() ? QString() : QStringLiteral("Dossier : ") + choix.dossier;
                TableSemaine(imprimante, choix)
                    .imprime(rangees, {session.nometab, titreSemaine, dossier, 0}, progres);
                return statut;
            }};
}

} // namespace velmora
