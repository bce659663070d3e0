#include "cli/program.h"

#include "support/small_disk.h"

using namespace velmora;
using namespace velmora::test;

TEST(BackupCommand, CopiesToAFolderAndTellsWhyItCannot)
{
    const Program program;
    program.demo();
    const QTemporaryDir place;
    const QString missing = QStringLiteral("Chemin non retrouvé ou périphérique indisponible!");
    for (const auto &[folder, words] : {
             std::pair{QStringLiteral("F"), QStringLiteral("chemin absent")},
             std::pair{place.filePath("absent"), missing},
         }) {
        const Outcome run = program({"sauvegarde", folder});
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.errorLines(), QStringList{words});
        EXPECT_TRUE(run.out.isEmpty());
    }
    const Outcome run = program({"sauvegarde", place.path()});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, QString());
    EXPECT_EQ(run.lines().size(), 1);
    const QString rows = QStringLiteral("SELECT count(*) || '/' || sum(heurtrav) FROM sitper");
    EXPECT_EQ(queryOne(place.filePath(store::fichierBase), rows), queryOne(program.base(), rows));
    EXPECT_EQ(queryOne(place.filePath(store::fichierJournal), "SELECT count(*) FROM logop"), "31");
    EXPECT_EQ(queryOne(program.base(), "SELECT chemin FROM tnum"), place.path());
    // A target from where the program runs is remembered for every workstation.
    const QTemporaryDir near(QDir::current().filePath("copies-XXXXXX"));
    EXPECT_EQ(program({"sauvegarde", QFileInfo(near.path()).fileName()}).status, 0);
    EXPECT_EQ(queryOne(program.base(), "SELECT chemin FROM tnum"),
              QFileInfo(near.path()).canonicalFilePath());
    EXPECT_EQ(program({"sauvegarde", "."}).errorLines(), QStringList{"chemin absent"});
}

TEST(BackupCommand, AFullDiskIsARefusalAndChangesNothingElse)
{
    const SmallDisk disk("size=48k");
    if (!disk.mounted()) GTEST_SKIP() << "no right to mount a small disk";
    const Program program;
    program.demo();
    const Outcome run = program({"sauvegarde", disk.folder()});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_TRUE(run.err.contains("plus de place")) << run.err.toStdString();
    EXPECT_FALSE(QFile::exists(disk.folder() + '/' + store::fichierBase));
    EXPECT_EQ(program({"mois", "6/2026"}).status, 0);
}
