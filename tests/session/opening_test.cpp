#include "session/opening.h"

#include "support/data_folder.h"
#include "support/other_process.h"
#include "support/raw_sqlite.h"
#include "support/scripted_host.h"

namespace velmora::test
{
namespace
{

class OpeningTest : public testing::Test
{
protected:
    DataFolder folder;
    ScriptedHost host;

    /// Starts once and leaves the files closed, with the ring standing.
    void startOnce()
    {
        Session session(host);
        folder.give(session);
        ASSERT_TRUE(ouvrejournal(session));
    }
    QString journal(const QString &sql) { return RawSqlite(folder.journalFile()).value(sql); }
};

TEST_F(OpeningTest, NewJournalIsTiedToItsOwnFolderAndGetsTheRing)
{
    {
        Session session(host);
        folder.give(session, QStringLiteral("/un/autre/dossier/"));
        ASSERT_TRUE(ouvrejournal(session));
        EXPECT_EQ(session.cheminbase, folder.path());
        EXPECT_FALSE(session.peutannul);
        EXPECT_FALSE(session.peutrefaire);
    }
    EXPECT_EQ(journal(QStringLiteral("SELECT * FROM chemin")), QStringLiteral("1|2|") + folder.path());
    EXPECT_EQ(
        journal(QStringLiteral("SELECT count(*), min(numop), max(numop), sum(numop = ordop), sum(nivop),"
                               "sum(ficop = '' AND libop = ''), sum(valop) FROM logop")),
        QStringLiteral("31|0|30|31|30|31|0"));
    EXPECT_EQ(journal(QStringLiteral("SELECT nivop FROM logop WHERE numop = 0")), QStringLiteral("30"));
}

TEST_F(OpeningTest, JournalsFolderWinsOverTheOneGiven)
{
    const QTemporaryDir elsewhere;
    const QString named = elsewhere.path() + QLatin1Char('/');
    RawSqlite(folder.journalFile())
        .run(QStringLiteral("INSERT INTO chemin VALUES (1, 2, '%1')").arg(elsewhere.path()));
    Session session(host);
    folder.give(session);
    host.expectMessage(sansBase(named));
    EXPECT_FALSE(ouvrejournal(session));
    session.journal.close();
    // The start stopped before the ring was made.
    EXPECT_EQ(journal(QStringLiteral("SELECT count(*) FROM logop")), QStringLiteral("0"));
}

TEST_F(OpeningTest, TieOfANewJournalStandsEvenWithoutAMainFile)
{
    QFile::remove(folder.mainFile());
    {
        Session session(host);
        folder.give(session);
        host.expectMessage(sansBase(folder.path()));
        EXPECT_FALSE(ouvrejournal(session));
    }
    EXPECT_EQ(journal(QStringLiteral("SELECT chemin FROM chemin")), folder.path());
    EXPECT_EQ(host.titles, QStringList{QStringLiteral("velmora")});
}

TEST_F(OpeningTest, RingOfFewerThanSixRowsGetsItsRowsBesideThem)
{
    for (const auto &[rows, expected] : {std::pair(1, 32), std::pair(5, 36), std::pair(6, 6)}) {
        const DataFolder fresh;
        {
            RawSqlite raw(fresh.journalFile());
            for (int numop = 0; numop < rows; ++numop)
                ASSERT_TRUE(raw.run(QStringLiteral("INSERT INTO logop (numop) VALUES (%1)").arg(numop)));
        }
        Session session(host);
        fresh.give(session);
        ASSERT_TRUE(ouvrejournal(session));
        EXPECT_EQ(session.journal.logop.recordCount(), expected);
    }
}

TEST_F(OpeningTest, FlagsAfterARestartFollowTheHeadRow)
{
    struct Case {
        int undone;
        int free;
        bool undo;
        bool redo;
    };
    const Case cases[] = {
        {0, 30, false, false}, {0, 27, true, false}, {2, 27, true, true}, {3, 27, false, true}};
    startOnce();
    for (const Case &one : cases) {
        RawSqlite(folder.journalFile())
            .run(QStringLiteral("UPDATE logop SET ordop = %1, nivop = %2 WHERE numop = 0")
                     .arg(one.undone)
                     .arg(one.free));
        Session session(host);
        folder.give(session);
        session.opcour = session.nivcour = 9;
        ASSERT_TRUE(ouvrejournal(session));
        EXPECT_EQ(session.peutannul, one.undo) << one.undone << ' ' << one.free;
        EXPECT_EQ(session.peutrefaire, one.redo) << one.undone << ' ' << one.free;
        EXPECT_EQ(session.opcour + session.nivcour, 0);
    }
}

TEST_F(OpeningTest, RestartKeepsTheImagesAndEmptiesTheClipboard)
{
    startOnce();
    {
        RawSqlite raw(folder.journalFile());
        ASSERT_TRUE(raw.run(QStringLiteral("INSERT INTO sitlog (numop, nivop) VALUES (1, 1), (1, 2)")));
        ASSERT_TRUE(raw.run(
            QStringLiteral("INSERT INTO sitco (nump, dat) VALUES (1, '2026-06-03'), (1, '2026-06-03')")));
    }
    Session session(host);
    folder.give(session);
    ASSERT_TRUE(ouvrejournal(session));
    EXPECT_EQ(session.journal.sitlog.recordCount(), 2);
    EXPECT_TRUE(session.journal.sitco.isEmpty());
}

TEST_F(OpeningTest, FirstStartGivesTheBaseItsRowAndTheSecondNone)
{
    for (int start = 0; start < 2; ++start) {
        Session session(host);
        folder.give(session);
        ASSERT_TRUE(ouvrebase(session));
        EXPECT_EQ(session.base.tnum.row().num, 1);
        EXPECT_TRUE(session.urlaide.endsWith(QStringLiteral("/calcul-des-heures/")));
    }
    const QStringList rows = RawSqlite(folder.mainFile()).rows(QStringLiteral("SELECT * FROM tnum"));
    ASSERT_EQ(rows.size(), 1);
    EXPECT_GT(rows.front().section(u'|', 1, 1).toDouble(), 3.0);
    EXPECT_EQ(rows.front().section(u'|', 0, 0), QString());
}

TEST_F(OpeningTest, BaseIsOpenedUnderTheFirstFolder)
{
    const QTemporaryDir elsewhere;
    Session session(host);
    folder.give(session, elsewhere.path() + QLatin1Char('/'));
    EXPECT_TRUE(ouvrebase(session));
}

TEST_F(OpeningTest, ReopenedBasesTablesAreAsNew)
{
    RawSqlite(folder.mainFile()).run(QStringLiteral("INSERT INTO agent (pseudo) VALUES ('PAUL'), ('MARIE')"));
    Session session(host);
    folder.give(session);
    ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
    ASSERT_TRUE(session.base.agent.last());
    session.base.sitper.setIndex("sitper02");
    ASSERT_TRUE(session.base.ligmois.addNew().ok());
    session.base.close();
    session.journal.close();
    ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
    EXPECT_EQ(session.base.agent.row().pseudo, QStringLiteral("PAUL"));
    EXPECT_EQ(session.base.sitper.currentIndex(), QStringLiteral("sitper01"));
    EXPECT_EQ(session.base.ligmois.editMode(), store::EditMode::None);
    EXPECT_FALSE(session.base.ligmois.first());
}

TEST_F(OpeningTest, SecondSessionOnTheSameJournalIsRefusedAndHarmsNothing)
{
    OtherProcess other([this] {
        ScriptedHost otherHost;
        Session session(otherHost);
        folder.give(session);
        otherHost.expectMessage(journalInouvrable(folder.path()));
        return ouvrejournal(session) ? 1 : static_cast<int>(otherHost.titles.size()) + 1;
    });
    Session first(host);
    folder.give(first);
    ASSERT_TRUE(ouvrejournal(first));
    host.expectMessage(journalInouvrable(folder.path()));
    Session second(host);
    folder.give(second);
    EXPECT_FALSE(ouvrejournal(second));
    // The refused session of this process must not have let go of the first one's lock.
    EXPECT_EQ(other.run(), 2);
    EXPECT_FALSE(QFile::exists(folder.path() + store::fichierReparation));
    auto &logop = first.journal.logop;
    ASSERT_TRUE(logop.last() && logop.edit().ok());
    logop.values().libop = QStringLiteral("tient");
    EXPECT_TRUE(logop.update().ok());
    first.journal.close();
    EXPECT_EQ(journal(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    EXPECT_EQ(journal(QStringLiteral("SELECT libop FROM logop WHERE numop = 30")), QStringLiteral("tient"));
}

} // namespace
} // namespace velmora::test
