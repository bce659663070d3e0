#include "rules/verdict.h"

#include "rules/days.h"
#include "rules/report.h"
#include "rules/rest_windows.h"

#include <gtest/gtest.h>

#include <functional>

namespace velmora::test
{
namespace
{

const QDate june1(2026, 6, 1); // a Monday
const QDate none(1900, 1, 1);

/// A line's days, planted as the cases say.
struct Planted {
    Ligne line = controlledLine();
    std::map<QDate, JourSit> days;
    QDate last{2026, 6, 29};

    void work(const QDate &from, int count, int heurdeb, int heurfin)
    {
        for (QDate date = from; date < from.addDays(count); date = date.addDays(1))
            days[date] = workedDay(date, heurdeb, heurfin);
    }
    [[nodiscard]] QDate failure() const { return controlligne(line, runOf(days), june1, last).echec; }
    [[nodiscard]] bool reported() const { return !rapportcontrole(line, runOf(days), june1, last).isEmpty(); }
};

TEST(Verdict, MeetsEachLimitOnItsOwnSideAndPartsFromTheReportWhereWanted)
{
    struct Case {
        const char *what;
        std::function<void(Planted &)> plant;
        QDate failure;
        bool reported;
    };
    const Case cases[] = {
        {"hours of a week reached",
         [](Planted &p) {
             p.work(june1, 5, 480, 960);
             p.line.maxs = 2400;
         },
         {2026, 6, 7},
         true},
        {"a minute below",
         [](Planted &p) {
             p.work(june1, 5, 480, 960);
             p.line.maxs = 2401;
         },
         none, false},
        {"a week that ends with the dates isn't judged",
         [](Planted &p) {
             p.work({2026, 6, 22}, 5, 480, 960);
             p.line.maxs = 2400;
             p.last = QDate(2026, 6, 28);
         },
         none, false},
        {"hours of a day reached",
         [](Planted &p) {
             p.work({2026, 6, 3}, 1, 480, 960);
             p.line.maxj = p.line.ampj = 480;
         },
         none, false},
        {"hours of a day passed",
         [](Planted &p) {
             p.work({2026, 6, 3}, 1, 480, 960);
             p.line.maxj = 479;
         },
         {2026, 6, 3},
         true},
        {"span of a night passed",
         [](Planted &p) {
             p.work({2026, 6, 3}, 1, 1320, 360);
             p.line.ampj = 479;
         },
         {2026, 6, 3},
         true},
        {"the last Monday counts for the verdict alone",
         [](Planted &p) {
             p.work({2026, 6, 29}, 1, 480, 960);
             p.line.maxj = 479;
         },
         {2026, 6, 29},
         false},
        {"eight days in a row, without a switch of their own",
         [](Planted &p) {
             p.work({2026, 6, 4}, 8, 480, 540);
         },
         {2026, 6, 11},
         true},
        {"seven with the day before, which the verdict doesn't count",
         [](Planted &p) {
             p.work({2026, 5, 31}, 7, 480, 540);
         },
         none, true},
        {"a rest that is long enough",
         [](Planted &p) {
             p.work(june1, 2, 600, 1380);
             p.line.reposmin = 660;
         },
         none, false},
        {"a minute too short",
         [](Planted &p) {
             p.work(june1, 2, 599, 1380);
             p.line.reposmin = 660;
         },
         {2026, 6, 7},
         true},
        {"45 minutes are no rest",
         [](Planted &p) {
             p.work(june1, 2, 45, 1440);
             p.line.reposmin = 660;
         },
         none, false},
        {"46 are one",
         [](Planted &p) {
             p.work(june1, 2, 46, 1440);
             p.line.reposmin = 660;
         },
         {2026, 6, 7},
         true},
        {"the rest before the first Monday counts for the verdict alone",
         [](Planted &p) {
             p.work({2026, 5, 31}, 2, 300, 1380);
             p.line.reposmin = 660;
         },
         {2026, 6, 7},
         false},
        {"a night's end reaches over a day off in the report alone",
         [](Planted &p) {
             p.work(june1, 1, 1320, 360);
             p.work({2026, 6, 3}, 1, 10, 240);
             p.line.reposmin = 1700;
         },
         none, true},
        {"a week's failure comes after a later day's",
         [](Planted &p) {
             p.work(june1, 5, 480, 960);
             p.work({2026, 6, 17}, 1, 480, 1080);
             p.line.maxs = 2400;
             p.line.maxj = 500;
         },
         {2026, 6, 7},
         true},
        {"an absence is no work",
         [](Planted &p) {
             p.work(june1, 5, 480, 960);
             p.days[june1].Val = false;
             p.line.maxs = 2400;
         },
         none, false},
        {"a line without a switch",
         [](Planted &p) {
             p.work(june1, 7, 480, 960);
             p.line.maxs = 60;
             p.line.bcontrolh = false;
         },
         none, false},
    };
    for (const Case &one : cases) {
        Planted planted;
        one.plant(planted);
        EXPECT_EQ(planted.failure(), one.failure) << one.what;
        EXPECT_EQ(planted.reported(), one.reported) << one.what;
    }
}

TEST(Verdict, HoldsAHundredWeeksAndTheReportMore)
{
    Planted planted;
    planted.line.maxs = 480;
    planted.last = june1.addDays(7 * 120);
    planted.work(june1.addDays(7 * 99), 1, 480, 960);
    EXPECT_EQ(planted.failure(), june1.addDays(7 * 99 + 6));
    planted.days.clear();
    planted.work(june1.addDays(7 * 100), 1, 480, 960);
    EXPECT_EQ(planted.failure(), none);
    EXPECT_TRUE(planted.reported());
}

/// The fifteen days from 1 June: worked, early, a night, an absence, unpaid; a point is a day without a row.
std::map<QDate, JourSit> pattern(const char *signs)
{
    std::map<QDate, JourSit> days;
    for (QDate date = june1; *signs; ++signs, date = date.addDays(1)) {
        if (*signs == '.') continue;
        JourSit day = workedDay(date, 480, 960);
        if (*signs == 'e') day = workedDay(date, 60, 540);
        if (*signs == 'n') day = workedDay(date, 1320, 360);
        day.Val = *signs != 'a';
        if (*signs == 'z') day.heurpaye = 0;
        days[date] = day;
    }
    return days;
}

TEST(RestWindows, CountTheRestsOfFifteenDays)
{
    struct Case {
        const char *signs;
        int simple;
        int adjoining;
    };
    for (const Case &one : {
             Case{"wwwwwwwwwwwwwww", 0, 0},
             Case{"wwwww..wwwww..w", 4, 2},
             Case{"wwwwwaawwwwwzzw", 4, 2}, // neither absences nor unpaid days are work
             Case{"...............", 15, 7},
             Case{"w.ewwwwwwwwwwww", 1, 0},
             Case{"n.ewwwwwwwwwwww", 0, 0}, // the night's end and the early start shorten the rest
             Case{"nw.ewwwwwwwwwww", 0, 0}, // and it still does after a day that ended by midnight
             Case{"n.wwwwwwwwwwwww", 1, 0},
         }) {
        Ligne line = controlledLine();
        line.bcontrolr = true;
        const SuiteJours run = runOf(pattern(one.signs));
        // One window: it starts on the last Monday that may have one.
        const auto failing = [&](int nrep, int nrepd) {
            line.nrep = nrep;
            line.nrepd = nrepd;
            const auto windows = fenetresEnDefaut(line, run, june1, june1.addDays(-7));
            return windows.empty() ? std::pair(false, false)
                                   : std::pair(windows.front().hebdo, windows.front().contigus);
        };
        EXPECT_EQ(failing(one.simple, one.adjoining), std::pair(false, false)) << one.signs;
        EXPECT_EQ(failing(one.simple + 1, one.adjoining + 1), std::pair(true, true)) << one.signs;
        line.bcontrolr = false;
        EXPECT_EQ(failing(16, 16), std::pair(false, false));
    }
}

TEST(RestWindows, CarryARestOverTheirEndIntoTheNext)
{
    Planted planted;
    planted.work(june1, 30, 480, 960);
    planted.days.erase({2026, 6, 8});
    planted.days.erase({2026, 6, 15});
    planted.line.bcontrolr = true;
    planted.line.nrepd = 1;
    // No two days off adjoin; but the 15th ends the first window and the 8th begins the second.
    const auto windows = fenetresEnDefaut(planted.line, runOf(planted.days), june1, june1);
    ASSERT_EQ(windows.size(), 1U);
    EXPECT_EQ(windows.front().debut, june1);
    EXPECT_TRUE(windows.front().contigus);
}

TEST(RestWindows, RunWithoutAWholeWeekToo)
{
    Planted planted;
    planted.line.bcontrolr = true;
    planted.line.nrep = 16;
    const Controle inside = controlligne(planted.line, runOf({}), june1.addDays(1), june1.addDays(5));
    EXPECT_EQ(inside.echec, QDate(2026, 6, 8));
}

TEST(DayReading, TellsARowFromItsHours)
{
    Planted planted;
    planted.work(june1, 2, 1320, 360);
    planted.days[june1].Val = false;
    const SuiteJours run = runOf(planted.days);
    EXPECT_NE(existejour(run, june1), nullptr);
    EXPECT_EQ(lirejour(run, june1).hfinjour, 0);
    EXPECT_EQ(existejour(run, june1.addDays(2)), nullptr);
    const JourLu night = lirejour(run, june1.addDays(1));
    EXPECT_EQ(night.hjour, 480);
    EXPECT_EQ(night.hdebjour, 1320);
    EXPECT_EQ(night.hfinjour, 1800);
}

TEST(Report, HasEveryBlockToTheBlank)
{
    Planted planted;
    Ligne &line = planted.line;
    line.bcontrolr = true;
    line.maxs = 2880;
    line.maxj = 600;
    line.ampj = line.reposmin = 660;
    line.pause = 20;
    line.nrep = 14;
    line.nrepd = 9;
    planted.work({2026, 1, 5}, 7, 480, 1200);
    planted.work({2026, 1, 6}, 1, 480, 1380);
    planted.work({2026, 1, 13}, 1, 480, 1200);
    const QString report =
        rapportcontrole(line, runOf(planted.days), QDate(2025, 12, 31), QDate(2026, 1, 19));
    EXPECT_EQ(report.toStdString(), "        ANNE\n"
                                    "Plus de 6 jours de travail continus :\n"
                                    " 2025 semaine :  2 => + de 6 j de travail\n"
                                    "\n"
                                    "Dépassement Heures Semaine (48h00):\n"
                                    " 2025 semaine :  2 => 87h00\n"
                                    "\n"
                                    "Minimum repos entre deux horaires dépassé (11h00):\n"
                                    " 2025 semaine :  2 =>  1\n"
                                    "\n"
                                    " Heures max / jour (10h00) dépassées\n"
                                    " 2025 semaine :  2 => Journées > heures max\n"
                                    " 2026 semaine :  3 => Journées > heures max\n"
                                    "\n"
                                    " Amplitude max / jour (11h00) dépassée\n"
                                    " 2025 semaine :  2 => Amplitude journée\n"
                                    " 2026 semaine :  3 => Amplitude journée\n"
                                    "\n"
                                    " Pauses non respectées\n"
                                    " 2025 semaine :  2 => Pauses\n"
                                    " 2026 semaine :  3 => Pauses\n"
                                    "\n"
                                    "Défaut Repos Hebdo du 05/01/2026 au 19/01/2026\n"
                                    "\n"
                                    "Défaut Repos contigus du 05/01/2026 au 19/01/2026\n"
                                    "\n"
                                    "Défaut Repos contigus du 12/01/2026 au 26/01/2026\n"
                                    "\n"
                                    "Défaut Repos contigus du 19/01/2026 au 02/02/2026\n"
                                    "\n"
                                    "Défaut Repos contigus du 26/01/2026 au 09/02/2026\n");
}

} // namespace
} // namespace velmora::test
