#include "rules/walk.h"

#include "rules/day_limits.h"
#include "rules/rest_windows.h"
#include "rules/schedule_rest.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int semaine = 7;

/// The state of the rules on the way from the first Monday to the last.
class Marche
{
public:
    Marche(const Ligne &ligne, const SuiteJours &jours, const Lundis &lundis, const Maniere &maniere)
        : Marche(ligne, jours, lundis, maniere, lirejour(jours, lundis.premier.addDays(-1)))
    {
    }

    [[nodiscard]] Parcours fait() &&
    {
        const Lundis &lundis = m_parcours.lundis;
        if (!lundis.premier.isValid()) return std::move(m_parcours);
        for (QDate date = lundis.premier; date <= lundis.dernier; date = date.addDays(1)) {
            if (date.dayOfWeek() == Qt::Monday) commenceSemaine(date);
            passe(date);
        }
        return std::move(m_parcours);
    }

private:
    Marche(const Ligne &ligne, const SuiteJours &jours, const Lundis &lundis, const Maniere &maniere,
           const JourLu &veille)
        : m_ligne(ligne), m_jours(jours), m_maniere(maniere), m_parcours{lundis},
          m_suite(maniere.veilleComptee && veille.travaille() ? 1 : 0),
          m_repos(ligne.reposmin, finDeLaVeille(veille, maniere))
    {
    }

    static int finDeLaVeille(const JourLu &veille, const Maniere &maniere)
    {
        if (!veille.travaille()) return -minutesParJour;
        return maniere.veilleJugee ? veille.hfinjour : 0;
    }

    void commenceSemaine(const QDate &lundi)
    {
        const bool premiere = !m_semaine.lundi.isValid();
        if (!premiere && m_parcours.semaines.size() < m_maniere.semainesMaxi)
            m_parcours.semaines.push_back(m_semaine);
        m_semaine = {lundi};
    }

    void passe(const QDate &date)
    {
        const JourLu lu = lirejour(m_jours, date);
        const bool echec = lu.travaille() && jugeJour(m_ligne, *existejour(m_jours, date), lu, m_semaine);
        m_semaine.semheures += lu.hjour;
        const bool deTrop = m_suite.passe(lu.travaille());
        m_semaine.sem6j = m_semaine.sem6j || deTrop;
        if (echec || deTrop) m_parcours.dernierJour = date;
        const bool reprend = m_maniere.finParSemaine ? m_semaine.semheures > 0 : lu.travaille();
        if (m_repos.passe(lu, reprend)) ++m_semaine.semrepos;
    }

    const Ligne &m_ligne;
    const SuiteJours &m_jours;
    const Maniere &m_maniere;
    Parcours m_parcours;
    Semaine m_semaine; ///< the week under way
    JoursDeSuite m_suite;
    ReposHoraires m_repos;
};

} // namespace

bool aControles(const Ligne &ligne)
{
    return ligne.bcontrolh || ligne.b6j || ligne.bcontrolp || ligne.bcontrolr;
}

Lundis lundisDe(const Ligne &ligne, const QDate &debut, const QDate &fin)
{
    const QDate premier = std::max(debut, ligne.datedeb);
    const QDate dernier = std::min(fin, ligne.datefin);
    return {premier.addDays((semaine + 1 - premier.dayOfWeek()) % semaine),
            dernier.addDays(1 - dernier.dayOfWeek())};
}

Etendue etendueControlee(const Ligne &ligne, const QDate &debut, const QDate &fin)
{
    const Lundis lundis = lundisDe(ligne, debut, fin);
    return {lundis.premier.addDays(-1), lundis.dernier.addDays(semaine + joursFenetre - 1)};
}

const std::vector<int> &colonnesControlees(bool pauses)
{
    using Colonnes = store::Columns<JourSit>;
    static const auto horaire = Colonnes::of(&JourSit::dat, &JourSit::Val, &JourSit::heurdeb,
                                             &JourSit::heurfin, &JourSit::heurtrav, &JourSit::heurpaye);
    static const auto tranches =
        Colonnes::of(&JourSit::dat, &JourSit::Val, &JourSit::heurdeb, &JourSit::heurfin, &JourSit::heurtrav,
                     &JourSit::heurpaye, &JourSit::hdeb1, &JourSit::hfin1, &JourSit::hdeb2, &JourSit::hfin2,
                     &JourSit::hdeb3, &JourSit::hfin3, &JourSit::hdeb4, &JourSit::hfin4, &JourSit::hdeb5,
                     &JourSit::hfin5, &JourSit::hdeb6, &JourSit::hfin6);
    return pauses ? tranches : horaire;
}

Parcours parcourt(const Ligne &ligne, const SuiteJours &jours, const QDate &debut, const QDate &fin,
                  const Maniere &maniere)
{
    return Marche(ligne, jours, lundisDe(ligne, debut, fin), maniere).fait();
}

} // namespace velmora
