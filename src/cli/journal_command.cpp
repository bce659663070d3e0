#include "cli/journal_command.h"

#include "cli/output.h"
#include "cli/start.h"

namespace velmora::cli
{

namespace
{

QString champ(int valeur)
{
    return QString::number(valeur);
}

int imprimeAnneau(Session &session)
{
    auto &logop = session.journal.logop;
    for (bool trouve = logop.first(); trouve; trouve = logop.next()) {
        const Operation &operation = logop.row();
        imprimeChamps({champ(operation.numop), champ(operation.ordop), champ(operation.nivop),
                       operation.ficop, champ(operation.valop ? -1 : 0), operation.libop});
    }
    return logop.status().ok() ? reussi : refus(QStringLiteral("Le journal ne peut pas être lu."));
}

} // namespace

int commandeJournal(const Appel &appel)
{
    return surSession(appel, imprimeAnneau);
}

} // namespace velmora::cli
