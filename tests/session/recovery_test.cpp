#include "session/batch.h"
#include "session/opening.h"

#include "journal/recording.h"
#include "store/repair.h"
#include "support/commands.h"
#include "support/data_folder.h"
#include "support/other_process.h"
#include "support/raw_sqlite.h"
#include "support/scripted_host.h"

#include <QDir>

namespace velmora::test
{
namespace
{

constexpr int pageSize = 4096;
constexpr int operations = 12;
constexpr int images = 60;

/// A folder whose journal is filled with operations and their images, closed.
class RecoveryTest : public testing::Test
{
protected:
    DataFolder folder;
    ScriptedHost host;

    void SetUp() override
    {
        Session session(host);
        folder.give(session);
        ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
        enLot(session, [&session] { return fill(session); });
    }

    static store::Status fill(Session &session)
    {
        for (int operation = 1; operation <= operations; ++operation) {
            ecritop(session, QStringLiteral("S"), QStringLiteral("nouvel horaire: %1").arg(operation));
            for (int day = 0; day < images; ++day) {
                if (!ajoutsit(session).ok()) return session.base.sitper.status();
                session.base.sitper.values().nump = operation;
                session.base.sitper.values().dat = QDate(2026, 1, 1).addDays(day);
                session.base.sitper.values().horaire = QStringLiteral("équipe du matin");
                const store::Status status = majsit(session);
                if (!status.ok()) return status;
            }
        }
        return {};
    }

    void overwritePage(int page, char filling = '\xa7')
    {
        QFile file(folder.journalFile());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek((page - 1) * pageSize));
        file.write(QByteArray(pageSize, filling));
    }
    QStringList journal(const QString &sql) { return RawSqlite(folder.journalFile()).rows(sql); }
    int pageOf(const QString &table)
    {
        return journal(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = '%1'").arg(table))
            .value(0)
            .toInt();
    }
    bool start(Session &session)
    {
        folder.give(session);
        return ouvrejournal(session) && ouvrebase(session);
    }

    const QString imagesSql = QStringLiteral("SELECT * FROM sitlog ORDER BY numop, nivop");
    const QString ringSql = QStringLiteral("SELECT * FROM logop ORDER BY numop");
};

TEST_F(RecoveryTest, PagesLostInTheMiddleCostOnlyTheirOwnImages)
{
    const QStringList ring = journal(ringSql);
    const QStringList before = journal(imagesSql);
    ASSERT_EQ(before.size(), operations * images);
    const int pages = journal(QStringLiteral("PRAGMA page_count")).value(0).toInt();
    ASSERT_GT(pages, 20);
    for (int page = pages / 2; page < pages / 2 + 3; ++page)
        overwritePage(page);
    {
        Session session(host);
        ASSERT_TRUE(start(session));
        EXPECT_TRUE(session.peutannul);
        EXPECT_EQ(ecritop(session, QStringLiteral("S"), QStringLiteral("après")), operations + 1);
    }
    EXPECT_EQ(journal(QStringLiteral("PRAGMA integrity_check")), QStringList{QStringLiteral("ok")});
    const QStringList after = journal(imagesSql);
    EXPECT_GT(after.size(), before.size() / 2);
    EXPECT_LT(after.size(), before.size());
    for (const QString &image : after)
        EXPECT_TRUE(before.contains(image)) << image.toStdString();
    EXPECT_EQ(ring.size(), journal(ringSql).size());
    EXPECT_EQ(journal(QStringLiteral("SELECT chemin FROM chemin")), QStringList{folder.path()});
    EXPECT_FALSE(QFile::exists(folder.path() + store::fichierReparation));
}

TEST_F(RecoveryTest, LostRingStartsAnewAndTheTieStands)
{
    overwritePage(pageOf(QStringLiteral("logop")));
    Session session(host);
    ASSERT_TRUE(start(session));
    EXPECT_EQ(session.cheminbase, folder.path());
    EXPECT_EQ(session.journal.logop.recordCount(), 31);
    EXPECT_FALSE(session.peutannul);
    EXPECT_TRUE(session.journal.sitlog.isEmpty());
}

/// What a ring lost, and how many of its operations can be put back and then taken back all the same.
struct Loss {
    const char *sql;
    int redone;
    int undone;
};

TEST_F(RecoveryTest, RingWithLossesIsWholeAgainAndItsOtherOperationsAreUndone)
{
    static const char undoneTwo[] = "UPDATE logop SET valop = 0 WHERE ordop IN (1, 2) AND numop > 0; "
                                    "UPDATE logop SET ordop = 2 WHERE numop = 0; ";
    const Loss losses[]{
        {"", 0, operations},
        {"DELETE FROM logop WHERE numop IN (10, 11)", 0, operations - 2},
        {"DELETE FROM logop WHERE numop > 4", 0, 4},
        {"DELETE FROM logop WHERE numop IN (11, 13)", 1, operations - 1},
        {"DELETE FROM logop WHERE numop = 0", 0, 0},
        {"INSERT INTO logop SELECT * FROM logop WHERE numop < 5", 0, 0},
    };
    const QByteArray whole[]{contentAt(folder.mainFile()), contentAt(folder.journalFile())};
    for (const Loss &loss : losses) {
        SCOPED_TRACE(loss.sql);
        replaceContent(folder.mainFile(), whole[0]);
        replaceContent(folder.journalFile(), whole[1]);
        ASSERT_TRUE(RawSqlite(folder.journalFile())
                        .run(QString::fromLatin1(loss.redone ? undoneTwo : "") +
                             QString::fromLatin1(loss.sql) + QStringLiteral("; DROP INDEX logop01")));
        AnsweringHost answering;
        Session session(answering);
        ASSERT_TRUE(start(session));
        const auto played = [&](bool (*play)(Session &)) {
            const auto before = answering.said.size();
            for (auto last = before - 1; answering.said.size() > last; play(session))
                last = answering.said.size();
            return answering.said.size() - before;
        };
        EXPECT_EQ(played(refaitop), loss.redone);
        EXPECT_EQ(played(annulop), loss.undone);
        for (const store::Constat &constat : store::verifieJournal(session.journal.engine))
            ADD_FAILURE() << constat.phrase.toStdString();
    }
}

TEST_F(RecoveryTest, FileCutShortGivesBackWhatItStillHolds)
{
    QFile::resize(folder.journalFile(), QFileInfo(folder.journalFile()).size() / pageSize / 2 * pageSize);
    Session session(host);
    ASSERT_TRUE(start(session));
    EXPECT_EQ(session.journal.logop.recordCount(), 31);
    EXPECT_GT(session.journal.sitlog.recordCount(), images);
    EXPECT_LT(session.journal.sitlog.recordCount(), operations * images);
}

TEST_F(RecoveryTest, MissingTableComesBackEmpty)
{
    RawSqlite(folder.journalFile()).run(QStringLiteral("DROP TABLE sitlog"));
    const QStringList ring = journal(ringSql);
    {
        Session session(host);
        ASSERT_TRUE(start(session));
        EXPECT_TRUE(session.journal.sitlog.isEmpty());
    }
    EXPECT_EQ(journal(ringSql), ring);
}

TEST_F(RecoveryTest, RepairWorksInTheSecondFolderAndReopensTheFirst)
{
    const DataFolder shared;
    overwritePage(pageOf(QStringLiteral("logop")));
    const QByteArray damaged = digest(folder.journalFile());
    Session session(host);
    folder.give(session, shared.path());
    host.expectMessage(journalInouvrable(folder.path()));
    EXPECT_FALSE(ouvrejournal(session));
    EXPECT_EQ(digest(folder.journalFile()), damaged);
}

TEST_F(RecoveryTest, JournalThatAnotherProgramReadsIsNotRepaired)
{
    const QByteArray before = digest(folder.journalFile());
    {
        RawSqlite reader(folder.journalFile());
        ASSERT_TRUE(reader.run(QStringLiteral("BEGIN; SELECT count(*) FROM logop")));
        EXPECT_EQ(store::repairJournal(folder.journalFile(), folder.path() + store::fichierReparation).code(),
                  store::Status::Code::Busy);
    }
    EXPECT_EQ(digest(folder.journalFile()), before);
}

TEST_F(RecoveryTest, RepairedJournalOfAMissingBaseSaysOnlyThat)
{
    overwritePage(pageOf(QStringLiteral("logop")));
    QFile::remove(folder.mainFile());
    Session session(host);
    host.expectMessage(sansBase(folder.path()));
    EXPECT_FALSE(start(session));
}

TEST_F(RecoveryTest, FileThatIsNoJournalIsNamedAndLeftAsItIs)
{
    QFile whole(folder.journalFile());
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray header = whole.read(50);
    whole.close();
    const QByteArray contents[] = {{}, "du texte, pas une base\n", QByteArray(3 * pageSize, '\x5a'), header};
    for (const QByteArray &content : contents) {
        replaceContent(folder.journalFile(), content);
        const QByteArray before = digest(folder.journalFile());
        Session session(host);
        host.expectMessage(journalInouvrable(folder.path()));
        EXPECT_FALSE(start(session));
        EXPECT_EQ(digest(folder.journalFile()), before) << content.size();
    }
    EXPECT_FALSE(QFile::exists(folder.path() + store::fichierReparation));
}

TEST_F(RecoveryTest, AnotherProgramsDatabaseIsLeftAsItIs)
{
    QFile::remove(folder.journalFile());
    RawSqlite(folder.journalFile()).run(QStringLiteral("CREATE TABLE recettes (nom TEXT)"));
    const QByteArray before = digest(folder.journalFile());
    Session session(host);
    host.expectMessage(journalInouvrable(folder.path()));
    EXPECT_FALSE(start(session));
    EXPECT_EQ(digest(folder.journalFile()), before);
}

TEST_F(RecoveryTest, DirectoryInTheJournalsPlaceIsRefused)
{
    QFile::remove(folder.journalFile());
    ASSERT_TRUE(QDir().mkdir(folder.journalFile()));
    Session session(host);
    host.expectMessage(journalInouvrable(folder.path()));
    EXPECT_FALSE(start(session));
}

TEST_F(RecoveryTest, ReadOnlyJournalIsNotReplacedByAWritableOne)
{
    const QByteArray before = digest(folder.journalFile());
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(folder.mainFile(), QFile::Permissions(0x6666));
    QFile::setPermissions(folder.journalFile(), QFile::Permissions(0x4444));
    // Permission bits don't bind the superuser, so another user tries.
    OtherProcess other([this] {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && setuid(nobody) != 0) return 3;
        ScriptedHost otherHost;
        Session session(otherHost);
        otherHost.expectMessage(journalInouvrable(folder.path()));
        return start(session) ? 1 : static_cast<int>(otherHost.titles.size()) + 1;
    });
    EXPECT_EQ(other.run(), 2);
    EXPECT_EQ(digest(folder.journalFile()), before);
}

} // namespace
} // namespace velmora::test
