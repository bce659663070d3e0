#include "output/practised_print.h"

#include "output/printed_grid.h"

#include <numeric>

namespace velmora
{

Impression impressionHoraires(const std::vector<HorairePratique> &horaires, const QDate &debut,
                              const QDate &fin, const QString &nometab)
{
    GrilleImprimee grille{titresHoraires(), {}};
    for (const HorairePratique &horaire : horaires)
        grille.rangees << textesHoraire(horaire);
    const QString titrePage = titreHoraires(debut, fin);
    return {titrePage, [=](Imprimante &imprimante, const Progres &) {
                QList<int> colonnes(grille.titres.size());
                std::iota(colonnes.begin(), colonnes.end(), 0);
                Foncgen::msfgimpr(imprimante, grille, titrePage, nometab, QLatin1Char('P'), colonnes);
                return store::Status{};
            }};
}

} // namespace velmora
