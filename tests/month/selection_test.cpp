#include "month/highlight.h"
#include "month/loading.h"
#include "month/print_dates.h"
#include "month/refresh.h"
#include "month/selection.h"
#include "support/workstation.h"

namespace velmora::test
{
namespace
{

/// June 2026 on two lines, loaded; columns are named by their dates.
class SelectionTest : public testing::Test
{
protected:
    Workstation station;
    std::unique_ptr<Planning> planning;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"));
        station.addLine(2, QStringLiteral("BERNARD"));
        planning = std::make_unique<Planning>(station.session, 6, 2026);
        ASSERT_TRUE(chargi(*planning, {}));
        cycle(*planning);
    }

    int column(int day) { return planning->colonnes.colonneDe(QDate(2026, 6, day)); }
    void press(int day)
    {
        planning->curseur = {3, column(day)};
        commenceSelection(*planning);
    }
    QRgb background(int day) { return planning->grille.lit(3, column(day)).fond; }
};

TEST_F(SelectionTest, GrowsAndShrinksOnDaysAlone)
{
    struct Case {
        std::vector<int> pointer; ///< days passed over; 0 is the week's total after the 7th
        int first;
        int last; ///< 0 for no selection at the end
    };
    const Case cases[] = {
        {{}, 4, 0},        // a plain click
        {{6}, 4, 6},       // to the right
        {{9}, 4, 9},       // over the total
        {{6, 0}, 4, 6},    // the total under the pointer changes nothing
        {{8, 6}, 4, 5},    // back: the day under the pointer goes too
        {{6, 4}, 4, 0},    // back onto the anchor
        {{6, 4, 7}, 4, 7}, // and out again
        {{3}, 4, 0},       // left of the anchor
    };
    for (const Case &one : cases) {
        press(4);
        for (const int day : one.pointer)
            glisseSelection(*planning, day == 0 ? column(7) + 1 : column(day));
        // Back on the anchor is the empty state, its end before its start; going out again colours all but
        // the anchor. Wanted.
        if (one.pointer == std::vector{6, 4}) {
            EXPECT_EQ(planning->selection.selfin, column(4) - 1);
        }
        if (one.pointer == std::vector{6, 4, 7}) {
            EXPECT_EQ(planning->selection.coulfond.size(), 4);
        }
        finitSelection(*planning);
        const Selection &selection = planning->selection;
        EXPECT_EQ(selection.selact, one.last != 0);
        EXPECT_EQ(planning->curseur, (Place{3, column(4)}));
        EXPECT_TRUE(planning->suivi);
        if (one.last != 0) {
            EXPECT_EQ(selection.seldeb, column(one.first));
            EXPECT_EQ(selection.selfin, column(one.last));
            EXPECT_FALSE(planning->colonnes.estJour(column(7) + 1));
            EXPECT_NE(planning->grille.lit(3, column(7) + 1).fond, palette::fondSelection);
        }
        selvide(*planning);
    }
}

TEST_F(SelectionTest, EveryCellGetsItsOwnColoursBackThroughTheHighlight)
{
    std::vector<QRgb> before;
    planning->curseur = {4, column(1)};
    cycle(*planning);
    for (int day = 1; day <= 14; ++day)
        before.push_back(background(day));
    press(4);
    glisseSelection(*planning, column(13));
    finitSelection(*planning);
    cycle(*planning);
    coloreCase(*planning, {3, column(6)}, palette::ferie, palette::encre); // refilled while selected
    EXPECT_EQ(background(6), palette::fondSelection);
    selvide(*planning);
    planning->curseur = {4, column(1)};
    cycle(*planning);
    for (int day = 1; day <= 14; ++day)
        EXPECT_EQ(background(day), day == 6 ? palette::ferie : before[static_cast<std::size_t>(day - 1)])
            << day;
}

TEST_F(SelectionTest, NothingBeginsOnTheRowOfTotalsOrTheLastColumn)
{
    for (const Place &place :
         {Place{planning->grille.derniereLigne(), column(4)}, Place{3, planning->grille.colonnes() - 1}}) {
        planning->curseur = place;
        commenceSelection(*planning);
        EXPECT_FALSE(planning->selection.selact);
    }
}

TEST_F(SelectionTest, PrintsTakeTheMonthOfTheColumnEvenOfATotal)
{
    const int sunday31may = planning->colonnes.colonneDe(QDate(2026, 5, 31));
    planning->curseur = {3, sunday31may + 1};
    datesDeLigne(*planning);
    const Session &session = station.session;
    EXPECT_EQ(session.impdeb, QDate(2026, 5, 1));
    EXPECT_EQ(session.impfin, QDate(2026, 5, 31));
    EXPECT_EQ(session.saisdeb, QStringLiteral("ANNE"));
    EXPECT_EQ(session.saisligne, 1);
    datesDeSemaine(*planning);
    EXPECT_EQ(session.impdate, QDate(2026, 5, 31));
    EXPECT_EQ(session.impfin, planning->periode.fingrille);
    datesDHoraires(*planning);
    EXPECT_EQ(session.impdate, planning->periode.debgrille);
    EXPECT_EQ(session.impdeb, planning->periode.fingrille);
}

} // namespace
} // namespace velmora::test
