#include "cli/entry_command.h"

#include "cli/start.h"
#include "entry/request.h"
#include "entry/typed_entry.h"
#include "foncgen/foncgen.h"

#include <limits>

namespace velmora::cli
{

namespace
{

/// The words of the command taken apart.
struct Demande {
    QString nump;
    QString debut;
    QString fin;
    QStringList tranches;
};

/// The second date is the one word after the first that is written as a date.
Demande litDemande(const QStringList &mots)
{
    const bool deuxDates = mots[2].contains(QLatin1Char('/'));
    return {mots[0], mots[1], deuxDates ? mots[2] : mots[1], mots.mid(deuxDates ? 3 : 2)};
}

/// The hours of the slices, start and end in turn; the first text that can't be read in `illisible`.
struct Heures {
    QStringList textes;
    QString illisible;
};

Heures litHeures(const QStringList &tranches)
{
    Heures heures;
    for (const QString &tranche : tranches) {
        const QStringList bornes = tranche.split(QLatin1Char('-'));
        if (bornes.size() != 2) return {{}, tranche};
        for (const QString &borne : bornes)
            if (Foncgen::valhor(borne) == Foncgen::horsPlage) return {{}, borne};
        heures.textes << bornes;
    }
    return heures;
}

int horsLigne(const Ligne &ligne)
{
    return 0;
}

} // namespace

int commandeSaisie(const Appel &appel)
{
    return surSession(appel, [](Session &) { return 0; });
}

} // namespace velmora::cli
