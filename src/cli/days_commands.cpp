#include "cli/days_commands.h"

#include "cli/line_days.h"
#include "cli/start.h"
#include "foncgen/foncgen.h"
#include "month/clipboard.h"
#include "month/deletion.h"
#include "session/records.h"

namespace velmora::cli
{

namespace
{

/// Why cut, copy and paste are closed on the first of the days, as on the cell of the window; empty when
/// they are open.
QString refusAbsence(Session &session, const JoursLigne &jours)
{
    if (!absjour(session, jours.ligne.nump, jours.debut)) return {};
    return QStringLiteral("La ligne %1 est absente le %2.")
        .arg(jours.ligne.nump)
        .arg(Foncgen::dtoc(jours.debut));
}

QString refusDeplacement(Session &session, const JoursLigne &source, const JoursLigne &cible)
{
    if (!source.refus.isEmpty()) return source.refus;
    if (!cible.refus.isEmpty()) return cible.refus;
    for (const JoursLigne &jours : {source, cible}) {
        const QString impossible = refusAbsence(session, jours);
        if (!impossible.isEmpty()) return impossible;
    }
    return horairesEntre(session, source.ligne.nump, source.debut, source.fin) ? QString() : pasDHoraire();
}

int deplace(Session &session, const Appel &appel, bool coupe)
{
    const QStringList vers = appel.arguments.valeurs("vers");
    const JoursLigne source = litJours(session, appel.mots[0], appel.mots[1], appel.mots[2]);
    const JoursLigne cible = litJours(session, vers[0], vers[1], vers[1]);
    const QString impossible = refusDeplacement(session, source, cible);
    if (!impossible.isEmpty()) return refus(impossible);
    Pressepapiers presse;
    presse.clipcoupe = coupe;
    const Retenue retenue = retientJours(session, presse, source.ligne, source.debut, source.fin);
    if (retenue == Retenue::Abandonnee) return refuse;
    return colleJours(session, presse, cible.ligne, cible.debut) ? reussi : refuse;
}

int supprime(Session &session, const Appel &appel)
{
    const JoursLigne jours = litJours(session, appel.mots[0], appel.mots[1], appel.mots.last());
    if (!jours.refus.isEmpty()) return refus(jours.refus);
    switch (supprimeJours(session, jours.ligne, jours.debut, jours.fin)) {
    case Suppression::SansObjet: return refus(QStringLiteral("Il n'y a ni absence ni horaire à supprimer."));
    case Suppression::Refusee:
    case Suppression::Abandonnee: return refuse;
    case Suppression::Faite: break;
    }
    return reussi;
}

} // namespace

int commandeCopier(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return deplace(session, appel, false); });
}

int commandeCouper(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return deplace(session, appel, true); });
}

int commandeSupprimer(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return supprime(session, appel); });
}

} // namespace velmora::cli
