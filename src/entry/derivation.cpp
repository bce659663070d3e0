#include "entry/derivation.h"

#include "foncgen/foncgen.h"

#include <algorithm>
#include <initializer_list>

namespace velmora
{

namespace
{

constexpr int typeHoraire = 1;
constexpr std::size_t nbTranches = 6; // as many as a row holds; only the first three can be typed
constexpr std::size_t nbSaisies = 3;

using TranchesDuJour = std::array<Tranche, nbTranches>;

TranchesDuJour lit(const SaisieHoraire::Textes &textes)
{
    TranchesDuJour tranches{};
    for (std::size_t i = 0; i < nbSaisies; ++i)
        tranches[i] = {Foncgen::valhor(textes[2 * i]), Foncgen::valhor(textes[2 * i + 1])};
    return tranches;
}

/// One pass: an empty slice takes the place of its successor only once, so two empty ones in a row leave one.
void compacte(TranchesDuJour &tranches)
{
    for (std::size_t i = 0; i < tranches.size(); ++i)
        if (tranches[i].vide())
            std::copy(tranches.begin() + static_cast<std::ptrdiff_t>(i) + 1, tranches.end(),
                      tranches.begin() + static_cast<std::ptrdiff_t>(i));
}

void retarde(TranchesDuJour &tranches, std::size_t premier)
{
    for (std::size_t j = premier; j < nbSaisies; ++j) {
        tranches[j].deb += minutesParJour;
        tranches[j].fin += minutesParJour;
    }
}

/// Moves what comes after the first midnight one day on.
void deroule(TranchesDuJour &tranches)
{
    const int debut = tranches[0].deb;
    for (std::size_t i = 0; i < nbSaisies; ++i) {
        if (tranches[i].deb < debut) return retarde(tranches, i);
        if (tranches[i].fin < debut || tranches[i].passeMinuit()) {
            tranches[i].fin += minutesParJour;
            return retarde(tranches, i + 1);
        }
    }
}

/// The first two gaps between the slices go to the first and the second cut.
void coupures(const TranchesDuJour &tranches, JourSit &jour)
{
    for (std::size_t i = 0; i < nbSaisies; ++i) {
        const Tranche &suivante = tranches[i + 1];
        if (suivante.deb == tranches[i].fin || suivante.vide()) continue;
        if (jour.hideb == 0 && jour.hifin == 0) {
            jour.hideb = tranches[i].fin;
            jour.hifin = suivante.deb;
        } else if (jour.hideb2 == 0 && jour.hifin2 == 0) {
            jour.hideb2 = tranches[i].fin;
            jour.hifin2 = suivante.deb;
        }
    }
}

int derniereFin(const TranchesDuJour &tranches)
{
    int fin = tranches[0].fin;
    for (std::size_t i = 1; i < nbSaisies; ++i)
        if (!tranches[i].vide()) fin = std::max(fin, tranches[i].fin);
    return fin;
}

/// Back to the clock. 1440 stays: 24h00 is the end of a day.
void rameneALHorloge(int &minutes)
{
    if (minutes > minutesParJour) minutes -= minutesParJour;
}

void videSiEgales(int &deb, int &fin)
{
    if (deb == fin) deb = fin = 0;
}

/// Clears cuts without length. A second cut isn't moved up into the place of an empty first one: that is
/// wanted.
void videCoupures(JourSit &jour)
{
    videSiEgales(jour.hideb2, jour.hifin2);
    videSiEgales(jour.hideb, jour.hifin);
}

void rangeTranches(TranchesDuJour tranches, JourSit &jour)
{
    for (Tranche &tranche : tranches) {
        rameneALHorloge(tranche.deb);
        rameneALHorloge(tranche.fin);
        videSiEgales(tranche.deb, tranche.fin);
    }
    jour.hdeb1 = tranches[0].deb;
    jour.hfin1 = tranches[0].fin;
    jour.hdeb2 = tranches[1].deb;
    jour.hfin2 = tranches[1].fin;
    jour.hdeb3 = tranches[2].deb;
    jour.hfin3 = tranches[2].fin;
}

} // namespace

JourSit jourDeSaisie(const SaisieHoraire::Textes &textes, const QString &total)
{
    TranchesDuJour tranches = lit(textes);
    compacte(tranches);
    deroule(tranches);
    JourSit jour;
    jour.Type = typeHoraire;
    jour.Val = true;
    jour.horaire = QStringLiteral("");
    coupures(tranches, jour);
    jour.heurdeb = tranches[0].deb;
    jour.heurfin = derniereFin(tranches);
    for (int *moment : {&jour.heurfin, &jour.hideb, &jour.hifin, &jour.hideb2, &jour.hifin2})
        rameneALHorloge(*moment);
    videCoupures(jour);
    rangeTranches(tranches, jour);
    jour.heurtrav = jour.heurpaye = Foncgen::valhor(total);
    return jour;
}

} // namespace velmora
