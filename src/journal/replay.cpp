#include "journal/replay.h"

#include "journal/replay_absences.h"
#include "journal/replay_hours.h"
#include "journal/ring.h"
#include "session/batch.h"
#include "session/guards.h"

namespace velmora
{

using store::Status;

namespace
{

/// What tells taking back from putting back.
struct Sens {
    QString question;
    bool Session::*possible;
    int ecart; ///< from the count of undone operations to the age of the operation meant
    bool enVigueur;
    Status (*joueSit)(Session &);
    Status (*joueAbs)(Session &);
    Batch::Kind lot;
};

const Sens annulation{
    QStringLiteral("invalider : "), &Session::peutannul, 1, false, annulsit, annulabs, Batch::Kind::Undo};
const Sens reprise{
    QStringLiteral("revalider "), &Session::peutrefaire, 0, true, refaitsit, refaitabs, Batch::Kind::Redo};

/// Puts `logop` on the slot of an age. False when no slot has it.
bool placeAge(Session &session, int age)
{
    auto &logop = session.journal.logop;
    bool trouve = logop.first() && logop.next();
    while (trouve && logop.row().ordop != age)
        trouve = logop.next();
    return trouve;
}

std::optional<Operation> operationVisee(Session &session, const Sens &sens)
{
    auto &logop = session.journal.logop;
    if (!(session.*sens.possible) || !logop.first()) return std::nullopt;
    if (!placeAge(session, logop.row().ordop + sens.ecart)) return std::nullopt;
    return logop.row();
}

bool confirme(Session &session, const Sens &sens, const Operation &operation)
{
    const Batch::Pause libere(session.batch);
    return session.host.question(sens.question + operation.libop, QStringLiteral("Velmora"));
}

/// Waits before the transaction, so that none is open while the user is asked about a table that is held.
void attendTables(Session &session)
{
    for (store::TableBase *table : std::initializer_list<store::TableBase *>{
             &session.journal.logop, &session.base.sitper, &session.base.absences})
        attendlibre(session, *table, questionBloquage(), pauseSeche);
}

/// Moves the head so that the operation of an age is the last one undone, or no longer is. The count is
/// written as such and not stepped: the whole may run again after a failure.
Status placeTete(Session &session, const Sens &sens, int age)
{
    auto &logop = session.journal.logop;
    if (!logop.first()) return logop.status();
    const int annulees = sens.enVigueur ? age - 1 : age;
    const Status status = modifieOperation(session, [&](Operation &tete) { tete.ordop = annulees; });
    if (!status.ok()) return status;
    const int enregistrees = session.nblog - logop.row().nivop;
    if (!sens.enVigueur) {
        session.peutannul = session.peutannul && enregistrees != annulees;
        session.peutrefaire = true;
    } else {
        session.peutrefaire = session.peutrefaire && annulees != 0;
        session.peutannul = true;
    }
    return status;
}

Status joueCase(Session &session, const Sens &sens)
{
    auto &logop = session.journal.logop;
    Status status =
        modifieOperation(session, [&](Operation &operation) { operation.valop = sens.enVigueur; });
    const Operation operation = logop.row();
    session.opcour = operation.numop;
    session.nivcour = operation.nivop;
    if (status.ok()) status = sens.joueSit(session);
    // An operation of hours alone leaves its images of absences unplayed: one that deleted an absence is such
    // an operation, and its absence doesn't come back. Wanted.
    if (status.ok() && operation.ficop != QStringLiteral("S")) status = sens.joueAbs(session);
    return status;
}

/// The head stays moved when the slot isn't found again.
Status joueOperation(Session &session, const Sens &sens, int age)
{
    Status status = placeTete(session, sens, age);
    if (status.ok())
        status = placeAge(session, age) ? joueCase(session, sens) : session.journal.logop.status();
    session.opcour = 0;
    session.nivcour = 0;
    return status;
}

bool rejoue(Session &session, const Sens &sens)
{
    if (!(session.*sens.possible)) return true;
    videSpans(session.rejeu);
    const auto operation = operationVisee(session, sens);
    if (!operation || !confirme(session, sens, *operation)) return true;
    attendTables(session);
    return enLot(
        session, [&] { return joueOperation(session, sens, operation->ordop); }, sens.lot);
}

} // namespace

bool annulop(Session &session)
{
    return rejoue(session, annulation);
}

bool refaitop(Session &session)
{
    return rejoue(session, reprise);
}

std::optional<Operation> operationAAnnuler(Session &session)
{
    return operationVisee(session, annulation);
}

std::optional<Operation> operationARefaire(Session &session)
{
    return operationVisee(session, reprise);
}

} // namespace velmora
