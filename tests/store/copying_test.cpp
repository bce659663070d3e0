#include "store/copying.h"

#include "support/data_folder.h"
#include "support/raw_sqlite.h"

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
    /// Breaks the structure without touching what the opening reads.
    void damage()
    {
        const qint64 page =
            RawSqlite(source).value("SELECT rootpage FROM sqlite_master WHERE name = 'ligmois'").toLongLong();
        QFile file(source);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * 4096));
        file.write(QByteArray(4096, '\x5a'));
    }
};

TEST_F(CopyingTest, HoldsTheFileStillAndReplacesAnEarlierCopyWithItsJournal)
{
    replaceContent(target, "an older copy");
    replaceContent(target + "-journal", "of a stop long ago");
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
        {"a damaged page", [&] { damage(); }, CopyOutcome::Fault::Copy, Code::Damaged},
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

} // namespace
} // namespace velmora::test
