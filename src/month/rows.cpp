#include "month/rows.h"

#include "month/absence_cells.h"
#include "month/cells.h"
#include "month/highlight.h"
#include "month/line_days.h"
#include "month/line_state.h"
#include "month/refresh.h"
#include "month/selection.h"
#include "session/batch.h"
#include "session/values.h"

#include <utility>

namespace velmora
{

namespace
{

QString total(const Planning &planning, int minutes)
{
    return QLatin1Char(' ') + hdeci(minutes, planning.session.totcent);
}

/// Fills one row from left to right, with its four running sums.
class Remplissage
{
public:
    Remplissage(Planning &planning, int nump, const SuiteJours &jours, int rangee)
        : m_planning(planning), m_grille(planning.grille), m_rangee(rangee),
          m_absences(planning.session, nump), m_codes(planning.session), m_jours(jours)
    {
    }

    void remplit()
    {
        for (int colonne = m_planning.premiereColonne(); colonne < m_grille.colonnes(); ++colonne) {
            const auto rang = static_cast<std::size_t>(colonne);
            if (m_planning.colonnes.coltot[rang])
                remplitTotal(colonne);
            else
                compte(colonne, remplitJour(colonne));
        }
        for (const store::Status &status : {m_absences.status(), m_codes.status()})
            m_planning.noteLecture(status);
    }

private:
    void remplitTotal(int colonne)
    {
        const Colonnes &colonnes = m_planning.colonnes;
        const auto rang = static_cast<std::size_t>(colonne);
        int somme = m_semaine;
        if (colonnes.colsem[rang])
            m_semaine = 0;
        else if (colonnes.colmois[rang])
            somme = m_vu;
        else if (colonnes.colavant[rang])
            somme = m_avant += m_grille.avantmois(m_rangee);
        else
            somme = m_apres;
        m_grille.fixeMinutes(colonne, m_rangee, somme);
        m_grille.ecrit(m_rangee, colonne, total(m_planning, somme));
    }

    int remplitJour(int colonne)
    {
        const JourSit *jour = m_jours.du(m_planning.date(colonne));
        if (!jour) return jourSansLigne(colonne);
        const Horaire horaire = horaireDuJour(*jour);
        return jour->Val ? jourValide(colonne, horaire) : jourInvalide(colonne, horaire.minutes);
    }

    int jourSansLigne(int colonne)
    {
        if (ferme(colonne)) return 0;
        m_grille.ecrit(m_rangee, colonne, {});
        return celabsence(m_planning, m_absences, m_codes, m_rangee, colonne, 0);
    }

    int jourInvalide(int colonne, int minutes)
    {
        if (!ferme(colonne)) m_grille.ecrit(m_rangee, colonne, {});
        return celabsence(m_planning, m_absences, m_codes, m_rangee, colonne, minutes);
    }

    int jourValide(int colonne, const Horaire &horaire)
    {
        const int mode = m_planning.session.modecellule;
        coloreCase(m_planning, {m_rangee, colonne},
                   m_planning.colonnes.fondjour[static_cast<std::size_t>(colonne)], palette::encre);
        m_grille.ecrit(m_rangee, colonne, m_planning.textes.texte(horaire, mode));
        // A row once made higher keeps its height, whatever it is filled with later. Wanted.
        if (troisLignes(horaire, mode))
            m_grille.fixeHauteur(m_rangee, (m_planning.mesures.hautligne * 3 + 1) / 2);
        return horaire.minutes;
    }

    [[nodiscard]] bool ferme(int colonne) const
    {
        return m_grille.lit(m_rangee, colonne).texte == texteFerme();
    }

    void compte(int colonne, int valeur)
    {
        const QDate date = m_planning.date(colonne);
        m_grille.fixeMinutes(colonne, m_rangee, valeur);
        m_semaine += valeur;
        if (date.month() == m_planning.periode.moisvu)
            m_vu += valeur;
        else if (date >= m_planning.periode.premier)
            m_apres += valeur;
        else
            m_avant += valeur;
    }

    Planning &m_planning;
    Grille &m_grille;
    int m_rangee;
    AbsencesLigne m_absences;
    CodesAbsence m_codes;
    const SuiteJours &m_jours;
    int m_semaine = 0;
    int m_vu = 0;
    int m_avant = 0;
    int m_apres = 0;
};

/// What a row shows, to be put back when its refill fails.
class RangeeGardee
{
public:
    RangeeGardee(Planning &planning, int rangee)
        : m_planning(planning), m_rangee(rangee), m_hauteur(planning.grille.hauteur(rangee)),
          m_surbrillance(planning.surbrillance)
    {
        for (int colonne = 0; colonne < planning.grille.colonnes(); ++colonne) {
            m_cases.push_back(planning.grille.lit(rangee, colonne));
            m_minutes.push_back(planning.grille.minutes(colonne, rangee));
        }
    }

    void remet()
    {
        Grille &grille = m_planning.grille;
        for (int colonne = 0; colonne < grille.colonnes(); ++colonne) {
            const Case &une = m_cases[static_cast<std::size_t>(colonne)];
            grille.ecrit(m_rangee, colonne, une.texte);
            grille.colore(m_rangee, colonne, une.fond, une.encre);
            grille.fixeMinutes(colonne, m_rangee, m_minutes[static_cast<std::size_t>(colonne)]);
        }
        grille.fixeHauteur(m_rangee, m_hauteur);
        m_planning.surbrillance = m_surbrillance;
    }

private:
    Planning &m_planning;
    int m_rangee;
    int m_hauteur;
    Surbrillance m_surbrillance;
    std::vector<Case> m_cases;
    std::vector<int> m_minutes;
};

/// The line as the table holds it now, which doesn't move. One that is gone has no controls.
Ligne ligneLue(Planning &planning, int nump)
{
    auto lignes = planning.session.base.ligmois.range("ligmois01", {nump}, {nump});
    Ligne ligne;
    ligne.nump = nump;
    if (lignes.next()) ligne = lignes.row();
    planning.noteLecture(lignes.status());
    return ligne;
}

/// `complete` is the line whose dates changed; without it the line is read.
void refait(Planning &planning, int nump, const Ligne *complete, int rangee)
{
    {
        const TravailGrille travail(planning);
        const ReadPass lecture(planning.session.base.engine);
        planning.lecture = {};
        RangeeGardee avant(planning, rangee);
        soustotal(planning, rangee);
        const Ligne ligne = complete ? *complete : ligneLue(planning, nump);
        const SuiteJours jours = joursDeLaGrille(planning, ligne);
        if (complete) marqueferme(planning, ligne, rangee);
        rempligne(planning, nump, jours, rangee);
        marqueControles(planning, ligne, rangee, jours);
        if (!planning.lecture.ok()) avant.remet();
        ajoutetotal(planning, rangee);
    }
    if (!planning.lecture.ok()) ditErreurBase(planning);
    majcommandes(planning);
}

} // namespace

QString texteFerme()
{
    return QStringLiteral("////");
}

void marqueferme(Planning &planning, const Ligne &ligne, int rangee)
{
    Grille &grille = planning.grille;
    for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne) {
        const QDate date = planning.date(colonne);
        const bool ferme = date < ligne.datedeb || date > ligne.datefin;
        const bool jour = planning.colonnes.estJour(colonne);
        const QString texteJour = ferme ? texteFerme() : QString();
        grille.ecrit(rangee, colonne, jour ? texteJour : QStringLiteral("0h00"));
        const bool normal = jour && !ferme;
        coloreCase(planning, {rangee, colonne},
                   normal ? planning.colonnes.fondjour[static_cast<std::size_t>(colonne)] : palette::fondFixe,
                   palette::encre);
    }
}

void sommeavant(Planning &planning, const SuiteJours &jours, int rangee)
{
    const Periode &periode = planning.periode;
    planning.grille.fixeAvantmois(rangee, 0);
    if (periode.debgrille.month() == periode.moisvu) return;
    const QDate premier(periode.debgrille.year(), periode.debgrille.month(), 1);
    int somme = 0;
    for (QDate date = premier; date < periode.debgrille; date = date.addDays(1)) {
        const JourSit *jour = jours.du(date);
        if (jour) somme += horaireDuJour(*jour).minutes;
    }
    planning.grille.fixeAvantmois(rangee, somme);
}

void rempligne(Planning &planning, int nump, const SuiteJours &jours, int rangee)
{
    Remplissage(planning, nump, jours, rangee).remplit();
}

void soustotal(Planning &planning, int rangee)
{
    Grille &grille = planning.grille;
    for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne) {
        grille.fixeMinutes(colonne, 0, grille.minutes(colonne, 0) - grille.minutes(colonne, rangee));
        grille.fixeMinutes(colonne, rangee, 0);
    }
}

void ajoutetotal(Planning &planning, int rangee)
{
    Grille &grille = planning.grille;
    for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne)
        grille.fixeMinutes(colonne, 0, grille.minutes(colonne, 0) + grille.minutes(colonne, rangee));
    ecritTotaux(planning);
}

void ecritTotaux(Planning &planning)
{
    Grille &grille = planning.grille;
    for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne)
        grille.ecrit(grille.derniereLigne(), colonne, total(planning, grille.minutes(colonne, 0)));
}

void majligne(Planning &planning, int nump, int rangee)
{
    refait(planning, nump, nullptr, rangee);
}

void refaitLignesRejouees(Planning &planning)
{
    const LignesRejouees &rejeu = planning.session.rejeu;
    for (int entree = 0; entree < rejeu.nbligrej; ++entree) {
        const auto rang = static_cast<std::size_t>(entree);
        if (rejeu.debrej[rang] > rejeu.finrej[rang]) continue;
        const int rangee = planning.grille.ligneDe(rejeu.ligrej[rang]);
        if (rangee >= 0) majligne(planning, rejeu.ligrej[rang], rangee);
    }
}

void majlignecomplet(Planning &planning, const Ligne &ligne, int rangee)
{
    refait(planning, ligne.nump, &ligne, rangee);
}

void retireRangee(Planning &planning, int rangee)
{
    const DessinSuspendu dessin(planning.grille);
    selvide(planning);
    soustotal(planning, rangee);
    planning.grille.retireLigne(rangee);
    ecritTotaux(planning);
    quitteRangee(planning, rangee);
}

void choisitCentiemes(Planning &planning, bool centiemes)
{
    if (std::exchange(planning.session.totcent, centiemes) == centiemes) return;
    Grille &grille = planning.grille;
    const DessinSuspendu dessin(grille);
    for (int rangee = Grille::lignesFixes; rangee < grille.derniereLigne(); ++rangee) {
        for (int colonne = planning.premiereColonne(); colonne < grille.colonnes(); ++colonne) {
            if (!planning.colonnes.estJour(colonne))
                grille.ecrit(rangee, colonne, total(planning, grille.minutes(colonne, rangee)));
        }
    }
    ecritTotaux(planning);
}

} // namespace velmora
