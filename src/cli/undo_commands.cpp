#include "cli/undo_commands.h"

#include "cli/start.h"
#include "journal/replay.h"

namespace velmora::cli
{

namespace
{

int rend(bool fait)
{
    return fait ? reussi : refuse;
}

int annule(Session &session)
{
    if (!operationAAnnuler(session)) return refus(QStringLiteral("Il n'y a aucune opération à annuler."));
    return rend(annulop(session));
}

int refait(Session &session)
{
    if (!operationARefaire(session)) return refus(QStringLiteral("Il n'y a aucune opération à refaire."));
    return rend(refaitop(session));
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
