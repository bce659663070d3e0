#include "cli/program.h"

#include "session/day_hours.h"

using namespace velmora;
using namespace velmora::test;

namespace
{

struct DemoData : testing::Test {
    DemoData() { program.demo(); }
    QString one(const QString &sql) const { return queryOne(program.base(), sql); }
    Program program;
};

QStringList everything(const QString &file)
{
    QStringList rows;
    for (const store::Schema *schema : store::MainDatabase::schemas()) {
        const auto columns = static_cast<int>(schema->columns.size());
        rows << query(file, "SELECT * FROM " + schema->table, columns);
    }
    return rows;
}

} // namespace

TEST(Demo, IsTheSameForTheSameSeed)
{
    const Program one;
    const Program same;
    const Program other;
    one.demo({"--graine", "7"});
    same.demo({"--graine", "7"});
    other.demo({"--graine", "8"});
    EXPECT_EQ(everything(one.base()), everything(same.base()));
    EXPECT_NE(everything(one.base()), everything(other.base()));
}

TEST_F(DemoData, IsSoundAndComplete)
{
    EXPECT_EQ(one("PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_EQ(one("SELECT count(*) FROM ligmois"), QStringLiteral("16"));
    EXPECT_EQ(one("SELECT count(DISTINCT nom) FROM ligmois"), QStringLiteral("16"));
    EXPECT_EQ(one("SELECT count(*) FROM ligmois WHERE bcontrolh = -1 AND maxs > 0"), QStringLiteral("8"));
    EXPECT_EQ(one("SELECT count(*) FROM codabs WHERE bcouleur = -1 AND length(codabs) = 2"),
              QStringLiteral("8"));
    EXPECT_EQ(one("SELECT count(DISTINCT sign(modabs)) FROM codabs"), QStringLiteral("3"));
    EXPECT_EQ(one("SELECT count(*) FROM groupe WHERE nump = 0"), QStringLiteral("3"));
    EXPECT_EQ(one("SELECT count(*) FROM parcg WHERE dat < '2010'"), QStringLiteral("1"));
    EXPECT_EQ(query(program.base(), "SELECT DISTINCT substr(datedeb, 1, 4) FROM ferie ORDER BY 1"),
              QStringList({"2026", "2027"}));
    EXPECT_EQ(one("SELECT min(dat) >= '2026-05-01' AND max(dat) <= '2026-07-31' FROM sitper"),
              QStringLiteral("1"));
}

TEST_F(DemoData, HasEveryShapeOfADay)
{
    for (const char *shape : {"heurfin < heurdeb", "hifin > hideb AND hifin2 = hideb2", "hifin2 > hideb2",
                              "heurtrav <= 240", "Val = 0"})
        EXPECT_NE(one(QStringLiteral("SELECT count(*) FROM sitper WHERE ") + QLatin1String(shape)),
                  QStringLiteral("0"))
            << shape;
}

TEST_F(DemoData, MarksADayInvalidExactlyUnderAnAbsence)
{
    EXPECT_EQ(one("SELECT count(*) FROM sitper s WHERE (Val = 0) <> EXISTS (SELECT 1 FROM absences a WHERE "
                  "a.nump = s.nump AND s.dat BETWEEN a.datedeb AND a.datefin)"),
              QStringLiteral("0"));
    EXPECT_EQ(one("SELECT count(*) FROM absences a JOIN absences b ON a.nump = b.nump AND a.rowid < b.rowid "
                  "WHERE a.datedeb <= b.datefin AND b.datedeb <= a.datefin"),
              QStringLiteral("0"));
}

TEST_F(DemoData, KeepsTheDatesOfItsLines)
{
    EXPECT_EQ(one("SELECT count(*) FROM sitper s JOIN ligmois l USING (nump) WHERE s.dat NOT BETWEEN "
                  "l.datedeb AND l.datefin"),
              QStringLiteral("0"));
    EXPECT_EQ(one("SELECT count(*) FROM groupe WHERE nump > 0 AND (sel = 0 OR nump NOT IN (SELECT nump FROM "
                  "ligmois))"),
              QStringLiteral("0"));
}

TEST_F(DemoData, StoresTheWorkedMinutesThatTheGridComputes)
{
    store::MainDatabase base;
    ASSERT_TRUE(base.open(program.base()).ok());
    auto days = base.sitper.range("sitper01", {}, {});
    int count = 0;
    while (days.next()) {
        ++count;
        ASSERT_EQ(horaireDuJour(days.row()).minutes, days.row().heurtrav) << days.row().nump;
    }
    EXPECT_GT(count, 16 * 30);
}
