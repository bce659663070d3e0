#include "session/batch.h"

#include "session/guards.h"

#include <utility>

namespace velmora
{

using store::Engine;
using store::Status;

namespace
{

Status commitBoth(Engine &first, Engine &second)
{
    const Status status = first.commit();
    return status.ok() ? second.commit() : status;
}

} // namespace

Batch::Batch(Session &session, Kind kind) : m_session(session), m_kind(kind)
{
    m_session.batch = this;
}

Batch::~Batch()
{
    rollback();
    m_session.batch = nullptr;
}

Status Batch::begin()
{
    const Status status = m_session.base.engine.begin(Engine::Transaction::Write);
    m_begun = status.ok();
    if (!m_begun) return status;
    const Status journal = m_session.journal.engine.begin(Engine::Transaction::Write);
    m_avant = {m_session.opcour, m_session.nivcour, m_session.peutannul, m_session.peutrefaire};
    if (m_step) m_step->marque();
    return m_kind == Kind::Recording ? Status{} : journal;
}

Status Batch::commit()
{
    Engine &base = m_session.base.engine;
    Engine &journal = m_session.journal.engine;
    if (!m_begun) return m_echec;
    // The engine gives a transaction up by itself when the disk fails.
    const bool whole = base.inTransaction() && (m_kind == Kind::Recording || journal.inTransaction());
    if (m_echec.ok() && !whole) m_echec = {Status::Code::Io, QStringLiteral("the transaction is gone")};
    if (m_echec.ok()) m_echec = m_kind == Kind::Undo ? commitBoth(base, journal) : commitJournalFirst();
    if (!m_echec.ok()) rollback();
    m_begun = false;
    return m_echec;
}

bool Batch::enregistre() const
{
    return !m_begun || m_session.journal.engine.inTransaction();
}

void Batch::renonceEnregistrement()
{
    m_session.journal.engine.giveUp();
}

Status Batch::commitJournal()
{
    Engine &journal = m_session.journal.engine;
    if (journal.inTransaction()) return journal.commit();
    return {Status::Code::Io, QStringLiteral("the journal's transaction is gone")};
}

/// What comes after an operation that wasn't recorded must not go into the slot that it had been given: that
/// is another one's again.
Status Batch::commitJournalFirst()
{
    Engine &base = m_session.base.engine;
    const Status recorded = commitJournal();
    if (!recorded.ok() && m_kind == Kind::Redo) return recorded;
    m_session.journal.engine.rollback();
    const Status written = base.commit();
    // The session stays on the operation: another try goes on with it, and its images add up to the same
    // undo.
    if (!written.ok() && recorded.ok()) m_begun = false;
    if (written.ok() && !recorded.ok()) {
        remetSession();
        m_session.opcour = m_session.nivcour = 0;
    }
    return written;
}

void Batch::rollback()
{
    m_session.base.engine.rollback();
    m_session.journal.engine.rollback();
    if (std::exchange(m_begun, false)) remetSession();
}

void Batch::remetSession()
{
    m_session.opcour = m_avant.opcour;
    m_session.nivcour = m_avant.nivcour;
    m_session.peutannul = m_avant.peutannul;
    m_session.peutrefaire = m_avant.peutrefaire;
}

Batch::Pause::Pause(Batch *batch) : m_batch(batch && batch->m_begun ? batch : nullptr)
{
    if (m_batch) m_batch->commit().ignore();
}

Batch::Pause::~Pause()
{
    if (m_batch) m_batch->begin().ignore();
}

BatchStep::BatchStep(Session &session) : m_session(session)
{
    if (m_session.batch) m_outer = std::exchange(m_session.batch->m_step, this);
    marque();
}

BatchStep::~BatchStep()
{
    if (m_session.batch) m_session.batch->m_step = m_outer;
    if (m_kept || !m_session.base.engine.inTransaction()) return;
    surChaque(&Engine::rollbackToMark);
    m_session.nivcour = m_nivcour;
}

void BatchStep::marque()
{
    m_nivcour = m_session.nivcour;
    surChaque(&Engine::setMark);
}

void BatchStep::keep()
{
    surChaque(&Engine::dropMark);
    m_kept = true;
}

void BatchStep::surChaque(Status (Engine::*action)())
{
    for (Engine *engine : {&m_session.base.engine, &m_session.journal.engine})
        if (engine->inTransaction()) (engine->*action)().ignore();
}

QString questionDisque()
{
    return QStringLiteral("Problème accès disque! réessayer ?");
}

void ditEchecDisque(Session &session)
{
    session.host.message(QStringLiteral("Problème accès disque!"), titre);
}

namespace
{

/// Whether another try may do better.
bool reessayable(Status::Code code)
{
    return code != Status::Code::NoRow && code != Status::Code::Constraint && code != Status::Code::Misuse;
}

Status unLot(Session &session, const std::function<Status()> &work, Batch::Kind kind)
{
    Batch batch(session, kind);
    Status status = batch.begin();
    if (status.ok()) status = work();
    const bool garde = kind == Batch::Kind::Recording && reessayable(status.code());
    if (!status.ok() && !garde) return status;
    const Status committed = batch.commit();
    return status.ok() ? committed : status;
}

} // namespace

bool enLot(Session &session, const std::function<Status()> &work, Batch::Kind kind)
{
    // The edits of a command that this one interrupts stay.
    const auto tenues = session.batch ? session.base.editing() : std::vector<store::TableBase *>{};
    for (int essai = 1;; ++essai) {
        const Status status = session.batch ? work() : unLot(session, work, kind);
        if (status.ok()) return true;
        session.base.cancelUpdates(tenues);
        const Batch::Pause released(session.batch);
        if (!reessayable(status.code())) {
            ditEchecDisque(session);
            return false;
        }
        const bool busy = status.code() == Status::Code::Busy;
        if (!session.host.retry(busy ? questionBloquage() : questionDisque(), titre, essai))
            session.host.endProcess();
    }
}

ReadPass::ReadPass(Engine &engine)
{
    if (!engine.inTransaction() && engine.begin(Engine::Transaction::Read).ok()) m_engine = &engine;
}

ReadPass::~ReadPass()
{
    if (m_engine && !m_engine->commit().ok()) m_engine->rollback();
}

} // namespace velmora
