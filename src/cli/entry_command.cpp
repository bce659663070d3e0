#include "cli/entry_command.h"

#include "cli/line_days.h"
#include "cli/start.h"
#include "entry/derivation.h"
#include "entry/request.h"
#include "entry/storing.h"
#include "entry/typed_entry.h"
#include "foncgen/foncgen.h"

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

/// The third word is the last date when it is written as one.
Demande litDemande(const QStringList &mots)
{
    const bool deuxDates = mots[2].contains(QLatin1Char('/'));
    return {mots[0], mots[1], deuxDates ? mots[2] : mots[1], mots.mid(deuxDates ? 3 : 2)};
}

/// Start and end of each slice in turn; nothing when one can't be read.
std::optional<QStringList> litHeures(const QStringList &tranches)
{
    QStringList heures;
    for (const QString &tranche : tranches) {
        const QStringList bornes = tranche.split(QLatin1Char('-'));
        if (bornes.size() != 2) return std::nullopt;
        for (const QString &borne : bornes)
            if (Foncgen::valhor(borne) == Foncgen::horsPlage) return std::nullopt;
        heures << bornes;
    }
    return heures;
}

int enregistre(Session &session, const QStringList &heures)
{
    const auto saisie = normaliseTranches(heures);
    if (!saisie) {
        session.host.message(horaireEnAnomalie(), titre);
        return refuse;
    }
    const bool ecrit =
        ecrihor(session, journeeSaisie(session), jourDeSaisie(saisie->textes(), saisie->total()));
    return ecrit ? reussi : refuse;
}

int saisit(Session &session, const Demande &demande)
{
    const JoursLigne jours = litJours(session, demande.nump, demande.debut, demande.fin);
    if (!jours.refus.isEmpty()) return refus(jours.refus);
    const auto heures = litHeures(demande.tranches);
    if (!heures)
        return refus(QStringLiteral("Horaire illisible : ") + demande.tranches.join(QLatin1Char(' ')));
    if (!prepareSaisie(session, jours.ligne.nom, jours.ligne.nump, jours.debut, jours.fin)) return refuse;
    return enregistre(session, *heures);
}

} // namespace

int commandeSaisie(const Appel &appel)
{
    const Demande demande = litDemande(appel.mots);
    if (demande.tranches.isEmpty() || demande.tranches.size() > 3)
        return mauvaisUsage(QStringLiteral("une à trois tranches H-H sont attendues"));
    return surSession(appel, [&](Session &session) { return saisit(session, demande); });
}

} // namespace velmora::cli
