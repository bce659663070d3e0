#include "support/prepared_files.h"
#include "support/test_disk.h"

namespace velmora::test
{
namespace
{

/// The files as they stand once a command is reported as done.
struct Standing {
    int moment = 0; ///< changes of the disk until then
    QString planning;
    QString ring;
    QString ringWhenAsked; ///< as it stood while the command asked its question
};

class PowerCutTest : public testing::Test
{
protected:
    PreparedFiles files;
    TestDisk disk;
    std::vector<Standing> standing;

    /// One session with every command, from its start on.
    void work()
    {
        disk.remember(files.paths());
        AnsweringHost host;
        Session session(host);
        files.start(session);
        note(session, {});
        for (const SessionCommand &command : everyCommand()) {
            QString asked;
            host.whenAsked = [&] { asked = ringOf(session); };
            command.run(session);
            note(session, asked);
        }
    }
    void note(Session &session, const QString &asked)
    {
        standing.push_back({disk.moment(), planningOf(session), ringOf(session), asked});
    }
    void cut(int moment, std::mt19937 &random)
    {
        const auto left = disk.afterCut(moment, random);
        for (const QString &path : files.paths()) {
            for (const QString &one : {path, path + QStringLiteral("-journal")}) {
                QFile::remove(one);
                const auto content = left.find(QFileInfo(one).fileName());
                if (content != left.end()) replaceContent(one, *content);
            }
        }
    }
    /// What was reported as done stands; of the command under way the planning and the journal may each be as
    /// before or as after, but never a change without its images.
    void expectWhole(std::size_t done)
    {
        AnsweringHost host;
        {
            Session session(host);
            files.start(session);
            const Standing &before = standing[done];
            const Standing &after = standing[std::min(done + 1, standing.size() - 1)];
            const QString planning = planningOf(session);
            const QString ring = ringOf(session);
            EXPECT_TRUE(planning == before.planning || planning == after.planning);
            EXPECT_TRUE(ring == before.ring || ring == after.ring || ring == after.ringWhenAsked)
                << ring.toStdString();
            const bool planningFirst = done < everyCommand().size() && everyCommand()[done].planningFirst;
            if (planningFirst && ring != before.ring) {
                EXPECT_EQ(planning, after.planning);
            }
            if (!planningFirst && planning != before.planning) {
                EXPECT_EQ(ring, after.ring);
            }
        }
        EXPECT_EQ(host.said, QStringList());
        EXPECT_EQ(faultsIn(files.folder.path()), "");
    }
    /// Commands reported as done at the moment; the start counts as none.
    [[nodiscard]] std::size_t doneAt(int moment) const
    {
        std::size_t done = 0;
        while (done + 1 < standing.size() && standing[done + 1].moment <= moment)
            ++done;
        return done;
    }
};

// VELMORA_CUTS sets how many times, VELMORA_SEED the moments.
TEST_F(PowerCutTest, LosesNothingThatWasReportedAndLeavesTheFilesWhole)
{
    work();
    disk.stopRemembering();
    std::mt19937 random(static_cast<unsigned>(setting("VELMORA_SEED", 1)));
    const int cuts = setting("VELMORA_CUTS", 200);
    for (int i = 0; i < cuts && !HasFailure(); ++i) {
        // The start is a command like the others: a journal that is tied and emptied.
        const int moment = std::uniform_int_distribution<int>(0, disk.moment())(random);
        SCOPED_TRACE(testing::Message()
                     << "cut " << i << " after change " << moment << " of " << disk.moment());
        cut(moment, random);
        expectWhole(doneAt(moment));
    }
    std::printf("%d cuts over %d changes of the disk\n", cuts, disk.moment());
}

} // namespace
} // namespace velmora::test
