#include "rules/rest_windows.h"

namespace velmora
{

namespace
{

constexpr int deuxJours = 2 * minutesParJour;

/// The rests of one window: how many of one and of two days.
struct Repos {
    int simples = 0;
    int doubles = 0;
};

/// The minutes rested so far. They run on from one window into the next: only work clears them. Wanted.
class Cumul
{
public:
    Repos compte(const SuiteJours &jours, const QDate &debut)
    {
        m_repos = {};
        m_debord = 0;
        for (int rang = 0; rang < joursFenetre; ++rang) {
            const JourSit *jour = existejour(jours, debut.addDays(rang));
            if (!jour || !jour->Val || jour->heurpaye == 0)
                repose();
            else
                travaille(*jour);
        }
        return m_repos;
    }

private:
    void repose()
    {
        ajoute(minutesParJour - m_debord);
        m_enrepos = true;
        m_debord = 0;
    }

    /// Only the morning of the day after a rest belongs to it, not the evening of the day before. Wanted.
    void travaille(const JourSit &jour)
    {
        if (m_enrepos) ajoute(jour.heurdeb);
        m_simple = m_double = 0;
        m_enrepos = false;
        // A day that ends by midnight leaves what a night before it took of the next rest. Wanted.
        if (jour.heurfin < jour.heurdeb) m_debord = jour.heurfin;
    }

    void ajoute(int minutes)
    {
        m_simple += minutes;
        m_double += minutes;
        for (; m_simple >= minutesParJour; m_simple -= minutesParJour)
            ++m_repos.simples;
        for (; m_double >= deuxJours; m_double -= deuxJours)
            ++m_repos.doubles;
    }

    Repos m_repos;
    int m_simple = 0; ///< minutes towards the next rest of a day, and of two
    int m_double = 0;
    int m_debord = 0; ///< minutes of a rest that the night before it took
    bool m_enrepos = false;
};

} // namespace

std::vector<FenetreRepos> fenetresEnDefaut(const Ligne &ligne, const SuiteJours &jours,
                                           const QDate &premierLundi, const QDate &dernierLundi)
{
    constexpr int semaine = 7;
    std::vector<FenetreRepos> defauts;
    if (!ligne.bcontrolr || !premierLundi.isValid()) return defauts;
    Cumul cumul;
    const QDate dernier = dernierLundi.addDays(semaine);
    for (QDate debut = premierLundi; debut <= dernier; debut = debut.addDays(semaine)) {
        const Repos repos = cumul.compte(jours, debut);
        const FenetreRepos fenetre{debut, repos.simples < ligne.nrep, repos.doubles < ligne.nrepd};
        if (fenetre.hebdo || fenetre.contigus) defauts.push_back(fenetre);
    }
    return defauts;
}

} // namespace velmora
