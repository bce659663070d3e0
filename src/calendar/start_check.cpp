#include "calendar/start_check.h"

#include "calendar/holiday_generation.h"

namespace velmora
{

StartCheck startCheck(Session &session)
{
    auto &parcg = session.base.parcg;
    // A table that can't be read isn't an empty one.
    if (parcg.isEmpty()) return parcg.status().ok() ? StartCheck::NeedParametres : StartCheck::Nothing;
    const bool enough = session.base.ferie.isEmpty() || feriesAJour(session.base, session.host.today());
    return enough ? StartCheck::Nothing : StartCheck::NeedFeries;
}

} // namespace velmora
