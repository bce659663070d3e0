#include "workstation/backup.h"

#include "session/guards.h"
#include "session/opening.h"
#include "session/velmoral.h"
#include "store/copying_lock.h"
#include "store/sqlite_engine.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <filesystem>

namespace velmora
{

namespace
{

using Fault = store::CopyOutcome::Fault;

struct Fichier {
    QString nom;
    std::chrono::milliseconds attente; ///< for another workstation's lock
};

/// A journal that is held is held as long as its session lives.
constexpr std::chrono::milliseconds attenteJournal(300);
const std::array<Fichier, 2> fichiers{
    {{store::fichierBase, store::OpenOptions().busyWait}, {store::fichierJournal, attenteJournal}}};
constexpr int lettresMini = 2;
const QString cheminAbsent = QStringLiteral("chemin absent");
const QString nonRetrouve = QStringLiteral("Chemin non retrouvé ou périphérique indisponible!");

bool memeDossier(const QString &un, const QString &autre)
{
    std::error_code erreur;
    return std::filesystem::equivalent(QFile::encodeName(un).toStdString(),
                                       QFile::encodeName(autre).toStdString(), erreur);
}

/// Whether a workstation lives in a folder: its journal is held, or its base is a link to a shared one. A
/// shared base with no such journal beside it can't be told from a copy: while nobody writes, nothing holds
/// it.
bool habite(const QString &dossier)
{
    const QString debut = avecSeparateur(dossier);
    if (QFileInfo(debut + store::fichierBase).isSymLink()) return true;
    const QString fichier = debut + store::fichierJournal;
    store::SqliteEngine journal;
    return QFileInfo::exists(fichier) &&
           journal.open(fichier, {.readOnly = true, .busyWait = attenteJournal}).code() ==
               store::Status::Code::Busy;
}

/// A target that can't be noted is no reason to go without the copies.
void retientCible(Session &session, const QString &dossier)
{
    auto &tnum = session.base.tnum;
    if (!editgarde(session, tnum).ok()) return;
    tnum.values().chemin = dossier;
    tnum.update().ignore();
}

QString phraseSource(const QString &source, const store::Status &status)
{
    using Code = store::Status::Code;
    if (!QFileInfo::exists(source)) return QStringLiteral("le fichier %1 n'existe pas").arg(source);
    if (status.code() == Code::Busy)
        return QStringLiteral("le fichier %1 est tenu par un autre poste").arg(source);
    if (status.code() == Code::Damaged)
        return QStringLiteral("le fichier %1 est endommagé, « velmora verifie » dit en quoi").arg(source);
    return QStringLiteral("le fichier %1 ne peut pas être lu").arg(source);
}

QString phraseCible(const QString &dossier, const store::Status &status)
{
    using Code = store::Status::Code;
    if (status.code() == Code::Busy)
        return QStringLiteral("une autre sauvegarde est en cours dans %1").arg(dossier);
    if (status.code() == Code::Full) return QStringLiteral("il n'y a plus de place dans %1").arg(dossier);
    if (status.code() == Code::CantOpen || status.code() == Code::ReadOnly)
        return QStringLiteral("aucun fichier ne peut être écrit dans %1").arg(dossier);
    return QStringLiteral("l'écriture dans %1 a échoué").arg(dossier);
}

/// The two copies of a backup, in the order in which they are made.
class Copies
{
public:
    explicit Copies(const Session &session, QString dossier)
        // The journal is copied from the base's folder too, although it is opened in its own: wanted so.
        : m_origine(session.cheminbase), m_dossier(std::move(dossier))
    {
    }

    /// Two backups at once would leave the base of one with the journal of the other.
    void copie(const store::CopyProgress &progression)
    {
        store::CopyingLock place(avecSeparateur(m_dossier) + QStringLiteral("velmora"));
        const store::Status prise = place.take();
        if (!prise.ok()) return m_issues.fill({Fault::Target, prise});
        for (std::size_t i = 0; i < fichiers.size(); ++i) {
            const auto avance = [&](int fait, int total) {
                if (progression) progression(int(i) * total + fait, int(fichiers.size()) * total);
            };
            const auto &[nom, attente] = fichiers[i];
            m_issues[i] =
                store::copyDatabase(m_origine + nom, avecSeparateur(m_dossier) + nom, {attente, avance});
        }
    }

    [[nodiscard]] bool completes() const
    {
        return std::all_of(m_issues.begin(), m_issues.end(), [](const auto &issue) { return issue.ok(); });
    }

    [[nodiscard]] QString bilan() const
    {
        if (completes()) {
            return QStringLiteral("Sauvegarde effectuée et vérifiée : %1 et %2 sont copiés dans %3.")
                .arg(fichiers[0].nom, fichiers[1].nom, m_dossier);
        }
        if (!QFileInfo(m_dossier).isDir()) return nonRetrouve;
        QStringList lignes{QStringLiteral("La sauvegarde n'est pas complète.")};
        for (std::size_t i = 0; i < fichiers.size(); ++i)
            lignes << phrase(i);
        return lignes.join(QLatin1Char('\n'));
    }

private:
    [[nodiscard]] QString phrase(std::size_t i) const
    {
        const auto &[faute, status] = m_issues[i];
        const QString &fichier = fichiers[i].nom;
        if (faute == Fault::None) return QStringLiteral("%1 est copié et vérifié.").arg(fichier);
        const QString raison = faute == Fault::Target ? phraseCible(m_dossier, status)
                                                      : phraseSource(m_origine + fichier, status);
        return QStringLiteral("%1 n'est pas copié : %2.").arg(fichier, raison);
    }

    QString m_origine;
    QString m_dossier;
    std::array<store::CopyOutcome, 2> m_issues;
};

/// The folder named is the base's for the journal too, which was opened in its own: wanted so.
void ditNonRouverte(Session &session, const QString &fichier)
{
    session.host.message(QStringLiteral("la réouverture de la base de données ") + session.cheminbase +
                             fichier +
                             QStringLiteral(" ne peut s'effectuer normalement! => fermeture du logiciel"),
                         titre);
}

bool rouvre(Session &session)
{
    if (!ouvrejournal(session)) return ditNonRouverte(session, store::fichierJournal), false;
    if (!ouvrebase(session)) return ditNonRouverte(session, store::fichierBase), false;
    return true;
}

} // namespace

CibleSauvegarde cibleSauvegarde(const Session &session, QString texte)
{
    if (texte.size() < lettresMini) return {{}, cheminAbsent};
    if (texte.endsWith(QLatin1Char('\\')) || texte.endsWith(QLatin1Char('/'))) texte.chop(1);
    if (!QFileInfo(texte).isDir()) return {{}, nonRetrouve};
    for (const QString &dossier : {session.cheminbase, session.cheminjournal}) {
        if (memeDossier(texte, dossier))
            return {{},
                    QStringLiteral("Les bases de données sont déjà dans ce dossier : indiquez-en un autre.")};
    }
    if (habite(texte)) {
        return {
            {},
            QStringLiteral("Un poste se sert des bases de données de ce dossier : indiquez-en un autre.")};
    }
    return {texte, {}};
}

QString derniereCible(Session &session)
{
    auto &tnum = session.base.tnum;
    return tnum.first() ? tnum.row().chemin : QString();
}

Sauvegarde sauvegarde(Session &session, const QString &dossier, const store::CopyProgress &progression)
{
    retientCible(session, dossier);
    session.base.close();
    session.journal.close();
    Copies copies(session, dossier);
    copies.copie(progression);
    const bool rouvertes = rouvre(session);
    return {copies.completes(), rouvertes, copies.bilan()};
}

} // namespace velmora
