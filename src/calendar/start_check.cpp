#include "calendar/start_check.h"

#include "calendar/holiday_generation.h"

namespace velmora
{

StartCheck startCheck(Session &session)
{
    auto &parcg = session.base.parcg;
    // A table that can't be read isn't an empty one.
    if (parcg.isEmpty()) return parcg.status().ok() ? StartCheck::NeedParametres : StartCheck::Nothing;
    auto &ferie = session.base.ferie;
    const bool enough = ferie.isEmpty() || feriesAJour(session.base, session.host.today());
    return enough || !ferie.status().ok() ? StartCheck::Nothing : StartCheck::NeedFeries;
}

} // namespace velmora
