#include "entry/slices.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int debutDeJournee = 540; // 9h00: a day that starts before it reads better on the day scale

} // namespace

bool dansLeJour(int minutes)
{
    return minutes >= 0 && minutes <= minutesParJour;
}

void cascade(Tranches &tranches)
{
    const auto vide =
        std::find_if(tranches.begin(), tranches.end(), [](const Tranche &t) { return t.vide(); });
    if (vide != tranches.end()) std::fill(vide, tranches.end(), Tranche(*vide));
}

void enchaine(Tranches &tranches)
{
    for (std::size_t i = 1; i < tranches.size(); ++i) {
        Tranche &tranche = tranches[i];
        const int finAvant = tranches[i - 1].fin;
        if (tranche.deb >= finAvant || tranche.passeMinuit()) continue;
        tranche.deb = finAvant;
        tranche.fin = std::max(tranche.fin, finAvant);
    }
}

void chaineVides(Tranches &tranches, std::size_t premier, int x)
{
    for (std::size_t j = premier; j < tranches.size(); ++j) {
        if (tranches[j].vide()) {
            tranches[j] = {x, x};
        } else {
            x = tranches[j].fin;
        }
    }
}

int totalMinutes(const Tranches &tranches)
{
    int total = 0;
    for (const Tranche &tranche : tranches)
        total += tranche.minutes();
    return total;
}

bool echelleDeNuit(const Tranches &tranches)
{
    int premierDebut = 2 * minutesParJour;
    for (const Tranche &tranche : tranches) {
        if (tranche.vide()) continue;
        premierDebut = std::min(premierDebut, tranche.deb);
        if (tranche.passeMinuit()) return premierDebut >= debutDeJournee;
    }
    return false;
}

std::vector<Trait> traits(const Tranches &tranches)
{
    std::vector<Trait> resultat;
    int decalage = 0;
    for (const Tranche &tranche : tranches) {
        if (tranche.vide()) continue;
        Trait trait{tranche.deb + decalage, tranche.fin + decalage};
        if (trait.b < trait.a) {
            trait.b += minutesParJour;
            decalage = minutesParJour;
        }
        resultat.push_back(trait);
    }
    return resultat;
}

} // namespace velmora
