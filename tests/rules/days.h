#pragma once

#include "session/day_run.h"

#include <map>

namespace velmora::test
{

/// A line open since 2020 with one switch on and no limit.
inline Ligne controlledLine()
{
    Ligne line;
    line.nump = 1;
    line.nom = QStringLiteral("ANNE");
    line.datedeb = QDate(2020, 1, 1);
    line.datefin = QDate(2099, 1, 1);
    line.bcontrolh = true;
    return line;
}

/// A day of hours in one slice, all of it worked and paid.
inline JourSit workedDay(const QDate &dat, int heurdeb, int heurfin)
{
    JourSit day;
    day.nump = 1;
    day.dat = dat;
    day.Val = true;
    day.heurdeb = day.hdeb1 = heurdeb;
    day.heurfin = day.hfin1 = heurfin;
    day.heurtrav = day.heurpaye = heurfin - heurdeb + (heurfin < heurdeb ? minutesParJour : 0);
    return day;
}

/// Days in memory, whatever the dates that the rules ask for.
inline SuiteJours runOf(const std::map<QDate, JourSit> &days)
{
    if (days.empty()) return {{}, {}};
    SuiteJours run(days.begin()->first, days.rbegin()->first);
    for (const auto &day : days)
        run.ajoute(day.second);
    return run;
}

} // namespace velmora::test
