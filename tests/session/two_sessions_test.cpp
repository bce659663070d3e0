#include "journal/recording.h"
#include "session/batch.h"

#include "support/data_folder.h"
#include "support/scripted_host.h"

#include <QFileInfo>

namespace velmora::test
{
namespace
{

const QDate third(2026, 6, 3);

/// Two workstations: each has its own journal, and the second one's main file is a link to the first one's.
class TwoSessionsTest : public testing::Test
{
protected:
    DataFolder folders[2];
    ScriptedHost hosts[2];
    Session emma{hosts[0]};
    Session zoe{hosts[1]};

    void SetUp() override
    {
        QFile::remove(folders[1].mainFile());
        ASSERT_TRUE(QFile::link(folders[0].mainFile(), folders[1].mainFile()));
        int i = 0;
        for (Session *session : {&emma, &zoe}) {
            folders[i++].give(*session);
            ASSERT_TRUE(ouvrejournal(*session) && ouvrebase(*session));
            ASSERT_TRUE(session->base.engine.execute(QStringLiteral("PRAGMA busy_timeout = 20")).ok());
        }
    }

    static store::Status enter(Session &session, int nump, int heurdeb)
    {
        auto &sitper = session.base.sitper;
        ecritop(session, QStringLiteral("S"), QStringLiteral("nouvel horaire: %1").arg(nump));
        if (sitper.seek(store::Cmp::Eq, {nump, third})) {
            const store::Status gone = supprsit(session);
            if (!gone.ok()) return gone;
        }
        if (!ajoutsit(session).ok()) return sitper.status();
        sitper.values().nump = nump;
        sitper.values().dat = third;
        sitper.values().heurdeb = heurdeb;
        return majsit(session);
    }
    static int seen(Session &session, int nump)
    {
        auto &sitper = session.base.sitper;
        return sitper.seek(store::Cmp::Eq, {nump, third}) ? sitper.row().heurdeb : -1;
    }
};

TEST_F(TwoSessionsTest, InterleavedEntriesShowAtTheNextReadAndStayInTheirOwnJournals)
{
    for (int round = 1; round <= 4; ++round) {
        enLot(emma, [&] { return enter(emma, 1, 100 + round); });
        enLot(zoe, [&] { return enter(zoe, 2, 200 + round); });
        EXPECT_EQ(seen(zoe, 1), 100 + round);
        EXPECT_EQ(seen(emma, 2), 200 + round);
    }
    for (const auto &[session, nump] : {std::pair(&emma, 1), std::pair(&zoe, 2)}) {
        EXPECT_EQ(session->journal.sitlog.recordCount(), 7);
        for (bool more = session->journal.sitlog.first(); more; more = session->journal.sitlog.next())
            EXPECT_EQ(session->journal.sitlog.row().jour.nump, nump);
    }
}

TEST_F(TwoSessionsTest, OneWaitsForTheOthersCommandAndBothStand)
{
    Batch first(emma);
    ASSERT_TRUE(first.begin().ok());
    ASSERT_TRUE(enter(emma, 1, 111).ok());
    hosts[1].expectQuestion(QStringLiteral("Bloquage par autre utilisateur! réessayer ?"), true);
    hosts[1].whenAsked = [&] { EXPECT_TRUE(first.commit().ok()); };
    enLot(zoe, [&] { return enter(zoe, 1, 222); });
    EXPECT_EQ(seen(emma, 1), 222);
    ASSERT_TRUE(zoe.journal.sitlog.first());
    EXPECT_EQ(zoe.journal.sitlog.row().jour.heurdeb, 111) << "the second knows what it replaced";
}

TEST_F(TwoSessionsTest, RowDeletedElsewhereIsToldFromAFailure)
{
    enLot(emma, [&] { return enter(emma, 1, 111); });
    EXPECT_EQ(seen(zoe, 1), 111);
    ASSERT_TRUE(emma.base.sitper.erase().ok());
    EXPECT_EQ(zoe.base.sitper.edit().code(), store::Status::Code::NoRow);
    EXPECT_EQ(zoe.base.sitper.erase().code(), store::Status::Code::NoRow);
}

TEST_F(TwoSessionsTest, OnlyOneOfTwoFirstStartsGivesTheBaseItsRow)
{
    EXPECT_EQ(emma.base.tnum.recordCount(), 1);
    EXPECT_EQ(zoe.base.tnum.recordCount(), 1);
}

} // namespace
} // namespace velmora::test
