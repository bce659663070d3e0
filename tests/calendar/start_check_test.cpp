#include "calendar/start_check.h"

#include "support/workstation.h"

namespace velmora::test
{
namespace
{

class StartCheckTest : public testing::Test
{
protected:
    Workstation station{QDate(2026, 12, 31)};

    void addSet()
    {
        auto &parcg = station.session.base.parcg;
        ASSERT_TRUE(parcg.addNew().ok());
        parcg.values().dat = QDate(2020, 1, 1);
        ASSERT_TRUE(parcg.update().ok());
    }
    void addHoliday(const QDate &date)
    {
        auto &ferie = station.session.base.ferie;
        ASSERT_TRUE(ferie.addNew().ok());
        ferie.values().datedeb = ferie.values().datefin = date;
        ASSERT_TRUE(ferie.update().ok());
    }
    StartCheck check() { return startCheck(station.session); }
};

TEST_F(StartCheckTest, WithNoParameterSetTheHolidaysWait)
{
    addHoliday(QDate(2024, 5, 1));
    EXPECT_EQ(check(), StartCheck::NeedParametres);
}

TEST_F(StartCheckTest, AnEmptyListOfHolidaysOpensNothing)
{
    addSet();
    EXPECT_EQ(check(), StartCheck::Nothing);
}

TEST_F(StartCheckTest, HolidaysMustReachTheNextYear)
{
    addSet();
    addHoliday(QDate(2025, 12, 25));
    EXPECT_EQ(check(), StartCheck::NeedFeries);
    addHoliday(QDate(2026, 12, 31));
    EXPECT_EQ(check(), StartCheck::NeedFeries);
    addHoliday(QDate(2027, 1, 1));
    EXPECT_EQ(check(), StartCheck::Nothing);
}

TEST_F(StartCheckTest, TheLatestHolidayCountsAndNotTheOneEnteredLast)
{
    addSet();
    addHoliday(QDate(2027, 5, 1));
    addHoliday(QDate(2026, 5, 1));
    EXPECT_EQ(check(), StartCheck::Nothing);
}

TEST_F(StartCheckTest, HolidaysThatCantBeReadOpenNothing)
{
    addSet();
    addHoliday(QDate(2025, 12, 25));
    ASSERT_TRUE(station.session.base.engine.execute("ALTER TABLE ferie RENAME COLUMN act TO autre").ok());
    EXPECT_EQ(check(), StartCheck::Nothing);
}

} // namespace
} // namespace velmora::test
