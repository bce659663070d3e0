#include "calendar/start_check.h"

namespace velmora
{

StartCheck startCheck(Session &session)
{
    if (session.base.parcg.isEmpty()) return StartCheck::NeedParametres;
    auto &ferie = session.base.ferie;
    ferie.setIndex("ferie01");
    if (!ferie.last()) return StartCheck::Nothing;
    const int yearsAhead = ferie.row().datedeb.year() - session.host.today().year();
    return yearsAhead < 1 ? StartCheck::NeedFeries : StartCheck::Nothing;
}

} // namespace velmora
