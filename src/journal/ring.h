#pragma once

#include "session/guards.h"
#include "session/session.h"

namespace velmora
{

/// Changes the current `logop` row as `change` says. After a failure the row isn't held.
template <class Change> store::Status modifieOperation(Session &session, Change &&change)
{
    auto &logop = session.journal.logop;
    store::Status status = editgarde(session, logop);
    if (!status.ok()) return status;
    change(logop.values());
    status = logop.update();
    if (!status.ok()) logop.cancelUpdate();
    return status;
}

} // namespace velmora
