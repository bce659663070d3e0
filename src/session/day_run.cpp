#include "session/day_run.h"

#include <algorithm>

namespace velmora
{

SuiteJours::SuiteJours(const QDate &premier, const QDate &dernier) : m_premier(premier), m_dernier(dernier)
{
    const qint64 nombre = premier.isValid() && dernier.isValid() ? premier.daysTo(dernier) + 1 : 0;
    constexpr qint64 annee = 366;
    m_places.assign(static_cast<std::size_t>(std::max<qint64>(nombre, 0)), -1);
    m_jours.reserve(static_cast<std::size_t>(std::clamp<qint64>(nombre, 0, annee)));
}

void SuiteJours::ajoute(const JourSit &jour)
{
    const qint64 rang = m_premier.daysTo(jour.dat);
    if (!jour.dat.isValid() || rang < 0 || rang >= static_cast<qint64>(m_places.size())) return;
    m_places[static_cast<std::size_t>(rang)] = static_cast<int>(m_jours.size());
    m_jours.push_back(jour);
}

store::Status litSuite(Session &session, int nump, const std::vector<int> &colonnes, SuiteJours &jours)
{
    auto lus =
        session.base.sitper.range("sitper01", {nump, jours.premier()}, {nump, jours.dernier()}, colonnes);
    while (lus.next())
        jours.ajoute(lus.row());
    return lus.status();
}

} // namespace velmora
