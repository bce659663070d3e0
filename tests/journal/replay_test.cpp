#include "journal/replay.h"

#include "journal/recording.h"
#include "session/batch.h"
#include "session/guards.h"

#include "support/data_folder.h"
#include "support/faulty_engine.h"
#include "support/workstation.h"

namespace velmora::test
{
namespace
{

using store::Cmp;

const QDate third(2026, 6, 3);

void record(Session &session, const char *ficop)
{
    ecritop(session, QString::fromLatin1(ficop), QStringLiteral("op"));
}

void addDay(Session &session, int nump, const QDate &dat, int heurdeb)
{
    ASSERT_TRUE(ajoutsit(session).ok());
    session.base.sitper.values().nump = nump;
    session.base.sitper.values().dat = dat;
    session.base.sitper.values().heurdeb = heurdeb;
    session.base.sitper.values().Val = true;
    ASSERT_TRUE(majsit(session).ok());
}

void addAbsence(Session &session, int nump, const QDate &from, const QDate &to)
{
    ASSERT_TRUE(ajoutabs(session).ok());
    session.base.absences.values() = {nump, 7, QStringLiteral("CP"), from, to};
    ASSERT_TRUE(majabs(session).ok());
    ASSERT_TRUE(valsit(session, nump, from, to, false).ok());
}

/// "line/day:start" of each row, with "-" before a hidden one.
QString days(Session &session)
{
    QStringList all;
    auto rows = session.base.sitper.range("sitper01", {}, {});
    while (rows.next()) {
        const JourSit &row = rows.row();
        all << QStringLiteral("%1/%2:%3%4")
                   .arg(row.nump)
                   .arg(row.dat.day())
                   .arg(row.Val ? QString() : QStringLiteral("-"))
                   .arg(row.heurdeb);
    }
    return all.join(QLatin1Char(' '));
}

QString absences(Session &session)
{
    QStringList all;
    auto rows = session.base.absences.range("abs01", {}, {});
    while (rows.next()) {
        const AbsenceSaisie &row = rows.row();
        all << QStringLiteral("%1/%2-%3 %4 %5")
                   .arg(row.nump)
                   .arg(row.datedeb.day())
                   .arg(row.datefin.day())
                   .arg(row.codabs)
                   .arg(row.numi);
    }
    return all.join(QLatin1Char(' '));
}

/// "line from..to" of each entry in use.
QString touched(const Session &session)
{
    QStringList all;
    for (std::size_t i = 0; i < static_cast<std::size_t>(session.rejeu.nbligrej); ++i)
        all << QStringLiteral("%1 %2..%3")
                   .arg(session.rejeu.ligrej.at(i))
                   .arg(session.rejeu.debrej.at(i).toString(QStringLiteral("ddMMyy")),
                        session.rejeu.finrej.at(i).toString(QStringLiteral("ddMMyy")));
    return all.join(QLatin1Char(' '));
}

class ReplayTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void undo(bool answer = true)
    {
        station.host.expectQuestion(QStringLiteral("invalider : op"), answer);
        annulop(session);
    }
    void redo(bool answer = true)
    {
        station.host.expectQuestion(QStringLiteral("revalider op"), answer);
        refaitop(session);
    }
    Operation slot(int numop)
    {
        EXPECT_TRUE(session.journal.logop.seek(Cmp::Eq, {numop}));
        return session.journal.logop.row();
    }
    void onDay(int nump, const QDate &dat) { ASSERT_TRUE(session.base.sitper.seek(Cmp::Eq, {nump, dat})); }
    void changeDay(const QDate &dat, int heurdeb)
    {
        onDay(1, dat);
        ASSERT_TRUE(editsit(session).ok());
        session.base.sitper.values().heurdeb = heurdeb;
        ASSERT_TRUE(majsit(session).ok());
    }
    void run(const char *sql) { ASSERT_TRUE(session.base.engine.execute(QString::fromUtf8(sql)).ok()); }
};

TEST_F(ReplayTest, OneOperationGoesAndComesBackWithItsFlags)
{
    record(session, "S");
    addDay(session, 1, third, 480);
    undo();
    EXPECT_EQ(days(session), QString());
    EXPECT_FALSE(session.peutannul);
    EXPECT_TRUE(session.peutrefaire);
    EXPECT_FALSE(slot(1).valop);
    EXPECT_EQ(slot(0).ordop, 1);
    annulop(session);
    redo();
    EXPECT_EQ(days(session), QStringLiteral("1/3:480"));
    EXPECT_TRUE(session.peutannul);
    EXPECT_FALSE(session.peutrefaire);
    EXPECT_TRUE(slot(1).valop);
    EXPECT_EQ(slot(0).ordop, 0);
    EXPECT_EQ(station.host.titles, (QStringList{"Velmora", "Velmora"}));
    EXPECT_EQ(session.journal.sitlog.recordCount(), 1) << "a replay records nothing";
    EXPECT_EQ(session.opcour + session.nivcour, 0);
}

TEST_F(ReplayTest, RefusalChangesNothingAndKeepsTheCountOfTouchedLines)
{
    record(session, "S");
    addDay(session, 1, third, 480);
    record(session, "S");
    addDay(session, 1, third.addDays(1), 480);
    undo();
    undo(false);
    redo(false);
    EXPECT_EQ(days(session), QStringLiteral("1/3:480"));
    EXPECT_EQ(slot(0).ordop, 1);
    EXPECT_TRUE(slot(1).valop);
    EXPECT_TRUE(session.peutannul && session.peutrefaire);
    EXPECT_EQ(touched(session), QStringLiteral("1 010109..010100")) << "counted, but an empty span";
}

TEST_F(ReplayTest, ChangedDayComesBackWithAllItsValuesButBabs)
{
    station.addDay(1, third, 480, 960, 720, 780);
    run("UPDATE sitper SET babs = -1, numv = 5, sit = 4, horaire = 'nuit'");
    record(session, "S");
    changeDay(third, 500);
    changeDay(third, 520);
    undo();
    onDay(1, third);
    const JourSit before = session.base.sitper.row();
    EXPECT_EQ(before.heurdeb, 480);
    EXPECT_EQ(before.hifin, 780);
    EXPECT_EQ(before.numv + before.sit, 9);
    EXPECT_EQ(before.horaire, QStringLiteral("nuit"));
    EXPECT_FALSE(before.babs) << "wanted: images have it empty";
    redo();
    EXPECT_EQ(days(session), QStringLiteral("1/3:520"));
}

TEST_F(ReplayTest, RowsChangedSinceAreOverwrittenOrDeletedWithoutAWord)
{
    station.addDay(1, third, 480, 960);
    record(session, "S");
    changeDay(third, 500);
    addDay(session, 1, third.addDays(1), 600);
    run("UPDATE sitper SET heurdeb = 99");
    undo();
    EXPECT_EQ(days(session), QStringLiteral("1/3:480"));
    run("DELETE FROM sitper; INSERT INTO sitper (nump, dat, heurdeb) VALUES (1, '2026-06-04', 99)");
    redo();
    EXPECT_EQ(days(session), QStringLiteral("1/3:500 1/4:600"));
}

TEST_F(ReplayTest, DeletedAbsenceDoesNotComeBackFromAnOperationOfHours)
{
    station.addAbsence(1, QStringLiteral("CP"), third, third);
    record(session, "S");
    ASSERT_TRUE(session.base.absences.first() && supprabs(session).ok());
    undo();
    EXPECT_EQ(absences(session), QString());
    EXPECT_EQ(session.rejeu.nbligrej, 0);
    redo();
}

TEST_F(ReplayTest, AbsenceHidesAndShowsTheHoursUnderIt)
{
    for (int day = 0; day < 4; ++day)
        station.addDay(1, third.addDays(day), 480, 960);
    record(session, "A");
    addAbsence(session, 1, third.addDays(1), third.addDays(2));
    undo();
    EXPECT_EQ(absences(session), QString());
    EXPECT_EQ(days(session), QStringLiteral("1/3:480 1/4:480 1/5:480 1/6:480"));
    EXPECT_EQ(touched(session), QStringLiteral("1 040626..050626"));
    redo();
    EXPECT_EQ(absences(session), QStringLiteral("1/4-5 CP 7"));
    EXPECT_EQ(days(session), QStringLiteral("1/3:480 1/4:-480 1/5:-480 1/6:480"));
    run("UPDATE absences SET datefin = '2026-06-04'");
    undo();
    EXPECT_EQ(days(session), QStringLiteral("1/3:480 1/4:480 1/5:-480 1/6:480"))
        << "the dates shown are those that the row has by then";
}

TEST_F(ReplayTest, ChangedAbsenceIsWrittenOverTheRowThatStands)
{
    for (int day = 0; day < 3; ++day)
        station.addDay(1, third.addDays(day), 480, 960);
    station.addAbsence(1, QStringLiteral("RT"), third, third);
    record(session, "B"); // any letter but "S" plays both tables
    ASSERT_TRUE(session.base.absences.first() && editabs(session).ok());
    session.base.absences.values().codabs = QStringLiteral("CP");
    session.base.absences.values().datefin = third.addDays(2);
    ASSERT_TRUE(majabs(session).ok());
    ASSERT_TRUE(valsit(session, 1, third, third.addDays(2), false).ok());
    run("UPDATE absences SET numi = 9");
    undo();
    EXPECT_EQ(absences(session), QStringLiteral("1/3-3 RT 9")) << "wanted: a row that stands keeps its numi";
    EXPECT_EQ(days(session), QStringLiteral("1/3:-480 1/4:-480 1/5:-480"))
        << "wanted: the days that the change had covered stay hidden";
    redo();
    EXPECT_EQ(absences(session), QStringLiteral("1/3-5 CP 9"));
}

TEST_F(ReplayTest, AbsenceGivenUpForAnotherComesBackInItsPlace)
{
    station.addDay(1, third, 480, 960, 0, 0, false);
    station.addAbsence(1, QStringLiteral("RT"), third, third);
    record(session, "A");
    ASSERT_TRUE(session.base.absences.first() && supprabs(session).ok());
    addAbsence(session, 1, third, third.addDays(1));
    undo();
    EXPECT_EQ(absences(session), QStringLiteral("1/3-3 RT 0"));
    EXPECT_EQ(days(session), QStringLiteral("1/3:-480"));
    redo();
    EXPECT_EQ(absences(session), QStringLiteral("1/3-4 CP 7"));
}

TEST_F(ReplayTest, TwoEntriesStandForTheLinesOfAnOperation)
{
    record(session, "S");
    for (const int nump : {1, 2, 3, 1})
        addDay(session, nump, third.addDays(session.nivcour), 480);
    undo();
    EXPECT_EQ(touched(session), QStringLiteral("1 030626..060626 3 040626..050626"))
        << "wanted: the third line widens the second's span";
    redo();
    EXPECT_EQ(touched(session), QStringLiteral("1 030626..060626 2 040626..050626"));
}

TEST_F(ReplayTest, AbsencesReplaceTheSpansOfTheDaysAndOpenTheSecondAtTheNullDate)
{
    record(session, "A");
    addDay(session, 5, third, 480);
    for (const int nump : {1, 2, 2})
        addAbsence(session, nump, third.addDays(session.nivcour), third.addDays(9));
    undo();
    EXPECT_EQ(session.rejeu.debrej[1], QDate(1899, 12, 30)) << "wanted";
    EXPECT_EQ(session.rejeu.finrej[1], QDate(1899, 12, 30)) << "wanted";
    EXPECT_EQ(session.rejeu.ligrej, (std::array{2, 1}));
    redo();
    EXPECT_EQ(session.rejeu.ligrej, (std::array{1, 2}));
    EXPECT_EQ(session.rejeu.debrej[1], QDate(1899, 12, 30)) << "wanted";
    EXPECT_EQ(session.rejeu.finrej[1], third.addDays(9));
    EXPECT_EQ(session.rejeu.debrej[0], third.addDays(1));
}

TEST_F(ReplayTest, NothingIsAskedWhereTheRingHasNoOperation)
{
    annulop(session);
    refaitop(session);
    record(session, "S");
    undo();
    record(session, "S");
    EXPECT_TRUE(session.peutrefaire) << "wanted: it stays lit";
    refaitop(session);
    ASSERT_TRUE(
        session.journal.engine.execute(QStringLiteral("UPDATE logop SET ordop = 50 WHERE numop = 1")).ok());
    annulop(session);
    EXPECT_EQ(slot(0).ordop, 0);
}

TEST_F(ReplayTest, ImageThatCannotBePlayedIsSkipped)
{
    record(session, "S");
    for (int day = 0; day < 3; ++day)
        addDay(session, 1, third.addDays(day), 480);
    run("CREATE TRIGGER refus BEFORE DELETE ON sitper WHEN OLD.dat = '2026-06-04' "
        "BEGIN SELECT RAISE(ABORT, 'refus'); END");
    undo();
    EXPECT_EQ(days(session), QStringLiteral("1/4:480"));
    EXPECT_FALSE(slot(1).valop);
}

TEST_F(ReplayTest, NoLockIsHeldWhileTheUserIsAsked)
{
    store::SqliteEngine other;
    ASSERT_TRUE(other.open(station.mainFile(), {}).ok());
    ASSERT_TRUE(session.base.engine.execute(QStringLiteral("PRAGMA busy_timeout = 20")).ok());
    record(session, "S");
    addDay(session, 1, third, 480);
    station.host.whenAsked = [&] {
        ASSERT_TRUE(other.begin(store::Engine::Transaction::Write).ok());
        station.host.whenAsked = [&] { other.rollback(); };
    };
    station.host.expectQuestion(QStringLiteral("invalider : op"), true);
    station.host.expectQuestion(questionBloquage(), true);
    annulop(session);
    EXPECT_EQ(days(session), QString());
    EXPECT_EQ(slot(0).ordop, 1);
}

/// An engine whose process ends where it would commit.
class DyingEngine : public FaultyEngine
{
public:
    using FaultyEngine::FaultyEngine;
    store::Status commit() override
    {
        if (dies) throw ProcessEnded{};
        return FaultyEngine::commit();
    }
    bool dies = false;
};

/// A session on files that fail when a test says so. Line 1 has had its day replaced and an absence placed.
class ReplayFaults : public testing::Test
{
protected:
    const QString before = QStringLiteral("1/3:480");
    const QString after = QStringLiteral("1/3:-600");
    DataFolder folder;
    ScriptedHost host;
    Faults baseFaults;
    Faults journalFaults;
    DyingEngine *base = new DyingEngine(baseFaults);
    DyingEngine *journal = new DyingEngine(journalFaults);
    Session session{host, std::unique_ptr<store::Engine>(base), std::unique_ptr<store::Engine>(journal)};

    void SetUp() override
    {
        folder.give(session);
        ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
        for (store::Engine *engine : {&session.base.engine, &session.journal.engine})
            ASSERT_TRUE(engine->execute(QStringLiteral("PRAGMA synchronous = OFF")).ok());
        addDay(session, 1, third, 480);
        record(session, "A");
        ASSERT_TRUE(session.base.sitper.first() && supprsit(session).ok());
        addDay(session, 1, third, 600);
        addAbsence(session, 1, third, third);
    }

    /// `retry` is the answer to the disk's question, if it is to be asked.
    void replay(bool undo, std::optional<bool> retry = {})
    {
        host.expectQuestion(undo ? QStringLiteral("invalider : op") : QStringLiteral("revalider op"), true);
        if (retry) host.expectQuestion(questionDisque(), *retry);
        undo ? annulop(session) : refaitop(session);
    }
    [[nodiscard]] bool inForce()
    {
        EXPECT_TRUE(session.journal.logop.seek(Cmp::Eq, {1}));
        return session.journal.logop.row().valop;
    }
    void expectState(bool undone)
    {
        EXPECT_EQ(days(session), undone ? before : after);
        EXPECT_EQ(absences(session).isEmpty(), undone);
        EXPECT_EQ(inForce(), !undone);
    }
    void leave() { session.base.cancelUpdates(), liretete(session); }
};

TEST_F(ReplayFaults, EachFailedWriteIsAskedAboutWithAllTakenBackAndTheRetryCompletesIt)
{
    constexpr int tries = 10;
    const std::pair<Faults *, int> files[]{{&baseFaults, 4}, {&journalFaults, 2}};
    for (const auto &[faults, writes] : files) {
        for (int i = 0; i < tries; ++i) {
            const bool undo = i % 2 == 0;
            SCOPED_TRACE(testing::Message() << "write " << i / 2 << (undo ? " of undo" : " of redo"));
            faults->writesBefore = i / 2;
            host.whenAsked = [&, file = faults] {
                if (file->writesBefore < 0) expectState(!undo);
            };
            replay(undo, i / 2 < writes ? std::optional(true) : std::nullopt);
            host.whenAsked = {};
            faults->writesBefore = -1;
            expectState(undo);
        }
    }
}

TEST_F(ReplayFaults, StopBetweenTheTwoCommitsLeavesAnOperationThatUndoAndRedoStillReach)
{
    for (const bool undo : {true, false}) {
        SCOPED_TRACE(undo ? "undo" : "redo");
        DyingEngine &second = undo ? *journal : *base;
        second.dies = true;
        EXPECT_THROW(replay(undo), ProcessEnded);
        second.dies = false;
        leave();
        EXPECT_EQ(days(session), before);
        EXPECT_TRUE(inForce()) << "its images would be lost to the next operation";
        replay(true);
        expectState(true);
    }
    replay(false);
    expectState(false);
}

TEST_F(ReplayFaults, RefusalToRetryEndsTheProcessWithAllAsItWas)
{
    baseFaults.writesBefore = 2;
    EXPECT_THROW(replay(true, false), ProcessEnded);
    leave();
    expectState(false);
}

} // namespace
} // namespace velmora::test
