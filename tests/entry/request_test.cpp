#include "entry/request.h"

#include "support/workstation.h"

#include <gtest/gtest.h>

namespace velmora
{

class DayEntryRequest : public testing::Test
{
protected:
    void SetUp() override
    {
        poste.addLine(7, QStringLiteral("DURAND Paul"), QDate(2026, 3, 1), QDate(2026, 6, 30));
        poste.session.base.ligmois.setIndex("ligmois01");
        ASSERT_TRUE(poste.session.base.ligmois.seek(store::Cmp::Eq, {7}));
    }

    test::Workstation poste;
};

TEST_F(DayEntryRequest, OpensOnlyWithinThePeriodOfTheLine)
{
    const std::pair<QDate, bool> cas[]{{QDate(2026, 2, 28), false},
                                       {QDate(2026, 3, 1), true},
                                       {QDate(2026, 6, 30), true},
                                       {QDate(2026, 7, 1), false}};
    for (const auto &[date, ouvre] : cas) {
        poste.session.saisdeb.clear();
        EXPECT_EQ(prepareSaisie(poste.session, QStringLiteral("Durand"), 7, date), ouvre);
        EXPECT_EQ(poste.session.saisdeb.isEmpty(), !ouvre) << "a refused date leaves the session as it was";
    }
}

TEST_F(DayEntryRequest, SelectionGoesFromItsFirstDateToItsLast)
{
    ASSERT_TRUE(
        prepareSaisie(poste.session, QStringLiteral("Durand"), 7, QDate(2026, 6, 3), QDate(2026, 6, 5)));
    const JourneeSaisie journee = journeeSaisie(poste.session);
    EXPECT_EQ(journee.titre, "Durand du 03/06/2026 au 05/06/2026");
    EXPECT_EQ(journee.nom, "DURAND Paul");
    EXPECT_EQ(journee.dd, QDate(2026, 6, 3));
    EXPECT_EQ(journee.df, QDate(2026, 6, 5));
    EXPECT_EQ(journee.nump, 7);
}

TEST_F(DayEntryRequest, OneDayIsTitledWithItsDateAlone)
{
    ASSERT_TRUE(prepareSaisie(poste.session, QStringLiteral("Durand"), 7, QDate(2026, 6, 3)));
    EXPECT_EQ(journeeSaisie(poste.session).titre, "Durand le 03/06/2026");
}

TEST_F(DayEntryRequest, OnlyTheFirstDateOfASelectionIsLookedAt)
{
    poste.addDay(7, QDate(2026, 6, 4), 480, 720);
    ASSERT_TRUE(prepareSaisie(poste.session, QString(), 7, QDate(2026, 6, 3), QDate(2026, 6, 4)));
    EXPECT_FALSE(journeeSaisie(poste.session).jour);
    ASSERT_TRUE(prepareSaisie(poste.session, QString(), 7, QDate(2026, 6, 4), QDate(2026, 6, 5)));
    EXPECT_EQ(journeeSaisie(poste.session).jour->heurdeb, 480);
}

TEST_F(DayEntryRequest, WithoutALineThereIsNoName)
{
    ASSERT_TRUE(prepareSaisie(poste.session, QString(), 0, QDate(2026, 6, 3)));
    EXPECT_TRUE(journeeSaisie(poste.session).nom.isEmpty());
}

} // namespace velmora
