#include "cli/start.h"

#include "folders/folder_list.h"
#include "session/velmoral.h"

#include <QFileInfo>

#include <limits>

namespace velmora::cli
{

QString causeArret(const Session &session)
{
    using Code = store::Status::Code;
    const Code code = session.echecBase.code();
    const QFileInfo base(session.cheminjournal + store::fichierBase);
    if (!base.exists()) {
        return QStringLiteral("Le fichier %1 n'existe pas : « velmora init » avec les dossiers du journal et "
                              "de la base rattache ce poste.")
            .arg(base.filePath());
    }
    if (code == Code::Busy)
        return QStringLiteral("Le fichier %1 est tenu par un autre poste.").arg(base.filePath());
    if (code == Code::Full || code == Code::Io || !base.isWritable())
        return QStringLiteral("Le fichier %1 ne peut pas être écrit.").arg(base.filePath());
    return QStringLiteral("Le fichier %1 n'est pas une base de données de Velmora que l'on puisse ouvrir.")
        .arg(base.filePath());
}

int surSession(const Appel &appel, const std::function<int(Session &)> &travail)
{
    const SortieRetenue retenue; // outlives the session
    Velmoral velmoral(appel.host, Velmoral::Demarrage::ParLanceur, [](Session &) {});
    appel.host.siMuette([&velmoral] { return causeArret(velmoral.session()); });
    velmoral.ini(appel.poste.pseudo, appel.poste.journal, appel.poste.base);
    appel.host.siMuette({});
    return velmoral.demarree() ? travail(velmoral.session()) : refuse;
}

bool placeLigne(Session &session, const QString &nump)
{
    auto &ligmois = session.base.ligmois;
    ligmois.setIndex("ligmois01");
    const auto numero = entier(nump, 0, std::numeric_limits<int>::max());
    return numero && ligmois.seek(store::Cmp::Eq, {*numero});
}

QString refusDossier(Session &session, const QString &dossier)
{
    return dossier.isEmpty() || placedossier(session, dossier) ? QString() : dossierInconnu(dossier);
}

QString ligneInconnue(const QString &nump)
{
    return QStringLiteral("La ligne %1 n'existe pas.").arg(nump);
}

QString dateIllisible(const QString &date)
{
    return QStringLiteral("Date illisible : ") + date;
}

QString dossierInconnu(const QString &nom)
{
    return QStringLiteral("Le dossier « %1 » n'existe pas.").arg(nom);
}

QString tropLong(int longueur, const QString &texte)
{
    return QStringLiteral("Le texte « %1 » dépasse %2 caractères.").arg(texte, QString::number(longueur));
}

} // namespace velmora::cli
