#include "workstation/fsauv.h"

#include "support/data_folder.h"
#include "support/modal.h"
#include "support/workstation.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace velmora::test
{
namespace
{

class FsauvTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    QTemporaryDir place;

    /// Types into the field of a dialog that runs, and presses a key. True when the dialog has gone.
    static bool answer(QWidget &dialog, const QString &text, Qt::Key key)
    {
        auto &field = control<QLineEdit>(dialog, "Text1");
        QTest::keyClicks(&field, text);
        QTest::keyClick(&field, key);
        return !dialog.isVisible();
    }
    QString done() const
    {
        return "Sauvegarde effectuée et vérifiée : velmora.mdb et velmoralog.mdb sont copiés dans " +
               place.path() + ".";
    }
};

TEST_F(FsauvTest, BacksUpByKeysOnceTheTargetStands)
{
    Fsauv form(session);
    station.host.expectMessage("chemin absent");
    station.host.expectMessage("Chemin non retrouvé ou périphérique indisponible!");
    station.host.expectMessage(done());
    onModal([&](QWidget &dialog) {
        EXPECT_EQ(dialog.focusWidget(), &control<QLineEdit>(dialog, "Text1"));
        EXPECT_FALSE(answer(dialog, "F", Qt::Key_Return));
        // What was refused is selected: typing replaces it.
        EXPECT_FALSE(answer(dialog, "F:", Qt::Key_Return));
        EXPECT_FALSE(session.dlgvalide);
        EXPECT_TRUE(answer(dialog, place.path() + "/", Qt::Key_Enter));
    });
    form.exec();
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_TRUE(form.rouvertes());
    EXPECT_TRUE(QFile::exists(place.filePath("velmora.mdb")));
    EXPECT_TRUE(QFile::exists(place.filePath("velmoralog.mdb")));
    // The next backup begins with this target.
    const Fsauv next(session);
    EXPECT_EQ(control<QLineEdit>(next, "Text1").text(), place.path());
    EXPECT_FALSE(session.dlgvalide);
}

TEST_F(FsauvTest, EscapeCopiesNothingAndTheWordsStand)
{
    session.dlgvalide = true;
    Fsauv form(session);
    EXPECT_EQ(control<QGroupBox>(form, "Frame1").title(),
              "Effectuer une sauvegarde des bases de données velmora et velmoralog.mdb.mdb");
    EXPECT_EQ(control<QLabel>(form, "Label1").text(), "Saisir un lecteur (et éventuellement un répertoire)");
    EXPECT_EQ(control<QLineEdit>(form, "Text1").maxLength(), 50);
    onModal([&](QWidget &dialog) { EXPECT_TRUE(answer(dialog, place.path(), Qt::Key_Escape)); });
    form.exec();
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_FALSE(QFile::exists(place.filePath("velmora.mdb")));
    EXPECT_TRUE(session.base.agent.hasRow());
}

TEST_F(FsauvTest, ALongTargetFromElsewhereIsNotCutToAnotherFolder)
{
    const QString deep = place.filePath(QString(60, 'd'));
    ASSERT_TRUE(session.base.tnum.edit().ok());
    session.base.tnum.values().chemin = deep;
    ASSERT_TRUE(session.base.tnum.update().ok());
    Fsauv form(session);
    auto &field = control<QLineEdit>(form, "Text1");
    EXPECT_EQ(field.text(), deep);
    onModal([&](QWidget &) {
        field.deselect();
        QTest::keyClick(&field, Qt::Key_Backspace);
        QTest::keyClick(&field, Qt::Key_Escape);
    });
    form.exec();
    EXPECT_EQ(field.text(), deep.chopped(1));
}

TEST_F(FsauvTest, ARunThatFailsAltogetherIsARunAllTheSame)
{
    ASSERT_TRUE(QFile::remove(station.journalFile()));
    station.host.expectMessage(sansJournal(station.folder()));
    station.host.expectMessage("la réouverture de la base de données " + station.folder() +
                               "velmoralog.mdb ne peut s'effectuer normalement! => fermeture du logiciel");
    station.host.expectMessage(
        "La sauvegarde n'est pas complète.\n"
        "velmora.mdb n'est pas copié : aucun fichier ne peut être écrit dans /proc.\n"
        "velmoralog.mdb n'est pas copié : aucun fichier ne peut être écrit dans /proc.");
    Fsauv form(session);
    onModal([&](QWidget &dialog) { EXPECT_TRUE(answer(dialog, "/proc", Qt::Key_Return)); });
    form.exec();
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_FALSE(form.rouvertes());
}

} // namespace
} // namespace velmora::test
