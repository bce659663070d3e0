#include "month/fplan.h"

#include "month/print_dates.h"
#include "output/export1.h"
#include "output/horairp.h"

namespace velmora
{

void Fplan::relieSorties()
{
    m_menus.lie(QStringLiteral("mnuex"), this, [this] {
        datesDuMois(m_planning);
        Export1(m_session, this).exec();
    });
    m_menus.lie(QStringLiteral("mnuhor"), this, [this] {
        datesDHoraires(m_planning);
        Horairp(m_session, this).exec();
    });
}

} // namespace velmora
