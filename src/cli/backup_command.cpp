#include "workstation/backup.h"

#include "cli/families.h"
#include "cli/start.h"

#include <QDir>

namespace velmora::cli
{

namespace
{

int sauve(Session &session, const QString &dossier)
{
    const CibleSauvegarde cible = cibleSauvegarde(session, dossier);
    if (!cible.refus.isEmpty()) return refus(cible.refus);
    // The base remembers the target for every workstation, wherever it is started.
    const bool relatif = QDir::isRelativePath(cible.dossier);
    const Sauvegarde faite =
        sauvegarde(session, relatif ? QFileInfo(cible.dossier).canonicalFilePath() : cible.dossier);
    if (!faite.complete) return refus(faite.bilan);
    imprime(faite.bilan);
    return faite.rouvertes ? reussi : refuse;
}

int commandeSauvegarde(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return sauve(session, appel.mots[0]); });
}

} // namespace

std::vector<Commande> commandesSauvegarde()
{
    return {{"sauvegarde",
             "DOSSIER",
             "copie les deux bases de données dans un dossier et vérifie les copies",
             1,
             1,
             {},
             commandeSauvegarde}};
}

} // namespace velmora::cli
