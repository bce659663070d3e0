#include "session/batch.h"

#include "support/prepared_files.h"
#include "support/raw_sqlite.h"
#include "support/test_disk.h"

#include <cstring>

namespace velmora::test
{
namespace
{

struct Fault {
    const char *name;
    int result;
    bool lasts; ///< until the disk is well again
};

// What the engine's own files give: a medium that was made read-only, or whose permission went, while it is
// open fails its writes as any other error does; the codes of their own come from the opening.
const Fault faults[] = {
    {"full", SQLITE_FULL, true},
    {"input and output error", SQLITE_IOERR_WRITE, true},
    {"one error", SQLITE_IOERR_FSYNC, false},
    {"read-only", SQLITE_IOERR_TRUNCATE, true},
    {"permission lost", SQLITE_IOERR_DELETE, true},
};

class DiskFaultsTest : public testing::Test
{
protected:
    PreparedFiles files;

    struct States {
        QString before;
        QString after;
    };
    States statesOf(const SessionCommand &command)
    {
        files.restore();
        AnsweringHost host;
        Session session(host);
        files.start(session);
        States states{planningOf(session), {}};
        command.run(session);
        states.after = planningOf(session);
        EXPECT_NE(states.before, states.after) << command.name;
        return states;
    }
    /// Tells whether the words are those for a disk that fails.
    static void expectDiskWords(const QStringList &said)
    {
        for (const QString &text : said) {
            const bool known = text.startsWith(QStringLiteral("Problème accès disque!")) ||
                               text.startsWith(QStringLiteral("invalider : ")) ||
                               text.startsWith(QStringLiteral("revalider ")) ||
                               text.startsWith(QStringLiteral("Des heures ont été saisies")) ||
                               text.startsWith(QStringLiteral("Suppr")) ||
                               text.startsWith(QStringLiteral("êtes vous sur"));
            EXPECT_TRUE(known) << text.toStdString();
        }
    }
    static bool saidDisk(const QStringList &said)
    {
        return !said.isEmpty() && said.last().startsWith(QStringLiteral("Problème accès disque!"));
    }

    /// The disk fails after so many changes of a file and is well again when the user is asked; true until a
    /// command needs no more changes than that.
    bool healedFault(const SessionCommand &command, const States &states, const Fault &fault,
                     const QString &file, int changes)
    {
        files.restore();
        TestDisk disk;
        AnsweringHost host;
        bool struck = false;
        {
            Session session(host);
            files.start(session);
            host.whenAsked = [&] {
                if (saidDisk(host.said)) disk.heal();
            };
            disk.failAfter(changes, fault.result, file, fault.lasts);
            command.run(session);
            struck = disk.struck();
            disk.heal();
            expectDiskWords(host.said);
            EXPECT_EQ(planningOf(session).toStdString(), states.after.toStdString());
            if (command.undone && file == store::fichierBase) {
                annulop(session);
                EXPECT_EQ(planningOf(session).toStdString(), states.before.toStdString());
            }
            EXPECT_TRUE(enterHours(session, 2, {2026, 6, 28}, {2026, 6, 28}, {"10h", "12h"}));
            EXPECT_TRUE(session.base.sitper.seek(store::Cmp::Eq, {2, QDate(2026, 6, 28)}));
        }
        EXPECT_EQ(faultsIn(files.folder.path()), "");
        return struck;
    }
    /// The same with a No, which ends the process.
    bool refusedFault(const SessionCommand &command, const States &states, const Fault &fault,
                      const QString &file, int changes)
    {
        files.restore();
        TestDisk disk;
        AnsweringHost host;
        {
            Session session(host);
            files.start(session);
            host.whenAsked = [&] { host.answer = !saidDisk(host.said); };
            disk.failAfter(changes, fault.result, file, fault.lasts);
            try {
                command.run(session);
            } catch (const ProcessEnded &) {
            }
        }
        const bool struck = disk.struck();
        disk.heal();
        AnsweringHost again;
        {
            Session session(again);
            files.start(session);
            const QString left = planningOf(session);
            EXPECT_TRUE(left == states.before || left == states.after);
        }
        EXPECT_EQ(again.said, QStringList());
        EXPECT_EQ(faultsIn(files.folder.path()), "");
        return struck;
    }

    /// Each slot of the ring but for its age: the operation in the first line, then its images.
    QList<QStringList> slotsLeft()
    {
        RawSqlite journal(files.folder.journalFile());
        QList<QStringList> found;
        for (int numop = 1; numop <= 30; ++numop) {
            const QString where = QStringLiteral(" WHERE numop = %1").arg(numop);
            found << journal.rows(QStringLiteral("SELECT valop, ficop, libop FROM logop") + where) +
                         journal.rows(QStringLiteral("SELECT * FROM sitlog") + where) +
                         journal.rows(QStringLiteral("SELECT * FROM logabs") + where);
        }
        return found;
    }
    /// Runs a command on a journal that fails once after so many changes.
    QList<QStringList> slotsAfter(const SessionCommand &command, int changes, bool &struck)
    {
        files.restore();
        TestDisk disk;
        AnsweringHost host;
        {
            Session session(host);
            files.start(session);
            if (changes >= 0) disk.failAfter(changes, SQLITE_FULL, store::fichierJournal, false);
            command.run(session);
            struck = disk.struck();
            disk.heal();
        }
        EXPECT_EQ(faultsIn(files.folder.path()), "");
        return slotsLeft();
    }
};

TEST_F(DiskFaultsTest, EachFailedChangeOfEachCommandIsMendedOrLeavesTheFilesWhole)
{
    int tried = 0;
    for (const SessionCommand &command : everyCommand()) {
        const States states = statesOf(command);
        for (const Fault &fault : faults) {
            for (const QString &file : {store::fichierBase, store::fichierJournal}) {
                bool struck = true;
                for (int changes = 0; struck && !HasFailure(); ++changes, ++tried) {
                    SCOPED_TRACE(testing::Message() << command.name << ", " << fault.name << " at change "
                                                    << changes << " of " << file.toStdString());
                    struck = healedFault(command, states, fault, file, changes);
                    refusedFault(command, states, fault, file, changes);
                }
            }
        }
    }
    std::printf("%d faults\n", 2 * tried);
    EXPECT_GT(tried, 100);
}

// A full ring, whose oldest slot a new operation takes: when the journal then fails, images of the new one
// must not come under the old one.
TEST_F(DiskFaultsTest, WhatCantBeRecordedLeavesTheOtherOperationsAlone)
{
    {
        AnsweringHost host;
        Session session(host);
        files.start(session);
        for (int day = 1; day <= 30; ++day)
            EXPECT_TRUE(enterHours(session, 2, {2026, 6, day}, {2026, 6, day}, {"8h", "9h"}));
    }
    files.keep();
    const QList<QStringList> before = slotsLeft();
    for (const SessionCommand &command : everyCommand()) {
        if (command.planningFirst) break;                    // undo and redo come last
        if (std::strcmp(command.name, "cut") == 0) continue; // asks instead, and runs again
        bool struck = false;
        const QList<QStringList> after = slotsAfter(command, -1, struck);
        for (int changes = 0; changes == 0 || struck; ++changes) {
            SCOPED_TRACE(testing::Message() << command.name << ", failing at change " << changes);
            const QList<QStringList> left = slotsAfter(command, changes, struck);
            for (int slot = 0; slot < 30; ++slot) {
                if (left[slot] == before[slot] || left[slot] == after[slot]) continue;
                EXPECT_EQ(left[slot].first(), after[slot].first()) << slot;
                EXPECT_NE(before[slot], after[slot]) << slot;
                for (const QString &image : left[slot])
                    EXPECT_TRUE(after[slot].contains(image)) << image.toStdString();
            }
            if (HasFailure()) return;
        }
    }
}

TEST_F(DiskFaultsTest, StartOnAFailingDiskEndsWithAMessageOrStands)
{
    const DataFolder fresh;
    const QByteArray sound[] = {contentAt(fresh.mainFile()), contentAt(fresh.journalFile())};
    for (const Fault &fault : faults) {
        for (const QString &file : {store::fichierBase, store::fichierJournal}) {
            bool struck = true;
            for (int changes = 0; struck && !HasFailure(); ++changes) {
                SCOPED_TRACE(testing::Message() << fault.name << " at change " << changes);
                replaceContent(fresh.mainFile(), sound[0]);
                replaceContent(fresh.journalFile(), sound[1]);
                TestDisk disk;
                AnsweringHost host;
                {
                    Session session(host);
                    fresh.give(session);
                    host.answer = false;
                    disk.failAfter(changes, fault.result, file, fault.lasts);
                    try {
                        if (ouvrejournal(session) && ouvrebase(session)) {
                            EXPECT_EQ(session.journal.logop.recordCount(), 31);
                        }
                    } catch (const ProcessEnded &) {
                    }
                    struck = disk.struck();
                    disk.heal();
                }
                for (const QString &text : host.said)
                    EXPECT_EQ(text, journalInouvrable(fresh.path()));
                Session again(host);
                fresh.give(again);
                EXPECT_TRUE(ouvrejournal(again) && ouvrebase(again));
            }
        }
    }
}

TEST_F(DiskFaultsTest, FileMovedAwayIsSaidAndTheRetryFindsItAgain)
{
    AnsweringHost host;
    {
        Session session(host);
        files.start(session);
        const QString away = files.folder.path() + QStringLiteral("ailleurs");
        ASSERT_TRUE(QFile::rename(files.folder.mainFile(), away));
        host.whenAsked = [&] { QFile::rename(away, files.folder.mainFile()); };
        EXPECT_TRUE(enterHours(session, 2, {2026, 6, 28}, {2026, 6, 28}, {"10h", "12h"}));
        EXPECT_EQ(host.said, QStringList{questionDisque()});
    }
    EXPECT_EQ(RawSqlite(files.folder.mainFile()).value("SELECT count(*) FROM sitper WHERE nump = 2"), "1");
    EXPECT_EQ(faultsIn(files.folder.path()), "");
}

} // namespace
} // namespace velmora::test
