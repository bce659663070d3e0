#include "journal/recording.h"
#include "session/batch.h"

#include "support/data_folder.h"
#include "support/faulty_engine.h"
#include "support/raw_sqlite.h"
#include "support/scripted_host.h"

namespace velmora::test
{
namespace
{

const QDate third(2026, 6, 3);

/// A session whose files fail when a test says so, with one day of hours.
class FaultsTest : public testing::Test
{
protected:
    DataFolder folder;
    ScriptedHost host;
    Faults baseFaults;
    Faults journalFaults;
    Session session{host, std::make_unique<FaultyEngine>(baseFaults),
                    std::make_unique<FaultyEngine>(journalFaults)};

    void SetUp() override
    {
        folder.give(session);
        ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
        for (store::Engine *engine : {&session.base.engine, &session.journal.engine})
            ASSERT_TRUE(engine->execute(QStringLiteral("PRAGMA synchronous = OFF")).ok());
    }

    /// Replaces the day and places an absence on it.
    store::Status command()
    {
        auto &sitper = session.base.sitper;
        auto &absences = session.base.absences;
        ecritop(session, QStringLiteral("A"), QStringLiteral("absence saisie pour EMMA"));
        store::Status status;
        if (sitper.seek(store::Cmp::Eq, {1, third})) status = supprsit(session);
        if (status.ok()) status = ajoutsit(session);
        sitper.values().nump = 1;
        sitper.values().dat = third;
        if (status.ok()) status = majsit(session);
        if (status.ok()) status = valsit(session, 1, third, third, true);
        if (status.ok()) status = ajoutabs(session);
        absences.values() = {1, 0, QStringLiteral("CP"), third, third};
        return status.ok() ? majabs(session) : status;
    }
    void startOver()
    {
        baseFaults.writesBefore = journalFaults.writesBefore = -1;
        session.base.cancelUpdates();
        ASSERT_TRUE(session.base.engine
                        .execute(QStringLiteral("DELETE FROM sitper; DELETE FROM absences; "
                                                "INSERT INTO sitper (nump, dat) VALUES (1, '2026-06-03')"))
                        .ok());
    }
    QString planning()
    {
        return RawSqlite(folder.mainFile())
            .value(QStringLiteral("SELECT (SELECT count(*) FROM sitper), (SELECT sum(Val) FROM sitper),"
                                  "(SELECT count(*) FROM absences)"));
    }
};

TEST_F(FaultsTest, EachFailedWriteOfThePlanningIsSaidAndTheRetryCompletesTheCommand)
{
    int faults = 0;
    for (int write = 0; write < 100; ++write, ++faults) {
        startOver();
        baseFaults.writesBefore = write;
        int asked = 0;
        host.whenAsked = [&] { ++asked; };
        if (write < 4) host.expectQuestion(questionDisque(), true);
        enLot(session, [this] { return command(); });
        EXPECT_EQ(planning(), QStringLiteral("1|-1|1")) << "fault at write " << write;
        if (asked == 0) break;
    }
    EXPECT_EQ(faults, 4) << "deletion, day, validity, absence";
}

TEST_F(FaultsTest, NoFailedWriteOfTheJournalStopsThePlanning)
{
    int writes = 0;
    for (; writes < 200; ++writes) {
        startOver();
        journalFaults.writesBefore = writes;
        enLot(session, [this] { return command(); });
        EXPECT_EQ(planning(), QStringLiteral("1|-1|1")) << "fault at write " << writes;
        if (journalFaults.writesBefore >= 0) break;
    }
    EXPECT_GT(writes, 30);
}

TEST_F(FaultsTest, FailureToReadyTheRingStopsTheStart)
{
    const DataFolder fresh;
    Faults faults;
    Session other(host, std::make_unique<store::SqliteEngine>(), std::make_unique<FaultyEngine>(faults));
    fresh.give(other);
    for (const int write : {0, 1, 20}) {
        faults.writesBefore = write;
        host.expectMessage(journalInouvrable(fresh.path()));
        EXPECT_FALSE(ouvrejournal(other)) << write;
    }
    faults.writesBefore = -1;
    EXPECT_TRUE(ouvrejournal(other));
    EXPECT_EQ(other.journal.logop.recordCount(), 31);
    EXPECT_EQ(other.journal.chemin.recordCount(), 1);
}

TEST_F(FaultsTest, FailureToWriteTheBasesRowStopsTheStart)
{
    const DataFolder fresh;
    Faults faults{0};
    Session other(host, std::make_unique<FaultyEngine>(faults), std::make_unique<store::SqliteEngine>());
    fresh.give(other);
    EXPECT_FALSE(ouvrebase(other));
    EXPECT_TRUE(ouvrebase(other));
}

} // namespace
} // namespace velmora::test
