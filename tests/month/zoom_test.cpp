#include "month/zoom.h"

#include "month/open_month.h"

namespace velmora::test
{
namespace
{

/// Kinds and ends of the stretches: "T480-720 C720-765".
std::string shape(const std::vector<Barre> &barres)
{
    QStringList parts;
    for (const Barre &barre : barres)
        parts << QStringLiteral("%1%2-%3")
                     .arg(QLatin1Char("TCNcA"[static_cast<int>(barre.sorte)]))
                     .arg(barre.de)
                     .arg(barre.a);
    return parts.join(QLatin1Char(' ')).toStdString();
}

TEST(DayBars, WorkIsWhatTheCutsLeaveAndTimesBelowTheStartAreOfTheNextDay)
{
    const std::pair<HeuresBarre, const char *> days[]{
        {{480, 0, 0, 1020, 0, 0}, "T480-1020"},
        {{480, 720, 780, 1020, 0, 0}, "T480-720 C720-780 T780-1020"},
        {{480, 900, 960, 1020, 600, 660}, "T480-600 C600-660 T660-900 C900-960 T960-1020"},
        {{1320, 0, 60, 360, 180, 180}, "T1320-1440 C1440-1500 T1500-1800"},
        {{1320, 1500, 1560, 1800, 0, 0}, "T1320-1500 C1500-1560 T1560-1800"},
        {{480, 480, 540, 1020, 960, 1100}, "C480-540 T540-960 C960-1020"},
        {{480, 0, 0, 480, 0, 0}, ""},
    };
    for (const auto &[heures, expected] : days)
        EXPECT_EQ(shape(barresDe(heures)), expected);
    EXPECT_EQ(shape(barresSurLHorloge({1320, 30, 60, 360, 0, 0})), "T1320-1440 T0-30 T60-360");
    EXPECT_EQ(shape(barresSurLHorloge({1320, 0, 0, 1440, 0, 0})), "T1320-1440");
}

TEST(DayBars, PixelsRoundAndCoverTheWholeWidth)
{
    EXPECT_EQ(pixelDe(0, 601), 0);
    EXPECT_EQ(pixelDe(1440, 601), 601);
    EXPECT_EQ(pixelDe(720, 601), 301);
    EXPECT_EQ(pixelDe(1, 1000), 1);
}

class ZoomTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    const QDate wednesday{2026, 6, 3};

    void SetUp() override
    {
        station.addCode(QStringLiteral("CA"), 0, QStringLiteral("Congé annuel"));
        station.addLine(1, QStringLiteral("ANNE"));
        station.addLine(2, QStringLiteral("BRUNO"), {2020, 1, 1}, {2026, 6, 2});
        station.addLine(3, QStringLiteral("CLARA"));
        station.addLine(4, QStringLiteral("DENIS"));
    }
    /// Name, mark, times and bars of each row.
    QStringList rows(const ZoomJour &zoom)
    {
        QStringList texts;
        for (const LigneZoom &ligne : zoom.lignes)
            texts << textesZoom(ligne).mid(1).join(QLatin1Char('|')) + QLatin1Char('|') +
                         QString::fromStdString(shape(ligne.barres));
        return texts;
    }
};

TEST_F(ZoomTest, EachLineHasItsDayTheNightBeforeItsAbsenceOrItsClosure)
{
    station.addDay(1, {2026, 6, 2}, 1320, 390, 60, 90); // goes on into the day shown
    station.addDay(1, wednesday, 840, 1320, 1080, 1140);
    station.addDay(3, {2026, 6, 2}, 480, 1440); // ends with its day
    station.addDay(3, wednesday, 1260, 1830);   // stored past midnight
    station.addDay(4, {2026, 6, 2}, 1320, 360, 0, 0, false);
    station.addDay(4, wednesday, 480, 1020, 0, 0, false);
    station.addAbsence(4, QStringLiteral("CA"), {2026, 6, 2}, {2026, 6, 5});
    OpenMonth month(station, 6, 2026);
    const ZoomJour zoom = zoomDuJour(month.planning, wednesday);
    EXPECT_EQ(titresZoom(zoom).mid(1), QStringList({"mercredi 3", {}, "Deb.  -  Fin"}));
    const QStringList expected{"ANNE|*| ... - 6h30 /   14h00  -  22h00 /|N0-150 T600-840 C840-900 T900-1080",
                               "BRUNO||////|", "CLARA|*|21h00  -  6h30|T1020-1440", "DENIS||CA|A0-1440"};
    EXPECT_EQ(rows(zoom), expected);
    EXPECT_EQ(zoom.lignes[3].barres[0].texte, "CA  Congé annuel");
    EXPECT_TRUE(zoom.lecture.ok());
    session.totcent = true;
    const QString hundredths = zoomDuJour(month.planning, wednesday).lignes[2].horaire;
    EXPECT_EQ(hundredths, Foncgen::strn(21, 2) + "  -  " + Foncgen::strn(6.5, 2));
}

TEST_F(ZoomTest, ANightBeforeStillShowsOnTheFirstDayOfAnAbsence)
{
    station.addDay(4, {2026, 6, 2}, 1320, 360);
    station.addAbsence(4, QStringLiteral("ZZ"), wednesday, wednesday); // a code that is gone
    OpenMonth month(station, 6, 2026);
    const ZoomJour zoom = zoomDuJour(month.planning, wednesday);
    EXPECT_EQ(rows(zoom)[3], "DENIS|*| ... - 6h00   ZZ|A0-1440 N0-120");
    EXPECT_EQ(zoom.lignes[3].barres[0].texte, "ZZ");
}

} // namespace
} // namespace velmora::test
