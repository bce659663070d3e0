#include "session/help.h"

#include <QFileInfo>

namespace velmora
{

void ouvreaide(Session &session, const QString &page)
{
    QString &courante = session.pagecourante;
    if (courante.isEmpty()) courante = QStringLiteral("sommaire.htm");
    if (!page.isEmpty()) courante = page;
    for (const QString &dossier : {QString(), session.cheminjournal})
        if (QFileInfo(dossier + courante).isFile()) {
            lanceassocie(session, dossier + courante);
            return;
        }
    lanceassocie(session, session.urlaide + courante);
}

bool lanceassocie(Session &session, const QString &cible)
{
    return session.host.open(cible);
}

} // namespace velmora
