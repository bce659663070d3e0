#include "journal/recording.h"

#include "support/workstation.h"

#include <QCoreApplication>
#include <QTimer>

namespace velmora::test
{
namespace
{

const QString disque = QStringLiteral("Problème accès disque! réessayer ?");
const QDate third(2026, 6, 3);

class RecordingTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    store::Table<JourSit> &sitper = session.base.sitper;
    store::Table<AbsenceSaisie> &absences = session.base.absences;

    int record() { return ecritop(session, QStringLiteral("A"), QStringLiteral("absence saisie pour ")); }
    void onDay(const QDate &date = third) { ASSERT_TRUE(sitper.seek(store::Cmp::Eq, {1, date})); }

    /// The images of a table, in order: "slot.rank avap foncop value".
    template <class Image> QStringList images(store::Table<Image> &table)
    {
        QStringList found;
        for (bool more = table.first(); more; more = table.next()) {
            const Rang &rang = table.row().rang;
            found << QStringLiteral("%1.%2 %3%4 %5")
                         .arg(rang.numop)
                         .arg(rang.nivop)
                         .arg(rang.avap, rang.foncop, value(table.row()));
        }
        return found;
    }
    QStringList dayImages() { return images(session.journal.sitlog); }
    QStringList absenceImages() { return images(session.journal.logabs); }

private:
    static QString value(const ImageSit &image) { return QString::number(image.jour.heurdeb); }
    static QString value(const ImageAbs &image) { return image.absence.codabs; }
};

TEST_F(RecordingTest, ImagesComeInTheOrderThatReplayNeeds)
{
    station.addDay(1, third, 480, 960);
    record();
    onDay();
    ASSERT_TRUE(editsit(session).ok());
    sitper.values().heurdeb = 500;
    ASSERT_TRUE(majsit(session).ok());
    ASSERT_TRUE(ajoutsit(session).ok());
    sitper.values().nump = 1;
    sitper.values().dat = third.addDays(1);
    sitper.values().heurdeb = 600;
    ASSERT_TRUE(majsit(session).ok());
    EXPECT_EQ(sitper.row().heurdeb, 600) << "the written row is current";
    onDay();
    ASSERT_TRUE(supprsit(session).ok());
    EXPECT_EQ(dayImages(), (QStringList{QStringLiteral("1.1 AE 480"), QStringLiteral("1.2 PE 500"),
                                        QStringLiteral("1.3 PA 600"), QStringLiteral("1.4 AD 500")}));
    EXPECT_TRUE(absenceImages().isEmpty());
}

TEST_F(RecordingTest, AbsencesShareTheRanksOfTheirOperation)
{
    record();
    ASSERT_TRUE(ajoutabs(session).ok());
    absences.values() = {1, 0, QStringLiteral("CP"), third, third};
    ASSERT_TRUE(majabs(session).ok());
    ASSERT_TRUE(ajoutsit(session).ok());
    sitper.values().nump = 1;
    sitper.values().dat = third;
    ASSERT_TRUE(majsit(session).ok());
    ASSERT_TRUE(editabs(session).ok());
    absences.values().codabs = QStringLiteral("RTT");
    ASSERT_TRUE(majabs(session).ok());
    ASSERT_TRUE(supprabs(session).ok());
    EXPECT_EQ(absenceImages(), (QStringList{QStringLiteral("1.1 PA CP"), QStringLiteral("1.3 AE CP"),
                                            QStringLiteral("1.4 PE RTT"), QStringLiteral("1.5 AD RTT")}));
    EXPECT_EQ(dayImages(), QStringList{QStringLiteral("1.2 PA 0")});
}

TEST_F(RecordingTest, ImageHoldsEveryFieldOfTheDayButBabs)
{
    station.addDay(1, third, 480, 960, 720, 780);
    ASSERT_TRUE(session.base.engine
                    .execute(QStringLiteral("UPDATE sitper SET babs = -1, numri = 3, sit = 4, numv = 5, "
                                            "hfin6 = 6, horaire = 'nuit', datj = '2026-06-01T07:00:00'"))
                    .ok());
    record();
    onDay();
    EXPECT_TRUE(sitper.row().babs);
    ASSERT_TRUE(supprsit(session).ok());
    ASSERT_TRUE(session.journal.sitlog.first());
    const JourSit image = session.journal.sitlog.row().jour;
    EXPECT_FALSE(image.babs) << "wanted: a replay writes its empty value";
    EXPECT_EQ(image.numri + image.sit + image.numv + image.hfin6, 18);
    EXPECT_EQ(image.hifin, 780);
    EXPECT_TRUE(image.Val);
    EXPECT_EQ(image.horaire, QStringLiteral("nuit"));
    EXPECT_EQ(image.datj, QDateTime(QDate(2026, 6, 1), QTime(7, 0)));
}

TEST_F(RecordingTest, NothingIsRecordedOutsideAnOperation)
{
    station.addDay(1, third, 480, 960);
    onDay();
    ASSERT_TRUE(editsit(session).ok());
    ASSERT_TRUE(majsit(session).ok());
    ASSERT_TRUE(supprsit(session).ok());
    EXPECT_TRUE(dayImages().isEmpty());
    EXPECT_EQ(session.nivcour, 0);
}

TEST_F(RecordingTest, ChangeThatIsNeverWrittenLeavesItsBeforeImageAlone)
{
    station.addDay(1, third, 480, 960);
    record();
    onDay();
    ASSERT_TRUE(editsit(session).ok());
    sitper.cancelUpdate();
    ASSERT_TRUE(ajoutsit(session).ok());
    sitper.cancelUpdate();
    EXPECT_EQ(dayImages(), QStringList{QStringLiteral("1.1 AE 480")});
}

TEST_F(RecordingTest, FailedUpdateWritesNoAfterImage)
{
    station.addDay(1, third, 480, 960);
    record();
    ASSERT_TRUE(ajoutsit(session).ok());
    sitper.values().nump = 1;
    sitper.values().dat = third;
    EXPECT_EQ(majsit(session).code(), store::Status::Code::Constraint);
    EXPECT_TRUE(dayImages().isEmpty());
}

TEST_F(RecordingTest, ImageOfTheSameRankIsReplaced)
{
    station.addDay(1, third, 480, 960);
    record();
    ASSERT_TRUE(session.journal.engine
                    .execute(QStringLiteral("INSERT INTO sitlog (numop, nivop, heurdeb) VALUES (1, 1, 99)"))
                    .ok());
    onDay();
    ASSERT_TRUE(supprsit(session).ok());
    EXPECT_EQ(dayImages(), QStringList{QStringLiteral("1.1 AD 480")});
}

TEST_F(RecordingTest, SlotTakenAgainLosesItsOwnImagesOnly)
{
    ASSERT_TRUE(session.journal.engine
                    .execute(QStringLiteral("INSERT INTO sitlog (numop, nivop) VALUES (1, 1), (1, 2), (2, 1);"
                                            "INSERT INTO logabs (numop, nivop) VALUES (1, 3), (3, 1)"))
                    .ok());
    EXPECT_EQ(record(), 1);
    EXPECT_EQ(dayImages().size(), 1);
    EXPECT_EQ(absenceImages().size(), 1);
    EXPECT_TRUE(purgeop(session, 2).ok());
    EXPECT_TRUE(dayImages().isEmpty());
}

TEST_F(RecordingTest, NewOperationEndsWhatWasCutUnlessItIsThePaste)
{
    auto &sitco = session.journal.sitco;
    ASSERT_TRUE(sitco.addNew().ok());
    ASSERT_TRUE(sitco.update().ok());
    session.collage = true;
    record();
    EXPECT_EQ(sitco.recordCount(), 1);
    session.collage = false;
    record();
    EXPECT_TRUE(sitco.isEmpty());
}

TEST_F(RecordingTest, ValidityChangesWithoutImagesOnTheSpanOfTheLine)
{
    for (int day = 0; day < 5; ++day)
        station.addDay(1, third.addDays(day), 480, 960);
    station.addDay(2, third.addDays(1), 480, 960);
    ASSERT_TRUE(
        session.base.engine.execute(QStringLiteral("DELETE FROM sitper WHERE dat = '2026-06-05'")).ok());
    record();
    sitper.setIndex("sitper02");
    ASSERT_TRUE(valsit(session, 1, third.addDays(1), third.addDays(3), false).ok());
    QStringList valid;
    auto days = sitper.range("sitper01", {}, {});
    while (days.next())
        valid
            << QStringLiteral("%1/%2:%3").arg(days.row().nump).arg(days.row().dat.day()).arg(days.row().Val);
    EXPECT_EQ(valid.join(u' '), QStringLiteral("1/3:1 1/4:0 1/6:0 1/7:1 2/4:1"));
    EXPECT_TRUE(dayImages().isEmpty());
}

TEST_F(RecordingTest, HeldTableMakesEveryGuardedChangeAskForTheDisk)
{
    station.addDay(1, third, 480, 960);
    station.addAbsence(1, QStringLiteral("CP"), third, third);
    onDay();
    ASSERT_TRUE(absences.first());
    ASSERT_TRUE(sitper.edit().ok() && absences.edit().ok());
    using Change = store::Status (*)(Session &);
    for (const Change change : {editsit, ajoutsit, supprsit, editabs, ajoutabs, supprabs}) {
        station.host.expectQuestion(disque, false);
        EXPECT_THROW(change(session).ignore(), ProcessEnded);
    }
    EXPECT_EQ(station.host.titles.count(QStringLiteral("velmora")), 6);
}

TEST_F(RecordingTest, WaitLetsTheHolderFinishButForTheDeletionOfADay)
{
    station.addDay(1, third, 480, 960);
    station.addAbsence(1, QStringLiteral("CP"), third, third);
    onDay();
    ASSERT_TRUE(absences.first() && absences.edit().ok());
    QTimer::singleShot(0, [&] { absences.cancelUpdate(); });
    EXPECT_TRUE(supprabs(session).ok());

    ASSERT_TRUE(sitper.edit().ok());
    QTimer::singleShot(0, [&] { sitper.cancelUpdate(); });
    station.host.expectQuestion(disque, false);
    EXPECT_THROW(supprsit(session).ignore(), ProcessEnded);
    QCoreApplication::processEvents();
}

TEST_F(RecordingTest, LostJournalLeavesThePlanningsRowsChanging)
{
    station.addDay(1, third, 480, 960);
    record();
    session.journal.close();
    onDay();
    ASSERT_TRUE(editsit(session).ok());
    sitper.values().heurdeb = 500;
    EXPECT_TRUE(majsit(session).ok());
    EXPECT_TRUE(supprsit(session).ok());
    EXPECT_TRUE(sitper.isEmpty());
}

} // namespace
} // namespace velmora::test
