#include "cli/entry_command.h"

#include "cli/start.h"
#include "entry/derivation.h"
#include "entry/request.h"
#include "entry/storing.h"
#include "entry/typed_entry.h"
#include "foncgen/foncgen.h"
#include "month/period.h"

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

/// Why a run of dates can't be entered on the line that `ligmois` is on; empty when it can. The dates that a
/// month shows are the ones that can be entered.
QString refusDates(Session &session, const QDate &debut, const QDate &fin)
{
    if (fin < debut) return QStringLiteral("La date de fin est avant la date de début.");
    const QDate premiere = periodeDuMois(session.datemin.month(), session.datemin.year()).debgrille;
    const QDate derniere = periodeDuMois(session.datemax.month(), session.datemax.year()).fingrille;
    if (debut < premiere || fin > derniere) {
        return QStringLiteral("Les dates vont du %1 au %2.")
            .arg(Foncgen::dtoc(premiere), Foncgen::dtoc(derniere));
    }
    const Ligne &ligne = session.base.ligmois.row();
    if (fin <= ligne.datefin && prepareSaisie(session, ligne.nom, ligne.nump, debut, fin)) return {};
    return QStringLiteral("La ligne n'est ouverte que du %1 au %2.")
        .arg(Foncgen::dtoc(ligne.datedeb), Foncgen::dtoc(ligne.datefin));
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
    if (!placeLigne(session, demande.nump)) return refus(ligneInconnue(demande.nump));
    const QDate debut = Foncgen::ctod(demande.debut);
    const QDate fin = Foncgen::ctod(demande.fin);
    if (!debut.isValid()) return refus(dateIllisible(demande.debut));
    if (!fin.isValid()) return refus(dateIllisible(demande.fin));
    const auto heures = litHeures(demande.tranches);
    if (!heures)
        return refus(QStringLiteral("Horaire illisible : ") + demande.tranches.join(QLatin1Char(' ')));
    const QString impossible = refusDates(session, debut, fin);
    return impossible.isEmpty() ? enregistre(session, *heures) : refus(impossible);
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
