#include "session/batch.h"

#include "session/guards.h"

namespace velmora
{

using store::Engine;
using store::Status;

namespace
{

Status commitOf(Engine &engine)
{
    return engine.inTransaction() ? engine.commit() : Status{};
}

Status commitBoth(Engine &first, Engine &second)
{
    const Status status = commitOf(first);
    return status.ok() ? commitOf(second) : status;
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
    if (!status.ok()) return status;
    const Status journal = m_session.journal.engine.begin(Engine::Transaction::Write);
    return m_kind == Kind::Recording ? status : journal;
}

Status Batch::commit()
{
    Engine &base = m_session.base.engine;
    Engine &journal = m_session.journal.engine;
    if (m_kind == Kind::Undo) return commitBoth(base, journal);
    if (m_kind == Kind::Redo) return commitBoth(journal, base);
    if (!commitOf(journal).ok()) journal.rollback();
    return commitOf(base);
}

void Batch::rollback()
{
    m_session.base.engine.rollback();
    m_session.journal.engine.rollback();
}

Batch::Pause::Pause(Batch *batch) : m_batch(batch)
{
    if (m_batch) m_batch->commit().ignore();
}

Batch::Pause::~Pause()
{
    if (m_batch) m_batch->begin().ignore();
}

BatchStep::BatchStep(Session &session) : m_engine(session.base.engine)
{
    if (m_engine.inTransaction()) m_engine.execute(QStringLiteral("SAVEPOINT etape")).ignore();
}

BatchStep::~BatchStep()
{
    if (!m_kept && m_engine.inTransaction())
        m_engine.execute(QStringLiteral("ROLLBACK TO etape; RELEASE etape")).ignore();
}

void BatchStep::keep()
{
    if (m_engine.inTransaction()) m_engine.execute(QStringLiteral("RELEASE etape")).ignore();
    m_kept = true;
}

QString questionDisque()
{
    return QStringLiteral("Problème accès disque! réessayer ?");
}

namespace
{

Status unLot(Session &session, const std::function<Status()> &work, Batch::Kind kind)
{
    Batch batch(session, kind);
    Status status = batch.begin();
    if (status.ok()) status = work();
    if (!status.ok() && kind != Batch::Kind::Recording) return status;
    const Status committed = batch.commit();
    return status.ok() ? committed : status;
}

} // namespace

void enLot(Session &session, const std::function<Status()> &work, Batch::Kind kind)
{
    for (;;) {
        const Status status = session.batch ? work() : unLot(session, work, kind);
        if (status.ok()) return;
        session.base.cancelUpdates();
        const Batch::Pause released(session.batch);
        const bool busy = status.code() == Status::Code::Busy;
        if (!session.host.question(busy ? questionBloquage() : questionDisque(), titre))
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
