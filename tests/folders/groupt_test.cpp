#include "folders/groupt.h"

#include "support/keyboard.h"
#include "support/modal.h"
#include "support/raw_sqlite.h"
#include "support/workstation.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace velmora::test
{
namespace
{

QStringList texts(QWidget &form, const char *list)
{
    QStringList found;
    auto &rows = control<QListWidget>(form, list);
    for (int row = 0; row < rows.count(); ++row)
        found << rows.item(row)->text();
    return found;
}

class GrouptTest : public testing::Test
{
protected:
    Workstation station{QDate(2026, 6, 15)};
    Session &session = station.session;
    std::unique_ptr<Groupt> form;

    void addLines()
    {
        station.addLine(1, "ZOLA Émile");
        station.addLine(2, "aragon Louis", {2021, 3, 4}, {2022, 1, 1});
        station.addLine(3, "Éluard Paul");
    }
    void addRow(const QString &groupe, int nump)
    {
        ASSERT_TRUE(session.base.groupe.addNew().ok());
        session.base.groupe.values() = {groupe, nump, nump > 0};
        ASSERT_TRUE(session.base.groupe.update().ok());
    }
    void open()
    {
        form = std::make_unique<Groupt>(session);
        activate(*form);
    }
    void select(int row) { control<QListWidget>(*form, "List1").setCurrentRow(row); }
    bool enabled(const char *button) { return control<QPushButton>(*form, button).isEnabled(); }
    static void ok(QWidget &entry)
    {
        QTest::mouseClick(&control<QPushButton>(entry, "Command1"), Qt::LeftButton);
    }
    static void tick(QWidget &entry, int row, bool ticked = true)
    {
        control<QListWidget>(entry, "List1").item(row)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    }
    QStringList stored()
    {
        return RawSqlite(station.mainFile())
            .rows("SELECT '<' || groupe || '>', nump, sel FROM groupe ORDER BY groupe, nump");
    }
};

TEST_F(GrouptTest, AFolderIsMadeByKeys)
{
    addLines();
    open();
    EXPECT_FALSE(enabled("Command4") || enabled("Command5"));
    station.host.expectMessage("donner une appellation au dossier !");
    inDialog(*form, "Command3", [](QWidget &entry) {
        EXPECT_EQ(texts(entry, "List1"), (QStringList{"aragon Louis 04/03/2021", "Éluard Paul 01/01/2020",
                                                      "ZOLA Émile 01/01/2020"}));
        EXPECT_EQ(focusName(), "Text1");
        type("  ");
        ok(entry);
        EXPECT_EQ(focusName(), "Text1");
        type("équipe de nuit n° 2");
        press(Qt::Key_Return);
        EXPECT_EQ(focusName(), "List1");
        press(Qt::Key_Space);
        press(Qt::Key_End);
        press(Qt::Key_Space);
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(stored(),
              (QStringList{"<ÉQUIPE DE NUIT>|1|-1", "<ÉQUIPE DE NUIT>|2|-1", "<ÉQUIPE DE NUIT >|0|0"}));
    EXPECT_EQ(texts(*form, "List1"), QStringList{"ÉQUIPE DE NUIT "});
    EXPECT_EQ(control<QListWidget>(*form, "List1").selectedItems().size(), 1) << "found again and selected";
}

TEST_F(GrouptTest, ANameWithBlanksKeepsThemInItsHeadRowOnly)
{
    addLines();
    addRow(" A ", 0);
    addRow("A", 2);
    open();
    select(0);
    EXPECT_TRUE(texts(*form, "List2").isEmpty()) << "the window compares the name exactly";
    inDialog(*form, "Command4", [](QWidget &entry) {
        EXPECT_EQ(control<QListWidget>(entry, "List1").item(0)->checkState(), Qt::Checked);
        tick(entry, 2);
        ok(entry);
    });
    EXPECT_EQ(stored(), (QStringList{"< A >|0|0", "<A>|1|-1", "<A>|2|-1"}));
    EXPECT_EQ(session.base.groupe.row().groupe, " A ");
}

TEST_F(GrouptTest, TheCompositionChangesButNotTheName)
{
    addLines();
    for (const int nump : {0, 1, 2, 99})
        addRow("NUIT", nump);
    open();
    select(0);
    EXPECT_EQ(control<QLabel>(*form, "mgroup").text(), "NUIT");
    EXPECT_EQ(texts(*form, "List2"), (QStringList{"ZOLA Émile  01/01/2020", "aragon Louis  04/03/2021"}));
    inDialog(*form, "Command4", [](QWidget &entry) {
        EXPECT_EQ(control<QLineEdit>(entry, "Text1").text(), "NUIT");
        EXPECT_FALSE(control<QLineEdit>(entry, "Text1").isEnabled());
        tick(entry, 0, false);
        tick(entry, 1);
        ok(entry);
    });
    EXPECT_EQ(texts(*form, "List2"), (QStringList{"ZOLA Émile  01/01/2020", "Éluard Paul  01/01/2020"}));
    EXPECT_EQ(stored(), (QStringList{"<NUIT>|0|0", "<NUIT>|1|-1", "<NUIT>|3|-1", "<NUIT>|99|-1"}))
        << "a member whose line is gone stays";
}

TEST_F(GrouptTest, AFolderWithoutLinesIsAskedAboutAndItsNameMustBeNew)
{
    addLines();
    addRow("NUIT", 0);
    open();
    const QString question = " aucune ligne n'est sélectée : continuer ?";
    station.host.expectMessage("dossier déjà défini - changez la désignation !");
    station.host.expectQuestion(question, false);
    station.host.expectQuestion(question, true);
    inDialog(*form, "Command3", [](QWidget &entry) {
        type(" NUIT ");
        ok(entry);
        control<QLineEdit>(entry, "Text1").setText("JOUR");
        ok(entry);
        EXPECT_TRUE(entry.isVisible());
        ok(entry);
    });
    EXPECT_EQ(station.host.titles, (QStringList{"Velmora", "Velmora", "Velmora"}));
    EXPECT_EQ(texts(*form, "List1"), (QStringList{"JOUR", "NUIT"}));
    EXPECT_TRUE(control<QGroupBox>(*form, "Frame1").isVisible());
    EXPECT_EQ(control<QLabel>(*form, "mgroup").text(), "JOUR");
}

TEST_F(GrouptTest, AHeadRowThatHasGoneComesBackBeforeAnythingIsConfirmed)
{
    addLines();
    addRow("NUIT", 0);
    addRow("NUIT", 3);
    open();
    select(0);
    ASSERT_TRUE(RawSqlite(station.mainFile()).run("DELETE FROM groupe WHERE nump = 0"));
    inDialog(*form, "Command4", [](QWidget &) { press(Qt::Key_Escape); });
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(stored(), (QStringList{"<NUIT>|0|0", "<NUIT>|3|-1"}));
}

TEST_F(GrouptTest, WithoutLinesTheDialogSaysSoAndCloses)
{
    addRow("NUIT", 0);
    open();
    select(0);
    for (const char *button : {"Command3", "Command4"}) {
        station.host.expectMessage("vous devez saisir les lignes préalablement");
        session.dlgvalide = true;
        onModal([](QWidget &entry) { EXPECT_TRUE(QTest::qWaitFor([&] { return !entry.isVisible(); })); });
        pressButton(*form, button);
        EXPECT_FALSE(session.dlgvalide);
    }
}

TEST_F(GrouptTest, AFolderIsDeletedWithAllItsRowsAfterAQuestion)
{
    addLines();
    for (const int nump : {0, 1, 99})
        addRow("NUIT", nump);
    addRow("NUIT 2", 0);
    open();
    for (const bool answer : {false, true}) {
        select(0);
        station.host.expectQuestion("Supprimer le dossier NUIT ?", answer);
        pressButton(*form, "Command5");
        EXPECT_EQ(enabled("Command5"), !answer);
        EXPECT_EQ(stored().size(), answer ? 1 : 4);
    }
    EXPECT_EQ(station.host.titles, (QStringList{"VELMORA", "VELMORA"}));
    EXPECT_EQ(texts(*form, "List1"), QStringList{"NUIT 2"});
    EXPECT_FALSE(control<QGroupBox>(*form, "Frame1").isVisible());
}

TEST_F(GrouptTest, LettersPressTheCommandsAndHelpOpensTheWindowsOwnPage)
{
    addLines();
    addRow("NUIT", 0);
    open();
    press(Qt::Key_F1);
    EXPECT_TRUE(station.host.opened.value(0).endsWith("dossiers.htm"));
    press(Qt::Key_Space);
    station.host.expectQuestion("Supprimer le dossier NUIT ?", true);
    press(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return stored().isEmpty(); }));
    press(Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form->isVisible(); }));
}

} // namespace
} // namespace velmora::test
