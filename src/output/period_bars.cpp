#include "output/period_bars.h"

#include <algorithm>

namespace velmora
{

BarresPeriode::BarresPeriode(const QDate &premier, const QDate &dernier)
    : m_premier(premier), m_jours(static_cast<int>(premier.daysTo(dernier)) + 1),
      m_vs1(std::max(m_jours - 27, 1)), m_vs2(m_jours)
{
}

void BarresPeriode::deplaceVs1(int position)
{
    m_vs1 = std::clamp(position, minimum1, maximum1());
    deplaceVs2(m_vs2);
}

void BarresPeriode::deplaceVs2(int position)
{
    m_vs2 = std::clamp(position, m_vs1 + ecart, maximum2());
}

} // namespace velmora
