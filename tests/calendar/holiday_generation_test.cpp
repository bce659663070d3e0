#include "calendar/holiday_generation.h"

#include "calendar/calendar_rows.h"
#include "support/faulty_engine.h"
#include "support/raw_sqlite.h"

#include <gmock/gmock.h>

namespace velmora::test
{
namespace
{

using testing::Contains;
using testing::Not;

class HolidayGenerationTest : public testing::Test
{
protected:
    Faults faults;
    CalendarStation station{QDate(2026, 6, 15), std::make_unique<FaultyEngine>(faults)};

    void reset(const QDate &from) { ASSERT_TRUE(chargeferies(station.session, {true, from}).ok()); }
    void topUp() { ASSERT_TRUE(chargeferies(station.session, {false, QDate(2026, 6, 15)}).ok()); }
};

TEST_F(HolidayGenerationTest, OfTwoRulesOnADateTheHigherOneIsWritten)
{
    station.addSet({2000, 1, 1}, 0);
    ASSERT_TRUE(genannee(station.session.base, {}, 2008).ok());
    EXPECT_EQ(station.holidays().size(), 10);
    EXPECT_THAT(station.holidays(), Contains("01/05/2008 Ascension 0"));
    EXPECT_THAT(station.holidays(), Not(Contains("01/05/2008 Fête du travail 0")));
}

TEST_F(HolidayGenerationTest, AResetDeletesFromItsDateOnAndFillsTheWholeYear)
{
    station.addSet({2000, 1, 1}, 0);
    station.addHoliday({2026, 5, 8}, "Ancienne région");
    station.addHoliday({2026, 6, 1}, "Avant");
    station.addHoliday({2026, 6, 15}, "Le jour même");
    station.addHoliday({2026, 7, 14}, "Saisie", 1);
    station.addHoliday({2026, 8, 3}, "Saisie aussi", 1);
    station.addHoliday({2029, 1, 1}, "Plus tard");
    reset({2026, 6, 15});
    const QStringList expected{
        "01/01/2026 Nouvel An 0",
        "06/04/2026 Lundi de Pâques 0",
        "01/05/2026 Fête du travail 0",
        "08/05/2026 Ancienne région 0",
        "14/05/2026 Ascension 0",
        "25/05/2026 Lundi de Pentecôte 0",
        "01/06/2026 Avant 0",
        "14/07/2026 Saisie 1",
        "03/08/2026 Saisie aussi 1",
        "15/08/2026 Assomption 15 Août 0",
        "01/11/2026 Toussaint 0",
        "11/11/2026 Armistice 0",
        "25/12/2026 Noël 0",
    };
    EXPECT_EQ(station.holidays(2026), expected);
    EXPECT_EQ(station.years(), (QStringList{"2026: 13", "2027: 11"})) << "later years stay empty";
}

TEST_F(HolidayGenerationTest, AHolidayHasTheRegionInForceOnItsOwnDate)
{
    station.addSet({2024, 1, 1}, 0);
    station.addSet({2026, 7, 1}, 9);
    reset({2024, 1, 1});
    reset({2026, 7, 1});
    EXPECT_THAT(station.holidays(2026), Contains("08/05/2026 Fin seconde Guerre Mondiale 0"));
    EXPECT_THAT(station.holidays(2026), Contains("01/07/2026 Fête du Canada 0"));
    EXPECT_THAT(station.holidays(2026), Not(Contains("14/07/2026 Fête Nationale 0")));
    ASSERT_TRUE(genannee(station.session.base, {}, 2020).ok());
    EXPECT_EQ(station.holidays(2020).size(), 11) << "before the first set its region counts";
}

TEST_F(HolidayGenerationTest, AResetYearsBehindLeavesAGapThatTheTopUpDoesNotFill)
{
    station.addSet({2000, 1, 1}, 0);
    reset({2020, 3, 1});
    EXPECT_EQ(station.years(), (QStringList{"2020: 11", "2021: 11"}));
    topUp();
    EXPECT_EQ(station.years(), (QStringList{"2020: 11", "2021: 11", "2026: 11", "2027: 11"}));
    topUp();
    EXPECT_EQ(station.holidays().size(), 44);
}

TEST_F(HolidayGenerationTest, TheTopUpAddsWholeYearsAfterTheOneOfTheLastRow)
{
    station.addSet({2000, 1, 1}, 8);
    station.addHoliday({2026, 3, 2}, "Seul jour de son année", 1);
    topUp();
    EXPECT_EQ(station.years(), (QStringList{"2026: 1", "2027: 8"}));
    station.host.setToday({2027, 1, 1});
    topUp();
    EXPECT_EQ(station.years(), (QStringList{"2026: 1", "2027: 8", "2028: 8"}));
}

TEST_F(HolidayGenerationTest, DatesBeforeTheGivenOneArePassedOver)
{
    station.addSet({2000, 1, 1}, 6);
    ASSERT_TRUE(genannee(station.session.base, {2026, 4, 3}, 2026).ok());
    EXPECT_EQ(station.holidays(), (QStringList{"03/04/2026 Vendredi Saint 0", "26/12/2026 St Etienne 0"}));
}

TEST_F(HolidayGenerationTest, AnEmptyTableIsBegunFromTheDateWhateverIsAsked)
{
    station.addSet({2000, 1, 1}, 6);
    ASSERT_TRUE(chargeferies(station.session, {false, QDate(2023, 6, 15)}).ok());
    EXPECT_EQ(station.years(), (QStringList{"2023: 3", "2024: 3"}));
}

TEST_F(HolidayGenerationTest, NoSetAndNoKnownRegionObserveNothing)
{
    reset({2026, 1, 1});
    EXPECT_TRUE(station.holidays().isEmpty());
    station.addSet({2000, 1, 1}, 10);
    reset({2026, 1, 1});
    EXPECT_TRUE(station.holidays().isEmpty());
}

TEST_F(HolidayGenerationTest, AResetThatFailsLeavesTheTableAsItWas)
{
    station.addSet({2000, 1, 1}, 0);
    reset({2026, 1, 1});
    const QStringList before = station.holidays();
    for (const int writes : {3, 30}) { // a deletion, an addition
        faults.writesBefore = writes;
        EXPECT_EQ(chargeferies(station.session, {true, QDate(2026, 1, 1)}).code(), store::Status::Code::Full);
        EXPECT_EQ(station.holidays(), before);
        EXPECT_EQ(station.session.base.ferie.editMode(), store::EditMode::None);
    }
    reset({2026, 1, 1});
    EXPECT_EQ(station.holidays(), before);
}

TEST_F(HolidayGenerationTest, ATableThatLacksNothingIsNotWrittenTo)
{
    station.addSet({2000, 1, 1}, 0);
    reset({2026, 1, 1});
    RawSqlite other(station.mainFile());
    ASSERT_TRUE(other.run("BEGIN IMMEDIATE"));
    topUp();
}

} // namespace
} // namespace velmora::test
