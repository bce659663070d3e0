#include "session/opening.h"

#include "session/batch.h"
#include "session/guards.h"
#include "session/records.h"
#include "store/repair.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace velmora
{

namespace
{

// A ring of fewer rows gets its 31; the bound is wanted as it is and has no relation to them.
constexpr int lignesAnneauMini = 6;

bool refuse(Session &session, const QString &message)
{
    session.host.message(message, titre);
    return false;
}

void ajouteChemin(Session &session)
{
    auto &chemin = session.journal.chemin;
    if (!ajoutgarde(session, chemin).ok()) return;
    chemin.values() = {1, versionJournal, session.cheminjournal};
    chemin.update().ignore();
}

/// What the journal says wins over the second folder given at the start.
void lieBase(Session &session)
{
    auto &chemin = session.journal.chemin;
    if (chemin.first()) {
        session.cheminbase = chemin.row().chemin;
    } else {
        ajouteChemin(session);
        session.cheminbase = session.cheminjournal;
    }
}

void prepareAnneau(Session &session)
{
    auto &logop = session.journal.logop;
    if (logop.recordCount() >= lignesAnneauMini) return;
    for (int numop = 0; numop <= session.nblog; ++numop) {
        if (!ajoutgarde(session, logop).ok()) return;
        logop.values() = {
            numop, numop, numop == 0 ? session.nblog : 0, QStringLiteral(""), QStringLiteral(""), false};
        logop.update().ignore();
    }
}

/// The opening once the journal's tables stand.
bool ouvreLiaison(Session &session)
{
    auto &engine = session.journal.engine;
    if (!engine.begin(store::Engine::Transaction::Write).ok()) return false;
    lieBase(session);
    if (!QFileInfo(session.cheminbase + store::fichierBase).exists()) {
        engine.rollback();
        return refuse(session, QStringLiteral("la base de données ") + session.cheminbase +
                                   QStringLiteral("velmora.mdb n'est pas retouvée, relancer Velmora"));
    }
    session.nblog = 30;
    prepareAnneau(session);
    liretete(session);
    videsitco(session);
    session.nivcour = 0;
    session.opcour = 0;
    return engine.commit().ok();
}

/// Copies a file over another and deletes it. An unfinished transaction of the old content goes with it.
bool remplaceFichier(const QString &source, const QString &cible)
{
    namespace fs = std::filesystem;
    std::error_code erreur;
    fs::copy_file(source.toStdString(), cible.toStdString(), fs::copy_options::overwrite_existing, erreur);
    if (erreur) return false;
    QFile::remove(cible + QStringLiteral("-journal"));
    return QFile::remove(source);
}

/// The repair works on the file of the second folder and the reopening takes that of the first, a
/// difference that is kept.
bool reparelog(Session &session)
{
    const QString endommage = session.cheminbase + store::fichierJournal;
    const QString neuf = session.cheminbase + store::fichierReparation;
    const bool repare = store::salvageJournal(endommage, neuf).ok() && remplaceFichier(neuf, endommage);
    if (repare && session.journal.open(session.cheminjournal + store::fichierJournal).ok())
        return ouvreLiaison(session);
    return refuse(session, QStringLiteral("Velmora ne peut ouvrir la base de données ") +
                               session.cheminjournal +
                               QStringLiteral("velmoralog.mdb, relancez l'application!"));
}

void ajouteTnum(Session &session)
{
    auto &tnum = session.base.tnum;
    if (!ajoutgarde(session, tnum).ok()) return;
    const QString version = session.base.engine.version();
    tnum.values() = {QStringLiteral(""), version.section(QLatin1Char('.'), 0, 1).toDouble(), 1};
    tnum.update().ignore();
}

} // namespace

bool ouvrejournal(Session &session)
{
    const QString fichier = session.cheminjournal + store::fichierJournal;
    if (!QFileInfo::exists(fichier)) {
        return refuse(session, QStringLiteral("base de données ") + session.cheminjournal +
                                   store::fichierJournal +
                                   QStringLiteral(" non retrouvée ! relancer Velmora"));
    }
    if (!session.journal.open(fichier).ok()) return reparelog(session);
    return ouvreLiaison(session);
}

bool ouvrebase(Session &session)
{
    session.urlaide = QStringLiteral("https://aide.velmora.example/calcul-des-heures/");
    if (!session.base.open(session.cheminjournal + store::fichierBase).ok()) return false;
    if (!session.base.tnum.first()) ajouteTnum(session);
    return session.base.agent.first() || session.base.agent.status().ok();
}

void videsitco(Session &session)
{
    videtable(session, session.journal.sitco);
}

void liretete(Session &session)
{
    session.peutannul = true;
    session.peutrefaire = true;
    auto &logop = session.journal.logop;
    if (!logop.first()) return;
    if (logop.row().ordop == 0) session.peutrefaire = false;
    if (session.nblog - logop.row().nivop == logop.row().ordop) session.peutannul = false;
}

} // namespace velmora
