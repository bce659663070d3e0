#include "month/day_bars.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace velmora
{

namespace
{

struct Intervalle {
    int de = 0;
    int a = 0;
};

/// The cuts in their order, within the day's hours.
std::array<Intervalle, 2> coupesDe(const HeuresBarre &heures, int fin)
{
    std::array<Intervalle, 2> coupes{{{heures.hideb, heures.hifin}, {heures.hideb2, heures.hifin2}}};
    for (Intervalle &coupe : coupes) {
        if (coupe.de == coupe.a) continue;
        for (int *heure : {&coupe.de, &coupe.a}) {
            if (*heure < heures.heurdeb) *heure += minutesParJour;
            *heure = std::min(*heure, fin);
        }
    }
    if (coupes[1].de < coupes[0].de) std::swap(coupes[0], coupes[1]);
    return coupes;
}

} // namespace

const Graduations &graduationsZoom()
{
    static const Graduations graduations{{120, "6h"},   {240, "8h"},   {360, "10h"}, {480, "12h"},
                                         {600, "14h"},  {720, "16h"},  {840, "18h"}, {960, "20h"},
                                         {1080, "22h"}, {1200, "24h"}, {1320, "2h"}, {1380, "3h"}};
    return graduations;
}

const Graduations &graduationsJour()
{
    static const Graduations graduations{{120, "2h"},   {240, "4h"},   {360, "6h"},  {480, "8h"},
                                         {600, "10h"},  {720, "12h"},  {840, "14h"}, {960, "16h"},
                                         {1080, "18h"}, {1200, "20h"}, {1320, "22h"}};
    return graduations;
}

int pixelDe(int position, int largeur)
{
    return static_cast<int>(position * static_cast<double>(largeur) / minutesParJour + 0.5);
}

std::vector<Barre> barresDe(const HeuresBarre &heures)
{
    const int fin = heures.heurfin < heures.heurdeb ? heures.heurfin + minutesParJour : heures.heurfin;
    std::vector<Barre> barres;
    const auto ajoute = [&barres](SorteBarre sorte, int de, int a) {
        if (a > de) barres.push_back({sorte, de, a});
    };
    int debut = heures.heurdeb;
    for (const Intervalle &coupe : coupesDe(heures, fin)) {
        if (coupe.a <= coupe.de || coupe.a <= debut) continue;
        ajoute(SorteBarre::Travail, debut, coupe.de);
        ajoute(SorteBarre::Coupe, std::max(debut, coupe.de), coupe.a);
        debut = coupe.a;
    }
    ajoute(SorteBarre::Travail, debut, fin);
    return barres;
}

std::vector<Barre> decale(const std::vector<Barre> &barres, int minutes)
{
    std::vector<Barre> decalees;
    for (Barre barre : barres) {
        barre.de = std::max(barre.de + minutes, 0);
        barre.a = std::min(barre.a + minutes, minutesParJour);
        if (barre.a > barre.de) decalees.push_back(barre);
    }
    return decalees;
}

std::vector<Barre> barresSurLHorloge(const HeuresBarre &heures)
{
    std::vector<Barre> travail = barresDe(heures);
    std::erase_if(travail, [](const Barre &barre) { return barre.sorte != SorteBarre::Travail; });
    std::vector<Barre> surLHorloge = decale(travail, 0);
    for (const Barre &barre : decale(travail, -minutesParJour))
        surLHorloge.push_back(barre);
    return surLHorloge;
}

} // namespace velmora
