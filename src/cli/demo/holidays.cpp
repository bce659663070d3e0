#include "cli/demo/holidays.h"

#include "calendar/easter.h"

#include <algorithm>

namespace velmora::cli::demo
{

std::vector<JourFerie> feriesMetropole(int annee)
{
    const QDate lundi = paques(annee);
    const auto ferie = [](const QDate &date, const QString &lib) { return JourFerie{date, date, lib, 0, 1}; };
    // In the descending order of the rules: a date that is taken stays as it is.
    const std::vector<JourFerie> regles{
        ferie(lundi.addDays(49), QStringLiteral("Lundi de Pentecôte")),
        ferie(lundi.addDays(38), QStringLiteral("Ascension")),
        ferie(lundi, QStringLiteral("Lundi de Pâques")),
        ferie({annee, 12, 25}, QStringLiteral("Noël")),
        ferie({annee, 8, 15}, QStringLiteral("Assomption 15 Août")),
        ferie({annee, 11, 11}, QStringLiteral("Armistice")),
        ferie({annee, 11, 1}, QStringLiteral("Toussaint")),
        ferie({annee, 7, 14}, QStringLiteral("Fête Nationale")),
        ferie({annee, 5, 8}, QStringLiteral("Fin seconde Guerre Mondiale")),
        ferie({annee, 5, 1}, QStringLiteral("Fête du travail")),
        ferie({annee, 1, 1}, QStringLiteral("Nouvel An")),
    };
    std::vector<JourFerie> jours;
    for (const JourFerie &regle : regles) {
        const bool pris = std::any_of(jours.begin(), jours.end(),
                                      [&](const JourFerie &jour) { return jour.datedeb == regle.datedeb; });
        if (!pris) jours.push_back(regle);
    }
    return jours;
}

} // namespace velmora::cli::demo
