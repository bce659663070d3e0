#include "store/verification.h"

#include "store/structure_checks.h"
#include "store/verification_rules.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>

namespace velmora::store
{

namespace
{

using Constats = std::vector<Constat>;
using Step = Statement::Step;

constexpr auto faute = Constat::Gravite::Faute;
constexpr auto remarque = Constat::Gravite::Remarque;

/// What a rule tells one by one; of the rest only how many.
constexpr int ditsParRegle = 20;

/// A column's value as the user reads it.
QString valeur(const Statement &statement, int column)
{
    const auto utf8 = statement.columnText(column);
    const QString texte = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    const QDate date = texte.size() == 10 ? QDate::fromString(texte, Qt::ISODate) : QDate();
    return date.isValid() ? date.toString(QStringLiteral("dd/MM/yyyy")) : texte;
}

/// All places are filled at once: a value may hold a percent sign and a digit.
QString phrase(const char *modele, const Statement &rangee)
{
    QString dite;
    for (const char *c = modele; *c; ++c) {
        const bool place = *c == '%' && c[1] >= '1' && c[1] <= '9';
        const char *fin = c + 1;
        while (!place && *fin && *fin != '%')
            ++fin;
        if (place)
            dite += valeur(rangee, *++c - '1');
        else {
            dite += QString::fromUtf8(c, fin - c);
            c = fin - 1;
        }
    }
    return dite;
}

void applique(Engine &engine, const Regle &regle, bool complete, Constats &constats)
{
    const auto statement = engine.prepare(QString::fromUtf8(regle.sql));
    // A table or a column that is missing has been told.
    if (!statement && !complete && engine.status().code() == Status::Code::Misuse) return;
    if (!statement) return constats.push_back(controleImpossible(engine.status()));
    int trouves = 0;
    Step step = statement->step();
    for (; step == Step::Row; step = statement->step())
        if (trouves++ < ditsParRegle) constats.push_back({regle.gravite, phrase(regle.phrase, *statement)});
    if (step == Step::Failed) constats.push_back(controleImpossible(statement->status()));
    if (trouves > ditsParRegle) {
        constats.push_back(
            {regle.gravite, QStringLiteral("d'autres sont comme ce dernier constat (nombre : %1).")
                                .arg(trouves - ditsParRegle)});
    }
}

Constats verifie(Engine &engine, FileKind kind, const std::vector<const Schema *> &schemas,
                 const std::vector<Regle> &regles)
{
    const Status pris = engine.begin(Engine::Transaction::Read);
    if (!pris.ok()) return {controleImpossible(pris)};
    Structure structure = verifieStructure(engine, kind, schemas);
    for (const Regle &regle : regles)
        applique(engine, regle, structure.complete, structure.constats);
    engine.rollback();
    return structure.constats;
}

QString inouvrable(const Status &status)
{
    switch (status.code()) {
    case Status::Code::Busy:
        return QStringLiteral(
            "le fichier est tenu par une session ouverte : il se vérifie une fois qu'elle est "
            "fermée.");
    case Status::Code::NotADatabase: return QStringLiteral("le fichier n'est pas une base de données.");
    case Status::Code::Damaged: return QStringLiteral("la structure est abîmée : le fichier ne s'ouvre pas.");
    default: return QStringLiteral("le fichier ne peut pas être lu.");
    }
}

/// Opens a file to read it. Only a connection with the right to write undoes an unfinished transaction; it is
/// held to that.
Status ouvre(Engine &engine, const QString &fichier, std::chrono::milliseconds attente)
{
    Status status = engine.open(fichier, {.busyWait = attente});
    if (status.code() == Status::Code::ReadOnly || status.code() == Status::Code::CantOpen)
        status = engine.open(fichier, {.readOnly = true, .busyWait = attente});
    return status.ok() ? engine.execute(QStringLiteral("PRAGMA query_only = ON")) : status;
}

Constats verifieFichier(const QString &fichier, Constats (*controle)(Engine &),
                        std::chrono::milliseconds attente = OpenOptions{}.busyWait)
{
    if (!QFileInfo::exists(fichier))
        return {{faute, QStringLiteral("le fichier %1 n'existe pas.").arg(fichier)}};
    SqliteEngine engine;
    const Status ouvert = ouvre(engine, fichier, attente);
    if (!ouvert.ok()) return {{faute, inouvrable(ouvert)}};
    return controle(engine);
}

/// The folder that the journal names for the main database, empty when it names none or can't be read.
QString dossierNomme(const QString &journal)
{
    SqliteEngine engine;
    if (!QFileInfo::exists(journal) || !ouvre(engine, journal, journalWait).ok()) return {};
    const auto chemin = engine.prepare(QStringLiteral("SELECT chemin FROM chemin LIMIT 1"));
    return chemin && chemin->step() == Step::Row ? valeur(*chemin, 0) : QString();
}

/// A session looks for the base where the journal says and opens the one beside the journal.
Constats verifieRattachement(const QString &journal, const QString &base)
{
    const QString dossier = dossierNomme(journal);
    if (dossier.isEmpty()) return {};
    const QFileInfo nommee(QDir(dossier).filePath(fichierBase));
    if (!nommee.exists()) {
        return {{faute, QStringLiteral("le journal nomme le dossier %1, où il n'y a pas de base de données.")
                            .arg(dossier)}};
    }
    if (!QFileInfo::exists(base) || nommee.canonicalFilePath() == QFileInfo(base).canonicalFilePath())
        return {};
    return {{remarque, QStringLiteral("le journal nomme le dossier %1, mais la base qui s'ouvre est %2.")
                           .arg(dossier, QFileInfo(base).canonicalFilePath())}};
}

void ajoute(Constats &tous, const QString &fichier, const Constats &constats)
{
    for (const Constat &constat : constats)
        tous.push_back({constat.gravite, fichier + QStringLiteral(" : ") + constat.phrase});
}

} // namespace

Constats verifieBase(Engine &engine)
{
    return verifie(engine, FileKind::Main, MainDatabase::schemas(), reglesBase());
}

Constats verifieJournal(Engine &engine)
{
    return verifie(engine, FileKind::Journal, JournalDatabase::schemas(), reglesJournal());
}

Constats verifieFichiers(const QString &dossierJournal)
{
    const QString base = dossierJournal + fichierBase;
    const QString journal = dossierJournal + fichierJournal;
    Constats tous;
    ajoute(tous, fichierJournal, verifieFichier(journal, verifieJournal, journalWait));
    ajoute(tous, fichierJournal, verifieRattachement(journal, base));
    ajoute(tous, fichierBase, verifieFichier(base, verifieBase));
    return tous;
}

} // namespace velmora::store
