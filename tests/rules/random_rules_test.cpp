#include "rules/controls.h"

#include "rules/days.h"
#include "rules/naive_rules.h"

#include "month/open_month.h"

#include <random>

namespace velmora::test
{
namespace
{

/// Lines, limits and days at random: dense enough that every rule is met from both sides.
class RandomRules : public testing::TestWithParam<unsigned>
{
protected:
    std::mt19937 random{GetParam()};

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    bool chance(int percent) { return below(100) < percent; }
    int one(std::initializer_list<int> values)
    {
        return *(values.begin() + below(static_cast<int>(values.size())));
    }

    Ligne newLine(const QDate &first, int span)
    {
        Ligne line = controlledLine();
        line.bcontrolh = chance(60);
        line.b6j = chance(30);
        line.bcontrolp = chance(30);
        line.bcontrolr = chance(50);
        line.maxs = one({0, 2100, 2400, 2880, 3360});
        line.maxj = one({0, 420, 480, 600});
        line.ampj = one({0, 480, 660, 780});
        line.reposmin = one({0, 45, 46, 660, 720, 900, 1700});
        line.nrep = one({0, 2, 4, 6});
        line.nrepd = one({0, 1, 2, 3});
        line.pause = one({0, 20, 30, 60});
        if (chance(20)) line.datedeb = first.addDays(below(span));
        if (chance(20)) line.datefin = first.addDays(below(span));
        return line;
    }

    /// One to six slices that join, leave a gap or pass midnight.
    void slice(JourSit &day)
    {
        int *const ends[]{&day.hdeb1, &day.hfin1, &day.hdeb2, &day.hfin2, &day.hdeb3, &day.hfin3,
                          &day.hdeb4, &day.hfin4, &day.hdeb5, &day.hfin5, &day.hdeb6, &day.hfin6};
        int at = day.heurdeb;
        const int count = one({1, 1, 2, 2, 2, 3, 4, 6});
        for (int i = 0; i < count; ++i) {
            *ends[2 * i] = at % minutesParJour;
            at += one({60, 120, 239, 240, 360, 361});
            *ends[2 * i + 1] = at % minutesParJour;
            at += one({0, 15, 20, 29, 30, 60});
        }
        if (chance(5)) *ends[below(12)] = below(1441);
    }

    JourSit newDay(const QDate &date)
    {
        const int start = one({0, 360, 405, 480, 825, 1200, 1320});
        const int length = one({240, 420, 480, 481, 600, 660, 720});
        JourSit day = workedDay(date, start, (start + length) % minutesParJour);
        slice(day);
        day.Val = !chance(10);
        if (chance(5)) day.heurtrav = 0;
        if (chance(5)) day.heurpaye = 0;
        if (chance(3)) day.heurfin = below(1441);
        return day;
    }

    /// Runs of work and gaps of random density, from before the dates asked for to behind them.
    naive::Days newDays(const QDate &first, int span)
    {
        naive::Days days;
        const int density = one({10, 50, 70, 85, 97});
        for (QDate date = first.addDays(-9); date <= first.addDays(span + 30); date = date.addDays(1))
            if (chance(density)) days[date] = newDay(date);
        return days;
    }
    /// Up to a quarter, seldom more weeks than either entry holds.
    int newSpan() { return chance(99) ? below(100) : below(2) == 0 ? 750 : 3600; }
};

TEST_P(RandomRules, AgreeWithTheNaiveOnes)
{
    std::map<std::string, int> seen;
    for (int i = 0; i < 2500 && !HasFailure(); ++i) {
        SCOPED_TRACE(testing::Message() << "seed " << GetParam() << ", line " << i);
        const QDate first = QDate(2025, 11, 1).addDays(below(400));
        const int span = newSpan();
        const QDate last = first.addDays(span);
        const Ligne line = newLine(first, span + 1);
        const naive::Days days = newDays(first, span);
        const Controle verdict = controlligne(line, runOf(days), first, last);
        const naive::Verdict expected = naive::verdict(line, days, first, last);
        EXPECT_EQ(verdict.presents, expected.controls);
        EXPECT_EQ(verdict.echec, expected.failure);
        const QString report = rapportcontrole(line, runOf(days), first, last);
        EXPECT_EQ(report.toStdString(), naive::report(line, days, first, last).toStdString());
        for (const char *said : {"Plus de 6", "Dépassement", "Minimum repos", "Heures max", "Amplitude max",
                                 "Pauses non", "Repos Hebdo", "Repos contigus"})
            seen[said] += report.contains(QString::fromUtf8(said)) ? 1 : 0;
        ++seen[report.isEmpty() ? "nothing" : "something"];
    }
    for (const auto &[said, count] : seen)
        EXPECT_GT(count, 100) << said;
}

TEST_P(RandomRules, ReadTheSameDaysFromTheTablesForBothTheMonthAndAQuestion)
{
    Workstation station;
    Session &session = station.session;
    ASSERT_TRUE(session.base.engine.begin(store::Engine::Transaction::Write).ok());
    const Periode periode = periodeDuMois(6, 2026);
    const int span = static_cast<int>(periode.debgrille.daysTo(periode.fingrille));
    std::map<int, naive::Days> days;
    for (int nump = 1; nump <= 60; ++nump) {
        days[nump] = newDays(periode.debgrille, span);
        Ligne line = newLine(periode.debgrille, span);
        line.nump = nump;
        ASSERT_TRUE(session.base.ligmois.addNew().ok());
        session.base.ligmois.values() = line;
        ASSERT_TRUE(session.base.ligmois.update().ok());
        for (auto &[date, day] : days[nump]) {
            day.nump = nump;
            ASSERT_TRUE(session.base.sitper.addNew().ok());
            session.base.sitper.values() = day;
            ASSERT_TRUE(session.base.sitper.update().ok());
        }
    }
    ASSERT_TRUE(session.base.engine.commit().ok());
    OpenMonth month(station, 6, 2026);
    auto lines = session.base.ligmois.range("ligmois01", {}, {});
    while (lines.next()) {
        const Ligne &line = lines.row();
        const auto expected = naive::verdict(line, days[line.nump], periode.debgrille, periode.fingrille);
        const Controle asked =
            controlligne(line, joursControles(session, line, periode.debgrille, periode.fingrille),
                         periode.debgrille, periode.fingrille);
        EXPECT_EQ(asked.echec, expected.failure) << line.nump;
        EXPECT_EQ(asked.presents, expected.controls);
        if (!dansPeriode(line, periode)) continue;
        const bool pb = expected.failure >= periode.debgrille;
        EXPECT_EQ(month.planning.grille.lit(month.row(line.nump), Grille::colonneEtat).texte.toStdString(),
                  !expected.controls ? ""
                  : pb               ? "Pb"
                                     : "Ok")
            << line.nump;
    }
}

/// A fixed seed, and the one of VELMORA_SEED beside it.
std::vector<unsigned> seeds()
{
    std::vector<unsigned> all{8};
    if (qEnvironmentVariableIsSet("VELMORA_SEED"))
        all.push_back(qEnvironmentVariable("VELMORA_SEED").toUInt());
    return all;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRules, testing::ValuesIn(seeds()));

} // namespace
} // namespace velmora::test
