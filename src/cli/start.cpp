#include "cli/start.h"

#include "session/velmoral.h"

#include <QFileInfo>

namespace velmora::cli
{

QString causeArret(const QString &cheminjournal)
{
    const QFileInfo base(cheminjournal + store::fichierBase);
    if (!base.exists()) {
        return QStringLiteral("Le fichier %1 n'existe pas : « velmora init » avec les dossiers du journal et "
                              "de la base rattache ce poste.")
            .arg(base.filePath());
    }
    if (!base.isWritable())
        return QStringLiteral("Le fichier %1 ne peut pas être écrit.").arg(base.filePath());
    return QStringLiteral("Le fichier %1 n'est pas une base de données de Velmora que l'on puisse ouvrir.")
        .arg(base.filePath());
}

int surSession(const Appel &appel, const std::function<int(Session &)> &travail)
{
    Velmoral velmoral(appel.host, Velmoral::Demarrage::ParLanceur, [](Session &) {});
    appel.host.siMuette([&velmoral] { return causeArret(velmoral.session().cheminjournal); });
    velmoral.ini(appel.poste.pseudo, appel.poste.journal, appel.poste.base);
    appel.host.siMuette({});
    return velmoral.demarree() ? travail(velmoral.session()) : refuse;
}

} // namespace velmora::cli
