#include "cli/installation.h"

#include "cli/works.h"
#include "session/velmoral.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <pwd.h>
#include <unistd.h>

namespace velmora::cli
{

using store::Engine;
using store::FileKind;
using store::Status;

namespace
{

using Refus = std::optional<QString>;

/// Where everything of an installation lies.
struct Lieux {
    explicit Lieux(const Installation &demande)
        : dossierJournal(dossierAbsolu(demande.journal)), dossierBase(dossierAbsolu(demande.base)),
          journal(dossierJournal + store::fichierJournal), base(dossierBase + store::fichierBase),
          lien(dossierJournal + store::fichierBase), separes(!memeDossier(dossierJournal, dossierBase))
    {
    }

    static bool memeDossier(const QString &un, const QString &autre)
    {
        const QString canonique = QFileInfo(un).canonicalFilePath();
        return un == autre || (!canonique.isEmpty() && canonique == QFileInfo(autre).canonicalFilePath());
    }

    QString dossierJournal;
    QString dossierBase;
    QString journal;
    QString base;
    QString lien;
    bool separes;
};

bool present(const QString &chemin)
{
    return QFileInfo::exists(chemin) || QFileInfo(chemin).isSymLink();
}

bool meneA(const QString &lien, const QString &fichier)
{
    const QFileInfo info(lien);
    return info.isSymLink() &&
           (info.symLinkTarget() == fichier ||
            (info.exists() && info.canonicalFilePath() == QFileInfo(fichier).canonicalFilePath()));
}

Refus verifieBase(const Lieux &lieux)
{
    if (!present(lieux.base)) return std::nullopt;
    store::MainDatabase base;
    if (base.open(lieux.base).ok()) return std::nullopt;
    return QStringLiteral("Le fichier %1 est déjà là et n'est pas une base de données de Velmora que l'on "
                          "puisse ouvrir.")
        .arg(lieux.base);
}

/// A journal that is already there must be tied to the same base, or to none yet.
Refus verifieJournal(const Lieux &lieux)
{
    if (!present(lieux.journal)) return std::nullopt;
    store::JournalDatabase journal;
    if (!journal.open(lieux.journal).ok())
        return QStringLiteral("Le journal %1 est déjà là et ne peut pas être ouvert.").arg(lieux.journal);
    if (!journal.chemin.first() || Lieux::memeDossier(journal.chemin.row().chemin, lieux.dossierBase))
        return std::nullopt;
    return QStringLiteral("Le journal %1 est rattaché à un autre dossier : %2")
        .arg(lieux.journal, journal.chemin.row().chemin);
}

Refus verifie(const Lieux &lieux, bool neuve)
{
    const bool lienPret = !lieux.separes || meneA(lieux.lien, lieux.base);
    if (QFileInfo::exists(lieux.base) && QFileInfo::exists(lieux.journal) && lienPret) {
        return QStringLiteral("Les deux bases de données sont déjà là : %1 et %2")
            .arg(lieux.base, lieux.journal);
    }
    if (neuve && present(lieux.base))
        return QStringLiteral("La base de données %1 est déjà là.").arg(lieux.base);
    if (!lienPret && present(lieux.lien)) {
        return QStringLiteral("Le fichier %1 est déjà là et n'est pas un lien vers %2")
            .arg(lieux.lien, lieux.base);
    }
    const Refus refus = verifieBase(lieux);
    return refus ? refus : verifieJournal(lieux);
}

Status ajouteUtilisateur(store::MainDatabase &base, const Utilisateur &utilisateur)
{
    for (bool trouve = base.agent.first(); trouve; trouve = base.agent.next())
        if (base.agent.row().pseudo == utilisateur.pseudo) return {};
    Status status = base.agent.addNew();
    if (!status.ok()) return status;
    base.agent.values().pseudo = utilisateur.pseudo;
    base.agent.values().nom = utilisateur.nom;
    return base.agent.update();
}

/// Users, then the content, in one transaction.
Status ecritBase(store::MainDatabase &base, const std::vector<Utilisateur> &utilisateurs,
                 const Remplissage &remplit)
{
    Status status = base.engine.begin(Engine::Transaction::Write);
    for (const Utilisateur &utilisateur : utilisateurs)
        if (status.ok()) status = ajouteUtilisateur(base, utilisateur);
    if (status.ok() && remplit) status = remplit(base);
    if (status.ok()) status = base.engine.commit();
    if (!status.ok()) base.engine.rollback();
    return status;
}

Status creeBase(const QString &fichier, const Installation &demande, const Remplissage &remplit)
{
    Status status = store::createDatabase(fichier, FileKind::Main);
    store::MainDatabase base;
    if (status.ok()) status = base.open(fichier);
    if (!status.ok()) return status;
    const bool nommes = !demande.utilisateurs.empty();
    return ecritBase(base, nommes ? demande.utilisateurs : std::vector{demande.parDefaut}, remplit);
}

/// Names the base's folder in a journal that names none. A journal beside its base is left to tie itself at
/// the first start.
Status rattache(const QString &fichier, const Lieux &lieux)
{
    if (!lieux.separes) return {};
    store::JournalDatabase journal;
    Status status = journal.open(fichier);
    if (!status.ok() || journal.chemin.first()) return status;
    status = journal.chemin.addNew();
    journal.chemin.values() = {1, versionJournal, lieux.dossierBase};
    return status.ok() ? journal.chemin.update() : status;
}

Status creeJournal(const QString &fichier, const Lieux &lieux)
{
    const Status status = store::createDatabase(fichier, FileKind::Journal);
    return status.ok() ? rattache(fichier, lieux) : status;
}

/// Makes a file in a work folder beside its place and moves it there once it is finished.
Refus fabrique(Chantier &chantier, const QString &cible, const std::function<Status(const QString &)> &cree)
{
    const QFileInfo info(cible);
    const QTemporaryDir atelier(info.path() + QStringLiteral("/.velmora-XXXXXX"));
    const QString fini = atelier.filePath(info.fileName());
    if (atelier.isValid() && cree(fini).ok() && chantier.place(fini, cible)) return std::nullopt;
    return QStringLiteral("Le fichier %1 ne peut pas être créé.").arg(cible);
}

Refus ajouteUtilisateurs(const Lieux &lieux, const Installation &demande)
{
    if (demande.utilisateurs.empty()) return std::nullopt;
    store::MainDatabase base;
    Status status = base.open(lieux.base);
    if (status.ok()) status = ecritBase(base, demande.utilisateurs, {});
    if (status.ok()) return std::nullopt;
    return QStringLiteral("Les utilisateurs ne peuvent pas être ajoutés dans %1.").arg(lieux.base);
}

Refus poseJournal(Chantier &chantier, const Lieux &lieux)
{
    if (!present(lieux.journal)) {
        return fabrique(chantier, lieux.journal,
                        [&](const QString &fichier) { return creeJournal(fichier, lieux); });
    }
    if (rattache(lieux.journal, lieux).ok()) return std::nullopt;
    return QStringLiteral("Le journal %1 ne peut pas être écrit.").arg(lieux.journal);
}

Refus construit(Chantier &chantier, const Lieux &lieux, const Installation &demande,
                const Remplissage &remplit)
{
    for (const QString &dossier : {lieux.dossierJournal, lieux.dossierBase}) {
        if (!chantier.dossier(dossier))
            return QStringLiteral("Le dossier %1 ne peut pas être créé.").arg(dossier);
    }
    const bool jointe = present(lieux.base);
    Refus refus;
    if (!jointe) {
        refus = fabrique(chantier, lieux.base,
                         [&](const QString &fichier) { return creeBase(fichier, demande, remplit); });
    }
    if (!refus && lieux.separes && !present(lieux.lien) && !chantier.lie(lieux.base, lieux.lien))
        refus = QStringLiteral("Le lien %1 ne peut pas être créé.").arg(lieux.lien);
    if (!refus) refus = poseJournal(chantier, lieux);
    // What others may already read is written last, when nothing of this installation can fail any more.
    if (!refus && jointe) refus = ajouteUtilisateurs(lieux, demande);
    return refus;
}

} // namespace

std::optional<QString> installe(const Installation &demande, bool neuve, const Remplissage &remplit)
{
    const Lieux lieux(demande);
    Refus refus = verifie(lieux, neuve);
    if (refus) return refus;
    Chantier chantier;
    refus = construit(chantier, lieux, demande, remplit);
    if (!refus) chantier.garde();
    return refus;
}

Utilisateur utilisateurMachine()
{
    const passwd *compte = getpwuid(geteuid());
    if (!compte) return {QString::number(geteuid()), QString::number(geteuid())};
    const QString pseudo = QString::fromLocal8Bit(compte->pw_name);
    const QString nom = QString::fromLocal8Bit(compte->pw_gecos).section(QLatin1Char(','), 0, 0);
    return {pseudo, nom.isEmpty() ? pseudo : nom};
}

} // namespace velmora::cli
