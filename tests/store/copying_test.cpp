#include "store/copying.h"
#include "store/copying_lock.h"

#include "support/data_folder.h"
#include "support/other_process.h"
#include "support/raw_sqlite.h"
#include "support/test_disk.h"

#include <QDir>

#include <csignal>
#include <functional>
#include <optional>

#include <sys/resource.h>

namespace velmora::test
{
namespace
{

using store::CopyOutcome;
using Code = store::Status::Code;

/// No file of the process may pass a size, for a scope: a disk that gives up in the middle of a write.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    void (*m_signal)(int);
    rlimit m_before{};
};

class CopyingTest : public testing::Test
{
protected:
    DataFolder folder;
    QTemporaryDir place;
    const QString source = folder.mainFile();
    const QString target = place.filePath("velmora.mdb");

    void SetUp() override { ASSERT_TRUE(RawSqlite(source).run(insertion(1))); }

    static QString insertion(int nump)
    {
        return QStringLiteral("INSERT INTO ligmois (nump, nom) VALUES (%1, 'AGENT')").arg(nump);
    }
    static QString lines(const QString &file)
    {
        return RawSqlite(file).value("SELECT group_concat(nump) FROM ligmois");
    }
};

TEST_F(CopyingTest, HoldsTheFileStillAndReplacesAnEarlierCopyWithItsJournal)
{
    replaceContent(target, "an older copy");
    replaceContent(target + "-journal", "of a stop long ago");
    replaceContent(target + ".partiel", "of a kill");
    RawSqlite other(source);
    int calls = 0;
    const auto whileCopied = [&](int done, int total) {
        ++calls;
        EXPECT_EQ(done, total);
        EXPECT_FALSE(other.run(insertion(2))) << "a writer got in";
        EXPECT_EQ(digest(target), QCryptographicHash::hash("an older copy", QCryptographicHash::Sha256));
    };
    const CopyOutcome copy = store::copyDatabase(source, target, {.progress = whileCopied});
    EXPECT_TRUE(copy.ok()) << copy.status.text().toStdString();
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(other.run(insertion(2)));
    EXPECT_EQ(lines(target), "1");
    EXPECT_EQ(RawSqlite(target).value("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(QDir(place.path()).entryList(QDir::Files), QStringList{"velmora.mdb"});
}

TEST_F(CopyingTest, AFailureKeepsTheEarlierCopyAndLeavesNothingElse)
{
    struct Case {
        const char *what;
        std::function<void()> spoil;
        CopyOutcome::Fault fault;
        Code code;
    };
    std::optional<SizeLimit> limit;
    const Case cases[] = {
        {"a write that fails", [&] { limit.emplace(20000); }, CopyOutcome::Fault::Target, Code::Io},
        {"a damaged page", [&] { breakTable(source, "ligmois"); }, CopyOutcome::Fault::Copy, Code::Damaged},
        {"another program's file", [&] { replaceContent(source, QByteArray(9000, 'x')); },
         CopyOutcome::Fault::Source, Code::NotADatabase},
        {"an empty file", [&] { replaceContent(source, {}); }, CopyOutcome::Fault::Source,
         Code::NotADatabase},
        {"no file", [&] { QFile::remove(source); }, CopyOutcome::Fault::Source, Code::CantOpen},
    };
    replaceContent(target, "an older copy");
    const QByteArray before = digest(target);
    for (const Case &one : cases) {
        one.spoil();
        const QByteArray original = digest(source);
        const CopyOutcome copy = store::copyDatabase(source, target);
        limit.reset();
        EXPECT_EQ(copy.fault, one.fault) << one.what;
        EXPECT_EQ(copy.status.code(), one.code) << one.what << ": " << copy.status.text().toStdString();
        EXPECT_EQ(digest(target), before) << one.what;
        EXPECT_EQ(digest(source), original) << one.what;
        EXPECT_EQ(QDir(place.path()).entryList(QDir::Files), QStringList{"velmora.mdb"}) << one.what;
    }
}

TEST_F(CopyingTest, APlaceIsOneProcesssAtATimeAndAKilledOnesIsFree)
{
    OtherProcess late([&] {
        store::CopyingLock lock(target);
        return lock.take().code() == Code::Busy ? 0 : 1;
    });
    replaceContent(target + ".verrou", {});
    {
        store::CopyingLock lock(target);
        EXPECT_TRUE(lock.take().ok());
        EXPECT_EQ(late.run(), 0);
    }
    EXPECT_EQ(QDir(place.path()).entryList(QDir::Files), QStringList());
}

TEST_F(CopyingTest, IsOnTheDiskBeforeItIsCalledGood)
{
    TestDisk disk;
    disk.remember({});
    int read = 0;
    const auto copied = [&](int, int) { read = disk.moment(); };
    ASSERT_TRUE(store::copyDatabase(source, target, {.progress = copied}).ok());
    const int changes = disk.moment();
    std::mt19937 random(1);
    EXPECT_NE(disk.afterCut(read, random).value("velmora.mdb.partiel"), contentAt(target))
        << "the original was held until the disk had the copy";
    EXPECT_EQ(disk.afterCut(changes, random).value("velmora.mdb.partiel"), contentAt(target));
    const QByteArray before = digest(target);
    for (int i = 0; i < changes; ++i) {
        disk.failAfter(i, SQLITE_IOERR, "velmora.mdb.partiel", false);
        EXPECT_EQ(store::copyDatabase(source, target).fault, CopyOutcome::Fault::Target) << i;
        EXPECT_TRUE(disk.struck());
        EXPECT_EQ(digest(target), before) << i;
    }
}

} // namespace
} // namespace velmora::test
