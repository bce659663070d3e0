#include "workstation/backup.h"

#include "journal/recording.h"
#include "session/batch.h"
#include "support/data_folder.h"
#include "support/raw_sqlite.h"
#include "support/small_disk.h"
#include "support/workstation.h"
#include "workstation/colours.h"

#include <QDir>

namespace velmora::test
{
namespace
{

const QString bases[] = {store::fichierBase, store::fichierJournal};

class BackupTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    QTemporaryDir place;

    /// The rows of a database's tables, from its file.
    static QStringList content(const QString &file)
    {
        RawSqlite base(file);
        QStringList rows;
        for (const QString &table : base.rows("SELECT name FROM sqlite_master WHERE type = 'table'"))
            rows << table << base.rows("SELECT * FROM " + table);
        return rows;
    }
    static QStringList files(const QString &folder)
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// Whether the session still writes to both files.
    void expectWhole()
    {
        enLot(session, [this] {
            ecritop(session, QStringLiteral("S"), QStringLiteral("après"));
            const store::Status status = ajoutsit(session);
            if (!status.ok()) return status;
            session.base.sitper.values().nump = 77;
            session.base.sitper.values().dat = QDate(2026, 6, 15);
            return majsit(session);
        });
        EXPECT_EQ(session.base.sitper.recordCount(), 1);
        EXPECT_EQ(session.journal.sitlog.recordCount(), 1);
    }
    QString refusal(const QString &text) { return cibleSauvegarde(session, text).refus; }
    static QString incomplete(const QString &base, const QString &journal)
    {
        return "La sauvegarde n'est pas complète.\nvelmora.mdb " + base + ".\nvelmoralog.mdb " + journal +
               ".";
    }
};

TEST_F(BackupTest, CopiesBothBasesAndTheSessionGoesOn)
{
    station.addLine(1, "AGENT");
    const CibleSauvegarde cible = cibleSauvegarde(session, place.path() + "/");
    EXPECT_EQ(cible.dossier, place.path());
    const Sauvegarde done = sauvegarde(session, cible.dossier);
    EXPECT_TRUE(done.complete && done.rouvertes);
    EXPECT_EQ(done.bilan,
              "Sauvegarde effectuée et vérifiée : velmora.mdb et velmoralog.mdb sont copiés dans " +
                  place.path() + ".");
    EXPECT_EQ(files(place.path()), QStringList({bases[0], bases[1]}));
    EXPECT_EQ(derniereCible(session), place.path());
    expectWhole();
    session.base.close();
    session.journal.close();

    // The target was noted before the copy, so that the copy knows it too.
    RawSqlite copy(place.filePath(bases[0]));
    EXPECT_EQ(copy.value("SELECT chemin FROM tnum"), place.path());
    EXPECT_EQ(copy.value("SELECT nom FROM ligmois"), "AGENT");
    // A copied pair serves as a workstation's own.
    Session restored(station.host);
    restored.cheminjournal = restored.cheminbase = place.path() + "/";
    EXPECT_TRUE(ouvrejournal(restored) && ouvrebase(restored));
    EXPECT_EQ(restored.base.sitper.recordCount(), 0);
}

TEST_F(BackupTest, TheUsersRowIsLostAndTheSettingsGoToTheFirstOne)
{
    auto &agent = session.base.agent;
    ASSERT_TRUE(agent.addNew().ok());
    agent.values().pseudo = "PAUL";
    ASSERT_TRUE(agent.update().ok());
    session.pseudo = "PAUL";
    ASSERT_TRUE(identifie(session));
    gescolor(session, 0);
    session.affichage.haut1 = 555;
    ASSERT_TRUE(sauvegarde(session, place.path()).complete);
    EXPECT_EQ(agent.row().pseudo, "MARIE");
    ecritAffichage(session);
    ASSERT_TRUE(agent.first());
    EXPECT_EQ(agent.row().affichage.haut1, 555);
    ASSERT_TRUE(agent.next());
    EXPECT_EQ(agent.row().affichage.haut1, 350);
}

TEST_F(BackupTest, RefusesATargetThatIsNoneAndRemembersNothing)
{
    const QString missing = "Chemin non retrouvé ou périphérique indisponible!";
    const QString own = "Les bases de données sont déjà dans ce dossier : indiquez-en un autre.";
    ASSERT_TRUE(QFile::link(station.directory.path(), place.filePath("lien")));
    const std::pair<QString, QString> cases[] = {
        {"", "chemin absent"},
        {"F", "chemin absent"},
        {"/", "chemin absent"},
        {"F:", missing},
        {"F\\", missing}, // long enough before its end is cut off
        {place.path() + "/absent", missing},
        {station.mainFile(), missing},
        {station.folder(), own},
        {place.filePath("lien"), own},
        {place.path() + "\\", {}},
    };
    for (const auto &[text, words] : cases)
        EXPECT_EQ(refusal(text), words) << text.toStdString();
    EXPECT_EQ(derniereCible(session), QString());
}

TEST_F(BackupTest, RefusesTheFolderThatAnotherWorkstationLivesIn)
{
    const QString lived = "Un poste se sert des bases de données de ce dossier : indiquez-en un autre.";
    Workstation other;
    EXPECT_EQ(refusal(other.folder()), lived);
    EXPECT_EQ(cibleSauvegarde(other.session, station.folder()).refus, lived);
    other.session.base.close();
    other.session.journal.close();
    EXPECT_EQ(refusal(other.folder()), QString());
    // While nobody works there, only the link to a shared base tells it from an earlier backup.
    ASSERT_TRUE(QFile::link(station.mainFile(), place.filePath(bases[0])));
    EXPECT_EQ(refusal(place.path()), lived);
}

TEST_F(BackupTest, TwoAtOnceToOneFolderLeaveTheFirstOneWhole)
{
    station.addLine(1, "AGENT");
    Workstation other;
    QString second;
    const Sauvegarde done = sauvegarde(session, place.path(), [&](int, int) {
        if (second.isEmpty()) second = sauvegarde(other.session, place.path()).bilan;
    });
    const QString busy = "n'est pas copié : une autre sauvegarde est en cours dans " + place.path();
    EXPECT_EQ(second, incomplete(busy, busy));
    EXPECT_TRUE(done.complete);
    EXPECT_EQ(RawSqlite(place.filePath(bases[0])).value("SELECT nom FROM ligmois"), "AGENT");
    EXPECT_EQ(files(place.path()), QStringList({bases[0], bases[1]}));
}

TEST_F(BackupTest, BothCopiesComeFromTheBasesFolder)
{
    const DataFolder other;
    ASSERT_TRUE(RawSqlite(other.mainFile()).run("INSERT INTO tnum (chemin, num) VALUES ('ailleurs', 7)"));
    ASSERT_TRUE(session.journal.chemin.first() && session.journal.chemin.edit().ok());
    session.journal.chemin.values().chemin = other.path();
    ASSERT_TRUE(session.journal.chemin.update().ok());
    session.cheminbase = other.path();
    const QStringList expected[] = {content(other.mainFile()), content(other.journalFile())};
    EXPECT_TRUE(sauvegarde(session, place.path()).complete);
    for (const int i : {0, 1})
        EXPECT_EQ(content(place.filePath(bases[i])), expected[i]);

    // Another workstation works there: its journal is its own, the base is copied all the same.
    store::JournalDatabase held;
    ASSERT_TRUE(held.open(other.journalFile()).ok());
    const Sauvegarde done = sauvegarde(session, place.path());
    EXPECT_FALSE(done.complete);
    EXPECT_TRUE(done.rouvertes);
    EXPECT_EQ(done.bilan,
              incomplete("est copié et vérifié", "n'est pas copié : le fichier " + other.journalFile() +
                                                     " est tenu par un autre poste"));
    held.close();
    ASSERT_TRUE(QFile::remove(other.journalFile()));
    EXPECT_EQ(sauvegarde(session, place.path()).bilan,
              incomplete("est copié et vérifié",
                         "n'est pas copié : le fichier " + other.journalFile() + " n'existe pas"));
    EXPECT_EQ(content(place.filePath(bases[1])), expected[1]) << "the earlier copy is lost";
    breakTable(other.mainFile(), "ligmois");
    EXPECT_TRUE(sauvegarde(session, place.path())
                    .bilan.contains("velmora.mdb n'est pas copié : le fichier " + other.mainFile() +
                                    " est endommagé, « velmora verifie » dit en quoi."));
    EXPECT_EQ(content(place.filePath(bases[0])), expected[0]) << "the earlier copy is lost";
    expectWhole();
}

TEST_F(BackupTest, AFullDiskIsToldAndKeepsTheEarlierBackup)
{
    const SmallDisk disk("size=512k");
    if (!disk.mounted()) GTEST_SKIP() << "no right to mount a small disk";
    ASSERT_TRUE(sauvegarde(session, disk.folder()).complete);
    QFile filler(disk.folder() + "/reste");
    ASSERT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(4096, 'x')) == 4096) {
    }
    const QStringList before[] = {content(disk.folder() + '/' + bases[0]),
                                  content(disk.folder() + '/' + bases[1])};
    station.addLine(1, "AGENT");
    const Sauvegarde done = sauvegarde(session, disk.folder());
    EXPECT_FALSE(done.complete);
    EXPECT_TRUE(done.rouvertes);
    const QString full = "n'est pas copié : il n'y a plus de place dans " + disk.folder();
    EXPECT_EQ(done.bilan, incomplete(full, full));
    for (const int i : {0, 1})
        EXPECT_EQ(content(disk.folder() + '/' + bases[i]), before[i]);
    EXPECT_EQ(files(disk.folder()).size(), 3);
    expectWhole();
}

TEST_F(BackupTest, ATargetThatTakesNoFileOrVanishesIsTold)
{
    // A folder where nobody can make a file, whatever his rights.
    const QString closed = "n'est pas copié : aucun fichier ne peut être écrit dans /proc";
    EXPECT_EQ(sauvegarde(session, "/proc").bilan, incomplete(closed, closed));

    const QString stick = place.filePath("cle");
    ASSERT_TRUE(QDir().mkpath(stick));
    const Sauvegarde done = sauvegarde(session, stick, [&](int, int) { QDir(stick).removeRecursively(); });
    EXPECT_FALSE(done.complete);
    EXPECT_TRUE(done.rouvertes);
    EXPECT_EQ(done.bilan, "Chemin non retrouvé ou périphérique indisponible!");
    expectWhole();
}

TEST_F(BackupTest, DatabasesThatDontOpenAgainCloseTheSystem)
{
    const QString sorry = " ne peut s'effectuer normalement! => fermeture du logiciel";
    // The words name the base's folder, although both files are opened in the journal's.
    const DataFolder other;
    ASSERT_TRUE(session.journal.chemin.first() && session.journal.chemin.edit().ok());
    session.journal.chemin.values().chemin = other.path();
    ASSERT_TRUE(session.journal.chemin.update().ok());
    session.cheminbase = other.path();
    const QString again = "la réouverture de la base de données " + other.path();
    const auto lose = [&](const QString &file) {
        return [file](int done, int total) {
            if (done == total) QFile::rename(file, file + ".perdu");
        };
    };
    station.host.expectMessage(sansJournal(station.folder()));
    station.host.expectMessage(again + "velmoralog.mdb" + sorry);
    const Sauvegarde done = sauvegarde(session, place.path(), lose(station.journalFile()));
    EXPECT_TRUE(done.complete);
    EXPECT_FALSE(done.rouvertes);
    // What the main window does as it closes finds closed files.
    ecritAffichage(session);

    ASSERT_TRUE(QFile::rename(station.journalFile() + ".perdu", station.journalFile()));
    ASSERT_TRUE(ouvrejournal(session) && ouvrebase(session));
    station.host.expectMessage(again + "velmora.mdb" + sorry);
    EXPECT_FALSE(sauvegarde(session, place.path(), [&](int copied, int total) {
                     if (copied != total) return;
                     QFile::remove(station.mainFile());
                     replaceContent(station.mainFile(), "foreign");
                 }).rouvertes);
}

} // namespace
} // namespace velmora::test
