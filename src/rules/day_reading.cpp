#include "rules/day_reading.h"

namespace velmora
{

JourLu lirejour(const SuiteJours &jours, const QDate &date)
{
    const JourSit *jour = existejour(jours, date);
    if (!jour || !jour->Val) return {};
    const int lendemain = jour->heurfin < jour->heurdeb ? minutesParJour : 0;
    return {jour->heurtrav, jour->heurdeb, jour->heurfin + lendemain};
}

const JourSit *existejour(const SuiteJours &jours, const QDate &date)
{
    return jours.du(date);
}

} // namespace velmora
