#include "month/cells.h"

#include "month/open_month.h"
#include "session/records.h"

namespace velmora::test
{
namespace
{

JourSit day(int heurdeb, int heurfin, int hideb = 0, int hifin = 0, int hideb2 = 0, int hifin2 = 0)
{
    JourSit jour;
    jour.heurdeb = heurdeb;
    jour.heurfin = heurfin;
    jour.hideb = hideb;
    jour.hifin = hifin;
    jour.hideb2 = hideb2;
    jour.hifin2 = hifin2;
    return jour;
}

TEST(CellTextTest, ShowsEachModeWithEachCutAndAcrossMidnight)
{
    struct Case {
        JourSit jour;
        int minutes;
        const char *texts[3];
    };
    const Case cases[] = {
        {day(500, 840), 340, {"5h40", "8h20 - 14h00", "8h20 - 14h00"}},
        {day(500, 1290, 840, 1080),
         550,
         {"9h10", "8h20 - 21h30\n[14h00 _ 18h00]", "8h20 - 14h00\n18h00 - 21h30"}},
        {day(480, 1200, 600, 615, 720, 780),
         645,
         {"10h45", "8h00 - 20h00\n[10h00 _ 10h15]\n[12h00 _ 13h00]",
          "8h00 - 10h00\n10h15 - 12h00\n13h00 - 20h00"}},
        {day(480, 1200, 0, 0, 720, 780),
         660,
         {"11h00", "8h00 - 20h00\n[12h00 _ 13h00]", "8h00 - 12h00\n13h00 - 20h00"}},
        {day(1320, 360, 120, 150), 450, {"7h30", "22h00 - 6h00\n[2h00 _ 2h30]", "22h00 - 2h00\n2h30 - 6h00"}},
        {day(1320, 360), 480, {"8h00", "22h00 - 6h00", "22h00 - 6h00"}},
        {day(480, 960, 600, 600, 700, 700), 480, {"8h00", "8h00 - 16h00", "8h00 - 16h00"}},
        {day(0, 1440), 1440, {"24h00", "0h00 - 24h00", "0h00 - 24h00"}},
    };
    for (const Case &one : cases) {
        const Horaire horaire = horaireDuJour(one.jour);
        EXPECT_EQ(horaire.minutes, one.minutes);
        for (int mode = 0; mode < 3; ++mode)
            EXPECT_EQ(texteHoraire(horaire, mode).toStdString(), one.texts[mode]) << mode;
    }
}

class CellsTest : public testing::Test
{
protected:
    Workstation station;
    const QDate first{2026, 6, 10};

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"), {2026, 5, 20}, {2026, 7, 10});
        station.addCode(QStringLiteral("CP"), 420, QStringLiteral("Congés"));
        station.addCode(QStringLiteral("RH"), 0, QStringLiteral("Repos"));
        station.addCode(QStringLiteral("JA"), -1, QStringLiteral("Jamais"));
        station.addCode(QStringLiteral("NU"), std::nullopt, QStringLiteral("Nul"));
        station.addCode(QStringLiteral(" M"), 300, QStringLiteral("Maladie"));
    }
};

TEST_F(CellsTest, CountsAnAbsenceByItsCodeOverARowAndOverNone)
{
    struct Case {
        const char *code;
        const char *text;
        int alone;
        int overRow;
    };
    const Case cases[] = {
        {"CP", "CP", 420, 420}, {"RH", "RH", 0, 480}, {"JA", "JA", 0, 0},
        {"NU", "NU", 0, 480},   {"M", "M", 300, 300}, {"ZZ", "?", 0, 480},
    };
    QDate date = first;
    for (const Case &one : cases) {
        station.addAbsence(1, QString::fromUtf8(one.code), date, date.addDays(1));
        station.addDay(1, date.addDays(1), 480, 960, 0, 0, false);
        date = date.addDays(2);
    }
    const OpenMonth month(station, 6, 2026);
    date = first;
    for (const Case &one : cases) {
        EXPECT_EQ(month.text(1, date), one.text);
        EXPECT_EQ(month.text(1, date.addDays(1)), one.text);
        EXPECT_EQ(month.minutes(1, date), one.alone) << one.code;
        EXPECT_EQ(month.minutes(1, date.addDays(1)), one.overRow) << one.code;
        date = date.addDays(2);
    }
}

TEST_F(CellsTest, TakesTheCodesColoursOnlyWhenItHasItsOwn)
{
    ASSERT_TRUE(
        station.session.base.engine
            .execute(QStringLiteral("UPDATE codabs SET backc = 255, forec = 65280, bcouleur = -1 "
                                    "WHERE codabs = 'CP'; UPDATE codabs SET backc = 255 WHERE codabs = 'RH'"))
            .ok());
    station.addAbsence(1, QStringLiteral("CP"), first, first);
    station.addAbsence(1, QStringLiteral("RH"), first.addDays(1), first.addDays(1));
    const OpenMonth month(station, 6, 2026);
    EXPECT_EQ(month.cell(1, first).fond, 0xff0000ffU);
    EXPECT_EQ(month.cell(1, first).encre, 0xff00ff00U);
    EXPECT_EQ(month.cell(1, first.addDays(1)).fond, palette::fond);
}

TEST_F(CellsTest, CountsAnInvalidRowWithoutAnAbsenceAndShowsNothing)
{
    station.addDay(1, first, 480, 960, 0, 0, false);
    const OpenMonth month(station, 6, 2026);
    EXPECT_EQ(month.text(1, first), "");
    EXPECT_EQ(month.minutes(1, first), 480);
}

TEST_F(CellsTest, LeavesClosedDaysAloneUnlessARowStandsThere)
{
    station.addAbsence(1, QStringLiteral("CP"), {2026, 5, 10}, {2026, 5, 12});
    station.addDay(1, {2026, 5, 15}, 480, 960);
    OpenMonth month(station, 6, 2026);
    EXPECT_EQ(month.text(1, {2026, 5, 10}), "////");
    EXPECT_EQ(month.minutes(1, {2026, 5, 10}), 0);
    EXPECT_EQ(month.cell(1, {2026, 5, 10}).fond, palette::fondFixe);
    EXPECT_EQ(month.text(1, {2026, 5, 15}), "8h00 - 16h00");
    EXPECT_EQ(month.minutes(1, {2026, 5, 15}), 480);
    EXPECT_EQ(month.text(1, {2026, 5, 19}), "////");
    EXPECT_EQ(month.text(1, {2026, 5, 20}), "");
    EXPECT_EQ(month.text(1, {2026, 7, 10}), "");
    EXPECT_EQ(month.text(1, {2026, 7, 11}), "////");
    month.refill(1);
    EXPECT_EQ(month.text(1, {2026, 5, 10}), "////");
}

TEST_F(CellsTest, KeepsARowHigherOnceADayHadThreeLines)
{
    station.session.modecellule = 1;
    OpenMonth month(station, 6, 2026);
    const int row = month.row(1);
    const int usual = month.planning.mesures.hautligne;
    station.addDay(1, first, 480, 960, 600, 615);
    month.refill(1);
    EXPECT_EQ(month.planning.grille.hauteur(row), usual);
    auto &engine = station.session.base.engine;
    ASSERT_TRUE(engine.execute(QStringLiteral("UPDATE sitper SET hideb2 = 700, hifin2 = 715")).ok());
    month.refill(1);
    EXPECT_EQ(month.planning.grille.hauteur(row), usual * 3 / 2);
    ASSERT_TRUE(engine.execute(QStringLiteral("DELETE FROM sitper")).ok());
    month.refill(1);
    EXPECT_EQ(month.planning.grille.hauteur(row), usual * 3 / 2);
}

TEST_F(CellsTest, FindsTheSameSpanAsTheTableWithOverlaps)
{
    station.addAbsence(1, QStringLiteral("CP"), {2026, 6, 1}, {2026, 6, 20});
    station.addAbsence(1, QStringLiteral("RH"), {2026, 6, 5}, {2026, 6, 6});
    station.addAbsence(1, QStringLiteral("JA"), {2026, 6, 5}, {2026, 6, 5});
    station.addAbsence(2, QStringLiteral("NU"), {2026, 6, 7}, {2026, 6, 30});
    const OpenMonth month(station, 6, 2026);
    for (QDate date(2026, 5, 28); date < QDate(2026, 6, 25); date = date.addDays(1)) {
        const bool absent = absjour(station.session, 1, date);
        EXPECT_EQ(absent, !month.text(1, date).empty()) << date.day();
        if (absent) {
            EXPECT_EQ(station.session.base.absences.row().codabs.toStdString(), month.text(1, date));
        }
    }
    // A short span that begins later hides the long one behind it.
    EXPECT_EQ(month.text(1, {2026, 6, 7}), "");
}

TEST_F(CellsTest, SaysTheCurrentCellInTheStatusText)
{
    ASSERT_TRUE(
        station.session.base.engine
            .execute(QStringLiteral("INSERT INTO sitper (nump, dat, Val, heurdeb, heurfin, hideb, hifin, "
                                    "hideb2, hifin2) VALUES (1, '2026-06-01', -1, 480, 960, 0, 0, 0, 0), "
                                    "(1, '2026-06-02', -1, 480, 960, 600, 615, 0, 0), "
                                    "(1, '2026-06-03', -1, 480, 1200, 600, 615, 720, 780), "
                                    "(1, '2026-06-04', 0, 480, 960, 0, 0, 0, 0), "
                                    "(1, '2026-06-05', 0, 480, 960, 0, 0, 0, 0)"))
            .ok());
    station.addAbsence(1, QStringLiteral("RH"), {2026, 6, 4}, {2026, 6, 4});
    station.addAbsence(1, QStringLiteral("CP"), {2026, 6, 8}, {2026, 6, 8});
    station.addAbsence(1, QStringLiteral("ZZ"), {2026, 6, 9}, {2026, 6, 9});
    struct Case {
        int day;
        int mode;
        bool hundredths;
        const char *text;
    };
    const Case cases[] = {
        {1, 0, false, "[Fait: 8h00 ] de 8h00 à 16h00"},
        {1, 2, false, "[Fait: 8h00 ] de 8h00 à 16h00"},
        {2, 1, false, "[Fait: 7h45 ] de 8h00 à 16h00 [Coupe: 10h00 _ 10h15]"},
        {2, 2, false, "[Fait: 7h45 ] de 8h00 à 10h00 + de 10h15 à 16h00"},
        {3, 0, false, "[Fait: 10h45 ] de 8h00 à 20h00 [Coupe: 10h00 _ 10h15] [Coupe: 12h00 _ 13h00]"},
        {3, 2, false, "[Fait: 10h45 ] de 8h00 à 10h00 + de 10h15 à 12h00 + de 13h00 à 20h00"},
        {2, 1, true, "[Fait: 7.75 ] de 8.00 à 16.00 [Coupe: 10.00 _ 10.25]"},
        {4, 1, false, "ABS: RH Repos [8h00]"},
        {5, 1, false, ""},
        {6, 1, false, ""},
        {8, 1, false, "ABS: CP Congés [7h00]"},
        {8, 1, true, "ABS: CP Congés [7.00]"},
        {9, 1, false, "ABS: ZZ [0h00]"},
    };
    for (const Case &one : cases) {
        station.session.modecellule = one.mode;
        station.session.totcent = one.hundredths;
        EXPECT_EQ(textestatut(station.session, 1, {2026, 6, one.day}).toStdString(), one.text);
    }
}

} // namespace
} // namespace velmora::test
