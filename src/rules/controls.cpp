#include "rules/controls.h"

#include "rules/walk.h"
#include "session/records.h"

namespace velmora
{

SuiteJours joursControles(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin)
{
    const Etendue etendue = etendueControlee(ligne, debut, fin);
    SuiteJours jours(etendue.premier, etendue.dernier);
    litSuite(session, ligne.nump, colonnesControlees(controlePauses(ligne)), jours).ignore();
    return jours;
}

bool rapportcontrole(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin)
{
    if (!aControles(ligne)) return false;
    const QString texte = rapportcontrole(ligne, joursControles(session, ligne, debut, fin), debut, fin);
    jeuaudate(session, session.host.today());
    // The title with its capital, unlike most messages. Wanted.
    if (!texte.isEmpty()) session.host.message(texte, QStringLiteral("Velmora"));
    return true;
}

} // namespace velmora
