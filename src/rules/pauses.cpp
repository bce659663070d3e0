#include "rules/pauses.h"

#include <array>

namespace velmora
{

namespace
{

constexpr int seuilPause = 360;
constexpr int seuilDeuxPauses = 720;
constexpr int margeDeuxPauses = 20;

struct Tranche {
    int deb;
    int fin;

    [[nodiscard]] int duree() const { return fin - deb; }
};

/// The day's six slices on one scale: what lies before the first start belongs to the next day. An empty
/// slice moves as a whole and stays empty.
std::array<Tranche, 6> tranches(const JourSit &jour)
{
    std::array<Tranche, 6> toutes{{{jour.hdeb1, jour.hfin1},
                                   {jour.hdeb2, jour.hfin2},
                                   {jour.hdeb3, jour.hfin3},
                                   {jour.hdeb4, jour.hfin4},
                                   {jour.hdeb5, jour.hfin5},
                                   {jour.hdeb6, jour.hfin6}}};
    for (Tranche &une : toutes)
        for (int *heure : {&une.deb, &une.fin})
            if (*heure < jour.hdeb1) *heure += minutesParJour;
    return toutes;
}

/// What has been worked and rested from the first slice on.
class Cumul
{
public:
    explicit Cumul(const Tranche &premiere)
        : m_longueur(premiere.duree()), m_travail(premiere.duree()), m_fin(premiere.fin)
    {
    }

    [[nodiscard]] bool respecte(int pause) const
    {
        if (m_longueur > seuilPause) return false;
        if (m_travail > seuilDeuxPauses && m_pauses < pause + margeDeuxPauses) return false;
        return m_travail <= seuilPause || m_pause >= pause;
    }

    void ajoute(const Tranche &precedente, const Tranche &une)
    {
        if (une.deb != une.fin) {
            const bool coupure = une.deb > m_fin;
            m_pause = coupure ? une.deb - precedente.fin : 0;
            // A slice that joins the one before it leaves the end where it was. Wanted.
            if (coupure) m_fin = une.fin;
        }
        m_longueur = une.duree();
        m_travail += m_longueur;
        // The last break counts once more for each empty slice behind it. Wanted.
        m_pauses += m_pause;
    }

private:
    int m_pause = 0;  ///< the last break
    int m_pauses = 0; ///< breaks so far
    int m_longueur;   ///< of the last slice
    int m_travail;    ///< work so far
    int m_fin;        ///< the last end before a break
};

} // namespace

bool pauseok(const JourSit &jour, int pause)
{
    if (pause == 0) return true;
    const auto toutes = tranches(jour);
    Cumul cumul(toutes.front());
    // Each test looks at what stands before the slice is added. Wanted: the last one counts only at the end.
    for (std::size_t i = 1; i < toutes.size(); ++i) {
        if (!cumul.respecte(pause)) return false;
        cumul.ajoute(toutes[i - 1], toutes[i]);
    }
    return cumul.respecte(pause);
}

} // namespace velmora
