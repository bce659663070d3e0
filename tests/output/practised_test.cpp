#include "output/practised.h"

#include "output/practised_print.h"
#include "support/pdf.h"
#include "support/workstation.h"

namespace velmora::test
{
namespace
{

const QDate june1(2026, 6, 1);
const QDate june30(2026, 6, 30);

class PractisedTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void addDay(int nump, const QDate &dat, const std::array<int, 6> &times, bool valid = true)
    {
        auto &sitper = session.base.sitper;
        ASSERT_TRUE(sitper.addNew().ok());
        JourSit &jour = sitper.values();
        jour.nump = nump;
        jour.dat = dat;
        jour.Val = valid;
        jour.heurdeb = times[0];
        jour.heurfin = times[1];
        jour.hideb = times[2];
        jour.hifin = times[3];
        jour.hideb2 = times[4];
        jour.hifin2 = times[5];
        ASSERT_TRUE(sitper.update().ok());
    }
    static QStringList rows(const HorairesPratiques &rapport)
    {
        QStringList texts;
        for (const HorairePratique &horaire : rapport.horaires)
            texts << textesHoraire(horaire).join(QLatin1Char('|'));
        return texts;
    }
};

TEST_F(PractisedTest, EqualSchedulesAreOneRowAcrossLinesDaysAndWaysOfWritingThem)
{
    station.addLine(1, QStringLiteral("ANNE"));
    station.addLine(2, QStringLiteral("BRUNO"));
    station.addLine(3, QStringLiteral("PARTI"), {2020, 1, 1}, {2026, 5, 31});
    addDay(1, {2026, 6, 2}, {480, 1020, 720, 780, 0, 0});
    addDay(2, {2026, 6, 30}, {480, 1020, 720, 780, 600, 600}); // a pause of no length is none
    addDay(1, {2026, 6, 3}, {1320, 360, 0, 0, 0, 0});          // a night, in both its writings
    addDay(2, {2026, 6, 3}, {1320, 1800, 0, 0, 0, 0});
    addDay(1, {2026, 6, 4}, {600, 1440, 720, 750, 900, 960}); // 24h00 stays
    addDay(1, {2026, 6, 5}, {480, 480, 0, 0, 0, 0});
    addDay(1, {2026, 6, 6}, {540, 600, 0, 0, 0, 0}, false); // under an absence
    addDay(1, {2026, 7, 1}, {540, 600, 0, 0, 0, 0});
    addDay(3, {2026, 6, 1}, {540, 600, 0, 0, 0, 0});
    HorairesPratiques rapport = horairesPratiques(session, june1, june30);
    EXPECT_TRUE(rapport.donnees);
    const QStringList byTimes{"8h00|17h00|12h00|13h00|||8h00|2",
                              "10h00|24h00|12h00|12h30|15h00|16h00|12h30|1", "22h00|6h00|||||8h00|2"};
    EXPECT_EQ(rows(rapport), byTimes);
    trieHoraires(rapport.horaires, 7, false);
    EXPECT_EQ(rows(rapport), QStringList({byTimes[0], byTimes[2], byTimes[1]}));
    trieHoraires(rapport.horaires, 6, false);
    EXPECT_EQ(rows(rapport).first(), byTimes[1]);
}

TEST_F(PractisedTest, APeriodWithoutDaysOrWithoutLinesHoldsNothing)
{
    station.addLine(1, QStringLiteral("ANNE"), {2026, 7, 1}, {2099, 1, 1});
    EXPECT_FALSE(horairesPratiques(session, june1, june30).donnees);
    station.addDay(1, {2026, 6, 2}, 480, 1020);
    EXPECT_FALSE(horairesPratiques(session, june1, june30).donnees);
    station.addDay(1, {2026, 7, 2}, 480, 1020);
    EXPECT_TRUE(horairesPratiques(session, june1, {2026, 7, 31}).donnees);
}

TEST_F(PractisedTest, ThePrintHasItsTitleAndARowForEachScheduleInTheOrderShown)
{
    std::vector<HorairePratique> horaires;
    for (int i = 0; i < 120; ++i)
        horaires.push_back({480 + i, 1020, 720, 780, 0, 0, 120 - i});
    const PrintedPdf pdf(impressionHoraires(horaires, june1, june30, QStringLiteral("Résidence Énée")));
    EXPECT_GT(pdf.pages(), 1);
    QStringList found;
    for (int page = 1; page <= pdf.pages(); ++page) {
        const QStringList lines = pdf.lines(page);
        EXPECT_TRUE(lines[0].startsWith("Résidence Énée [imprimé le 15/06/2026")) << lines[0].toStdString();
        EXPECT_EQ(lines[1], "Horaires Pratiqués du 01/06/2026 au 30/06/2026");
        EXPECT_EQ(lines[2], "Début Fin D.Coup.1 F.Coup.1 D.Coup.2 F.Coup.2 Durée Nb Occur.");
        found << lines.mid(3);
    }
    ASSERT_EQ(found.size(), 120);
    EXPECT_EQ(found[0], "8h00 17h00 12h00 13h00 8h00 120");
    EXPECT_EQ(found[119], "9h59 17h00 12h00 13h00 6h01 1");
}

} // namespace
} // namespace velmora::test
