#include "entry/typed_entry.h"

#include "foncgen/foncgen.h"

namespace velmora
{

QString horaireEnAnomalie()
{
    return QStringLiteral("horaire en anomalie !");
}

std::optional<SaisieHoraire> normaliseTranches(const QStringList &heures)
{
    if (heures.size() > SaisieHoraire::nbChamps) return std::nullopt;
    SaisieHoraire saisie;
    saisie.ouvre(std::nullopt);
    for (int champ = 1; champ <= heures.size(); ++champ) {
        const QString &heure = heures.at(champ - 1);
        if (!saisie.permis(champ) || !dansLeJour(Foncgen::valhor(heure))) return std::nullopt;
        saisie.focusGagne(champ);
        saisie.change(champ, heure);
        saisie.focusPerdu(champ);
    }
    if (!saisie.normhor()) return std::nullopt;
    return saisie;
}

} // namespace velmora
