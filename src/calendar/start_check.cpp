#include "calendar/start_check.h"

#include "calendar/holiday_generation.h"

namespace velmora
{

StartCheck startCheck(Session &session)
{
    if (session.base.parcg.isEmpty()) return StartCheck::NeedParametres;
    const bool enough = session.base.ferie.isEmpty() || feriesAJour(session.base, session.host.today());
    return enough ? StartCheck::Nothing : StartCheck::NeedFeries;
}

} // namespace velmora
