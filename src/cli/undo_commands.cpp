#include "cli/undo_commands.h"

#include "cli/start.h"
#include "journal/replay.h"

namespace velmora::cli
{

namespace
{

int annule(Session &session)
{
    if (!operationAAnnuler(session)) return refus(QStringLiteral("Il n'y a aucune opération à annuler."));
    annulop(session);
    return reussi;
}

int refait(Session &session)
{
    if (!operationARefaire(session)) return refus(QStringLiteral("Il n'y a aucune opération à refaire."));
    refaitop(session);
    return reussi;
}

} // namespace

int commandeAnnuler(const Appel &appel)
{
    return surSession(appel, annule);
}

int commandeRefaire(const Appel &appel)
{
    return surSession(appel, refait);
}

} // namespace velmora::cli
