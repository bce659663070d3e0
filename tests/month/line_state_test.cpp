#include "month/line_state.h"

#include "month/open_month.h"

namespace velmora::test
{
namespace
{

TEST(StateOfALine, DependsOnTodayAndOnTheViewsFirstDate)
{
    const QDate first(2026, 5, 4);
    const QDate today(2026, 6, 15);
    struct Case {
        QDate failure;
        bool header;
        const char *text;
        QRgb ink;
    };
    for (const Case &one : {
             Case{{2026, 6, 16}, false, "Pb", palette::encreControle1},
             Case{{2026, 6, 15}, false, "Pb", palette::encre},
             Case{{2026, 5, 4}, false, "Pb", palette::encre},
             Case{{2026, 5, 3}, false, "Ok", palette::encreControle2},
             Case{{1900, 1, 1}, false, "Ok", palette::encreControle2},
             Case{{1900, 1, 1}, true, "Pb", palette::encreControle1},
         }) {
        const Etat state = etatDe({true, one.failure}, first, today, one.header);
        EXPECT_EQ(state.texte.toStdString(), one.text) << one.failure.toString(Qt::ISODate).toStdString();
        EXPECT_EQ(state.encre, one.ink) << one.failure.toString(Qt::ISODate).toStdString();
    }
}

/// ANNE has limits, BRUNO none. A day of nine hours is one too many.
class LineStateTest : public testing::Test
{
protected:
    Workstation station;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"));
        station.addLine(2, QStringLiteral("BRUNO"));
        limit(1, 480);
    }

    Ligne limit(int nump, int maxj)
    {
        auto &ligmois = station.session.base.ligmois;
        ligmois.setIndex("ligmois01");
        EXPECT_TRUE(ligmois.seek(store::Cmp::Eq, {nump}));
        EXPECT_TRUE(ligmois.edit().ok());
        ligmois.values().bcontrolh = maxj > 0;
        ligmois.values().maxj = maxj;
        EXPECT_TRUE(ligmois.update().ok());
        return ligmois.row();
    }
    void work(const QDate &date, int minutes)
    {
        station.addDay(1, date, 480, 480 + minutes);
        auto &sitper = station.session.base.sitper;
        ASSERT_TRUE(sitper.seek(store::Cmp::Eq, {1, date}));
        ASSERT_TRUE(sitper.edit().ok());
        sitper.values().heurtrav = sitper.values().heurpaye = minutes;
        ASSERT_TRUE(sitper.update().ok());
    }
    static std::string state(const OpenMonth &month, int nump)
    {
        return month.planning.grille.lit(month.row(nump), Grille::colonneEtat).texte.toStdString();
    }
    static std::pair<int, int> widths(const OpenMonth &month)
    {
        const Grille &grille = month.planning.grille;
        return {grille.largeur(Grille::colonneNom), grille.largeur(Grille::colonneEtat)};
    }
};

TEST_F(LineStateTest, OpensTheColumnOnlyForALineWithControls)
{
    OpenMonth month(station, 6, 2026);
    EXPECT_EQ(state(month, 1), "Ok");
    EXPECT_EQ(state(month, 2), "");
    EXPECT_EQ(widths(month), std::pair(1740, 360));
    EXPECT_TRUE(month.planning.controlpresent);
    limit(1, 0);
    ASSERT_TRUE(chargi(month.planning, {}));
    EXPECT_EQ(widths(month), std::pair(2040, 60));
    refaitControles(month.planning, limit(2, 480));
    EXPECT_EQ(state(month, 2), "Ok");
    EXPECT_EQ(widths(month), std::pair(1740, 360));
}

TEST_F(LineStateTest, FollowsTheHoursAndTheLimitsButStaysWhenTheyGo)
{
    OpenMonth month(station, 6, 2026);
    work({2026, 6, 16}, 540);
    month.refill(1);
    EXPECT_EQ(state(month, 1), "Pb");
    refaitControles(month.planning, limit(1, 600));
    EXPECT_EQ(state(month, 1), "Ok");
    refaitControles(month.planning, limit(1, 500));
    EXPECT_EQ(state(month, 1), "Pb");
    // A line that loses its controls keeps its mark until the month is opened again.
    refaitControles(month.planning, limit(1, 0));
    EXPECT_EQ(state(month, 1), "Pb");
    EXPECT_EQ(state(OpenMonth(station, 6, 2026), 1), "");
}

TEST_F(LineStateTest, IsJudgedAnewWithTheReportThatAClickAsksFor)
{
    work({2026, 6, 16}, 480);
    OpenMonth month(station, 6, 2026);
    month.planning.rapportdemande = true;
    month.moveTo(1, {2026, 6, 16}); // nothing to report
    month.planning.rapportdemande = true;
    month.moveTo(2, {2026, 6, 16}); // no controls
    EXPECT_FALSE(month.planning.rapportdemande);
    // Another workstation adds hours.
    work({2026, 6, 17}, 540);
    month.moveTo(1, {2026, 6, 16});
    EXPECT_EQ(state(month, 1), "Ok");
    station.host.expectMessage(QStringLiteral("        ANNE\n"
                                              "\n"
                                              " Heures max / jour (8h00) dépassées\n"
                                              " 2026 semaine :  25 => Journées > heures max\n"));
    month.planning.rapportdemande = true;
    month.moveTo(1, {2026, 6, 16});
    EXPECT_EQ(station.host.titles.last(), QStringLiteral("Velmora"));
    EXPECT_EQ(state(month, 1), "Pb");
    EXPECT_EQ(month.planning.grille.lit(month.row(1), Grille::colonneEtat).encre, palette::encreControle1);
    EXPECT_TRUE(month.planning.suivi);
    month.moveTo(1, {2026, 6, 17});
}

TEST_F(LineStateTest, TakesAHeaderThatReadsOkForAFailureOfEveryLine)
{
    OpenMonth month(station, 6, 2026);
    month.planning.grille.ecrit(0, Grille::colonneEtat, QStringLiteral("Ok"));
    month.refill(1);
    EXPECT_EQ(state(month, 1), "Pb");
}

} // namespace
} // namespace velmora::test
