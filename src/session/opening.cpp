#include "session/opening.h"

#include "session/batch.h"
#include "session/guards.h"
#include "session/records.h"
#include "session/velmoral.h"
#include "store/repair.h"

#include <QFileInfo>

namespace velmora
{

using store::Status;

namespace
{

// A ring of fewer rows gets its 31; the bound is wanted as it is and has no relation to them.
constexpr int lignesAnneauMini = 6;

bool refuse(Session &session, const QString &message)
{
    session.host.message(message, titre);
    return false;
}

Status ajouteChemin(Session &session)
{
    auto &chemin = session.journal.chemin;
    const Status libre = ajoutgarde(session, chemin);
    if (!libre.ok()) return libre;
    chemin.values() = {1, versionJournal, session.cheminjournal};
    return chemin.update();
}

/// What the journal says wins over the second folder given at the start.
Status lieBase(Session &session)
{
    auto &chemin = session.journal.chemin;
    if (chemin.first()) {
        session.cheminbase = avecSeparateur(chemin.row().chemin);
        return {};
    }
    if (!chemin.status().ok()) return chemin.status();
    session.cheminbase = session.cheminjournal;
    return ajouteChemin(session);
}

Status prepareAnneau(Session &session)
{
    auto &logop = session.journal.logop;
    if (logop.recordCount() >= lignesAnneauMini || !logop.status().ok()) return logop.status();
    for (int numop = 0; numop <= session.nblog; ++numop) {
        Status status = ajoutgarde(session, logop);
        if (!status.ok()) return status;
        logop.values() = {
            numop, numop, numop == 0 ? session.nblog : 0, QStringLiteral(""), QStringLiteral(""), false};
        status = logop.update();
        if (!status.ok()) return status;
    }
    return {};
}

Status prepareJournal(Session &session)
{
    session.nblog = 30;
    const Status anneau = prepareAnneau(session);
    if (!anneau.ok()) return anneau;
    liretete(session);
    videsitco(session);
    session.nivcour = 0;
    session.opcour = 0;
    return session.journal.engine.commit();
}

/// How the opening ends once the journal's tables stand.
enum class Liaison { Etablie, BaseAbsente, Echec };

/// Ties the session to its main database. The tie stays written when there is no file at its end: only the
/// start stops.
Liaison ouvreLiaison(Session &session)
{
    auto &engine = session.journal.engine;
    if (!engine.begin(store::Engine::Transaction::Write).ok()) return Liaison::Echec;
    if (!lieBase(session).ok()) return Liaison::Echec;
    if (!QFileInfo::exists(session.cheminbase + store::fichierBase)) {
        engine.commit().ignore();
        refuse(session, QStringLiteral("la base de données ") + session.cheminbase +
                            QStringLiteral("velmora.mdb n'est pas retouvée, relancer Velmora"));
        return Liaison::BaseAbsente;
    }
    return prepareJournal(session).ok() ? Liaison::Etablie : Liaison::Echec;
}

bool refuseJournal(Session &session)
{
    session.journal.close();
    return refuse(session, QStringLiteral("Velmora ne peut ouvrir la base de données ") +
                               session.cheminjournal +
                               QStringLiteral("velmoralog.mdb, relancez l'application!"));
}

/// The repair works on the file of the second folder and the reopening takes that of the first, a
/// difference that is kept. A base that isn't there has been said: the journal's message would add nothing.
bool reparelog(Session &session)
{
    const QString endommage = session.cheminbase + store::fichierJournal;
    const QString neuf = session.cheminbase + store::fichierReparation;
    if (store::repairJournal(endommage, neuf).ok() &&
        session.journal.open(session.cheminjournal + store::fichierJournal).ok()) {
        const Liaison liaison = ouvreLiaison(session);
        if (liaison != Liaison::Echec) return liaison == Liaison::Etablie;
    }
    return refuseJournal(session);
}

Status ajouteTnum(Session &session)
{
    auto &tnum = session.base.tnum;
    const Status libre = ajoutgarde(session, tnum);
    if (!libre.ok()) return libre;
    const QString version = session.base.engine.version();
    tnum.values() = {QStringLiteral(""), version.section(QLatin1Char('.'), 0, 1).toDouble(), 1};
    return tnum.update();
}

/// Gives the table its row. It is looked for again under the write lock, so that two workstations that start
/// on a new file don't add one each.
Status prepareTnum(Session &session)
{
    auto &tnum = session.base.tnum;
    auto &engine = session.base.engine;
    if (tnum.first() || !tnum.status().ok()) return tnum.status();
    Status status = engine.begin(store::Engine::Transaction::Write);
    if (status.ok() && !tnum.first()) status = tnum.status().ok() ? ajouteTnum(session) : tnum.status();
    if (status.ok()) status = engine.commit();
    engine.rollback();
    if (status.ok() && !tnum.first()) status = tnum.status();
    return status;
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
    const Status ouvert = session.journal.open(fichier);
    // Another session's journal needs no repair, and there is nothing to open again while that one runs.
    if (ouvert.code() == Status::Code::Busy) return refuseJournal(session);
    if (!ouvert.ok()) return reparelog(session);
    const Liaison liaison = ouvreLiaison(session);
    return liaison == Liaison::Echec ? refuseJournal(session) : liaison == Liaison::Etablie;
}

bool ouvrebase(Session &session)
{
    session.urlaide = QStringLiteral("https://aide.velmora.example/calcul-des-heures/");
    Status &echec = session.echecBase;
    echec = session.base.open(session.cheminjournal + store::fichierBase);
    if (echec.ok()) echec = prepareTnum(session);
    if (echec.ok() && !session.base.agent.first()) echec = session.base.agent.status();
    return echec.ok();
}

void videsitco(Session &session)
{
    ++session.vidagessitco;
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
