#pragma once

#include "foncgen/foncgen.h"
#include "support/workstation.h"

namespace velmora::test
{

/// A workstation with parameter sets and holidays.
struct CalendarStation : Workstation {
    using Workstation::Workstation;

    void addSet(const QDate &dat, int region, const QString &nometab = {})
    {
        auto &parcg = session.base.parcg;
        ASSERT_TRUE(parcg.addNew().ok());
        parcg.values() = {dat, region, 0, nometab};
        ASSERT_TRUE(parcg.update().ok());
    }
    void addHoliday(const QDate &date, const QString &lib, int act = 0)
    {
        auto &ferie = session.base.ferie;
        ASSERT_TRUE(ferie.addNew().ok());
        ferie.values() = {date, date, lib, act, 1};
        ASSERT_TRUE(ferie.update().ok());
    }
    /// The holidays as "date label act", those of one year or of all.
    QStringList holidays(int year = 0)
    {
        QStringList rows;
        auto days = session.base.ferie.range("ferie01", {}, {});
        while (days.next()) {
            const JourFerie &day = days.row();
            EXPECT_EQ(day.datefin, day.datedeb);
            if (year == 0 || day.datedeb.year() == year)
                rows << Foncgen::dtoc(day.datedeb) + ' ' + day.lib + ' ' + QString::number(day.act);
        }
        return rows;
    }
    /// The years that have holidays, with their count.
    QStringList years()
    {
        QMap<int, int> counts;
        for (const QString &row : holidays())
            ++counts[row.mid(6, 4).toInt()];
        QStringList texts;
        for (auto one = counts.cbegin(); one != counts.cend(); ++one)
            texts << QStringLiteral("%1: %2").arg(one.key()).arg(one.value());
        return texts;
    }
};

} // namespace velmora::test
