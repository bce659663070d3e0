#include "cli/program.h"

using namespace velmora;
using namespace velmora::test;

namespace
{

/// A folder of a shared base and a folder for each of two workstations.
struct SharedBase : testing::Test {
    [[nodiscard]] Outcome on(const QString &post, const QStringList &words) const
    {
        return program.run(
            words, {"--journal", program.path(post), "--base", program.path("base"), "--pseudo", "MARIE"});
    }
    Program program;
};

} // namespace

TEST(Init, MakesBothFilesWithOneRowPerUser)
{
    const Program program;
    EXPECT_EQ(program({"init", "--utilisateur", "A:Anne", "--utilisateur", "B:Le: Bon"}).status, 0);
    EXPECT_EQ(query(program.base(), "SELECT pseudo, nom FROM agent", 2),
              QStringList({"A|Anne", "B|Le: Bon"}));
    EXPECT_EQ(program({"journal"}).err.trimmed(), QStringLiteral("Mot de passe non accepté :"));
    const Outcome ring = program.run({"journal", "--pseudo", "B"}, {"--journal", program.folder()});
    EXPECT_EQ(ring.status, 0);
    EXPECT_EQ(ring.lines().size(), 31);
}

TEST(Init, LeavesFilesThatAreThereAlone)
{
    const Program program;
    ASSERT_EQ(program({"init"}).status, 0);
    const QByteArray before = program.fingerprint();
    for (const QStringList &words : {QStringList{"init"}, QStringList{"demo"}}) {
        const Outcome again = program(words);
        EXPECT_EQ(again.status, 1);
        EXPECT_TRUE(again.err.contains(QStringLiteral("sont déjà là"))) << again.err.toStdString();
    }
    EXPECT_EQ(program.fingerprint(), before);
}

TEST(Init, MakesOnlyTheFileThatIsMissing)
{
    const Program program;
    ASSERT_EQ(program({"init"}).status, 0);
    ASSERT_TRUE(QFile::remove(program.journal()));
    ASSERT_EQ(program({"init"}).status, 0);
    EXPECT_EQ(program({"journal"}).status, 0);
    EXPECT_EQ(queryOne(program.base(), "SELECT count(*) FROM agent"), QStringLiteral("1"));
}

TEST(Init, KeepsHostileNamesAsTheyAre)
{
    const QStringList names{
        QStringLiteral("O'Neil \"x\"; DROP TABLE agent;--"),
        QStringLiteral("%1 %s %n 100%"),
        QStringLiteral("\u202Eמרים\u200F"),
        QString(10000, QChar(u'é')),
    };
    for (const QString &name : names) {
        const Program program;
        ASSERT_EQ(program({"init", "--utilisateur", QStringLiteral("P") + name + ':' + name}).status, 0);
        EXPECT_EQ(query(program.base(), "SELECT pseudo, nom FROM agent", 2),
                  QStringList(QStringLiteral("P") + name + '|' + name));
        const Outcome ring =
            program.run({"journal", "--pseudo", "P" + name}, {"--journal", program.folder()});
        EXPECT_EQ(ring.status, 0) << ring.err.toStdString();
    }
}

TEST_F(SharedBase, IsJoinedByTwoWorkstations)
{
    for (const QString &post : {QStringLiteral("un"), QStringLiteral("deux")}) {
        const Outcome made = on(post, {"init"});
        ASSERT_EQ(made.status, 0) << made.err.toStdString();
        EXPECT_EQ(QFile::symLinkTarget(program.path(post + "/velmora.mdb")),
                  program.path("base/velmora.mdb"));
        EXPECT_EQ(queryOne(program.path(post + "/velmoralog.mdb"), "SELECT chemin FROM chemin"),
                  program.path("base/"));
        EXPECT_EQ(on(post, {"journal"}).status, 0);
        EXPECT_EQ(on(post, {"init"}).status, 1);
    }
    EXPECT_EQ(queryOne(program.path("base/velmora.mdb"), "SELECT count(*) FROM agent"), QStringLiteral("1"));
    EXPECT_FALSE(QFile::exists(program.path("base/velmoralog.mdb")));
}

TEST_F(SharedBase, TakesTheUsersOfAJoiningWorkstation)
{
    ASSERT_EQ(on("un", {"init"}).status, 0);
    ASSERT_EQ(on("deux", {"init", "--utilisateur", "MARIE:Autre", "--utilisateur", "PAUL:Paul"}).status, 0);
    EXPECT_EQ(query(program.path("base/velmora.mdb"), "SELECT pseudo, nom FROM agent", 2),
              QStringList({"MARIE|MARIE", "PAUL|Paul"}));
}

TEST_F(SharedBase, IsNotMixedUpWithAWorkstationsOwnBase)
{
    ASSERT_EQ(program.run({"init"}, {"--journal", program.path("un"), "--pseudo", "MARIE"}).status, 0);
    const QByteArray before = program.fingerprint();
    const Outcome refused = on("un", {"init"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errorLines().size(), 1);
    EXPECT_FALSE(QFile::exists(program.path("base")));
    EXPECT_EQ(program.fingerprint(), before);
}

TEST_F(SharedBase, TakesBackWhatItMadeWhenItFailsHalfway)
{
    writeFile(program.path("base"), "a file where the folder should be");
    const Outcome failed = on("un/poste", {"init"});
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(failed.err.contains(QStringLiteral("ne peut pas être créé"))) << failed.err.toStdString();
    EXPECT_EQ(QDir(program.folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList("base"));
}

TEST(Init, RefusesAForeignFileInItsPlace)
{
    for (const QByteArray &content : {QByteArray("plain text, no database"), QByteArray()}) {
        const Program program;
        writeFile(program.base(), content);
        const QByteArray before = program.fingerprint();
        const Outcome run = program({"init"});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.errorLines().size(), 1) << run.err.toStdString();
        EXPECT_EQ(program.fingerprint(), before);
    }
}
