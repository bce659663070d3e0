#include "absences/fcodabs.h"
#include "absences/majcodabs.h"

#include "session/records.h"
#include "support/modal.h"
#include "support/workstation.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace velmora::test
{
namespace
{

class CodesForms : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    template <class Form> static void show(Form &form)
    {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    /// Types where the focus is.
    static void keys(const char *text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }
    static void key(Qt::Key which) { QTest::keyClick(QApplication::focusWidget(), which); }
    /// Acts on the editor that the next call opens, once it has the keyboard.
    static void onEditor(std::function<void(QWidget &)> act)
    {
        onModal([act = std::move(act)](QWidget &editor) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &editor; }));
            act(editor);
        });
    }
    static void press(const QWidget &form, const char *name)
    {
        QTest::mouseClick(&control<QPushButton>(form, name), Qt::LeftButton);
    }
    static QStringList shown(const QWidget &form)
    {
        QStringList rows;
        const auto &list = control<QListWidget>(form, "List1");
        for (int row = 0; row < list.count(); ++row)
            rows << list.item(row)->text();
        return rows;
    }
    static QRgb colour(const QWidget &form, QPalette::ColorRole role)
    {
        return control<QLineEdit>(form, "Text1").palette().color(role).rgb();
    }
};

TEST_F(CodesForms, ANewCodeIsTypedColouredAndStoredThenSelectedInTheList)
{
    station.addCode(QStringLiteral("CP"), 0, QStringLiteral("Congés payés"));
    Fcodabs list(session);
    show(list);
    EXPECT_EQ(list.windowTitle(), QStringLiteral("Définition des Absences"));
    EXPECT_EQ(control<QGroupBox>(list, "Frame1").title(), QStringLiteral("Absence Sélectionnée"));
    EXPECT_FALSE(control<QPushButton>(list, "Command6").isEnabled()) << "no print is plugged";
    onEditor([&](QWidget &editor) {
        EXPECT_EQ(editor.windowTitle(), QStringLiteral("NOUVEAU CODE ABSENCE"));
        auto &code = control<QLineEdit>(editor, "mcodabs");
        EXPECT_TRUE(code.hasFocus());
        keys("a");
        EXPECT_EQ(code.text(), QStringLiteral(" A"));
        keys("b");
        EXPECT_EQ(code.text(), QStringLiteral("AB"));
        keys("x");
        EXPECT_EQ(code.text(), QStringLiteral("AB"));
        key(Qt::Key_Backspace);
        EXPECT_EQ(code.text(), QStringLiteral(" A"));
        keys("t");
        key(Qt::Key_Return);
        keys("Acc. travail");
        key(Qt::Key_Return);
        keys("Accident du travail");
        station.host.expectMessage(QStringLiteral("Valorisation de l'absence !"));
        press(editor, "Command1");
        auto &value = control<QLineEdit>(editor, "Text2");
        EXPECT_FALSE(value.isEnabled());
        EXPECT_EQ(value.text(), QStringLiteral("7h00"));
        control<QRadioButton>(editor, "Option1_2").click();
        EXPECT_EQ(value.text(), QStringLiteral("0h00"));
        control<QRadioButton>(editor, "Option1_1").click();
        EXPECT_TRUE(value.isEnabled());
        EXPECT_EQ(value.text(), QStringLiteral("0h00"));
        value.setFocus();
        value.selectAll();
        keys("0730");
        EXPECT_FALSE(control<QPushButton>(editor, "Command3").isEnabled());
        control<QCheckBox>(editor, "Check1").click();
        onModal([](QWidget &picker) {
            auto &colours = dynamic_cast<QColorDialog &>(picker);
            colours.setCurrentColor(QColor(0xf0, 0xb6, 0xcf));
            colours.accept();
        });
        press(editor, "Command3");
        EXPECT_EQ(colour(editor, QPalette::Base), 0xfff0b6cf);
        onModal([](QWidget &picker) { dynamic_cast<QColorDialog &>(picker).reject(); });
        press(editor, "Command4");
        EXPECT_EQ(colour(editor, QPalette::Text), 0xff000000);
        press(editor, "Command1");
    });
    press(list, "Command3");
    EXPECT_EQ(shown(list), (QStringList{"AT\tAccident du travail", "CP\tCongés payés"}));
    EXPECT_EQ(control<QListWidget>(list, "List1").currentRow(), 0);
    EXPECT_EQ(control<QLabel>(list, "Label2").text(), QStringLiteral("Acc. travail"));
    EXPECT_EQ(colour(list, QPalette::Base), 0xfff0b6cf);
    ASSERT_TRUE(cherchecode(session, QStringLiteral("AT")));
    EXPECT_EQ(session.base.codabs.row().modabs, 450);
}

TEST_F(CodesForms, ADoubleClickOrEnterChangesTheSelectedCodeAndArchivingMovesItDown)
{
    station.addCode(QStringLiteral("CP"), std::nullopt, QStringLiteral("Congés payés"));
    station.addCode(QStringLiteral("MA"), -1, QStringLiteral("Maladie"));
    ASSERT_TRUE(session.base.engine.execute("UPDATE codabs SET libecour = 'Court'").ok());
    Fcodabs list(session);
    show(list);
    auto &rows = control<QListWidget>(list, "List1");
    rows.setFocus();
    onEditor([&](QWidget &editor) {
        EXPECT_EQ(editor.windowTitle(), QStringLiteral("MISE A JOUR DU CODE ABSENCE"));
        EXPECT_FALSE(control<QLineEdit>(editor, "mcodabs").isEnabled());
        EXPECT_EQ(control<QLineEdit>(editor, "mcodabs").text(), QStringLiteral("CP"));
        EXPECT_TRUE(control<QRadioButton>(editor, "Option1_0").isChecked()) << "a code without a valuation";
        control<QCheckBox>(editor, "Check3").click();
        key(Qt::Key_Return);
        key(Qt::Key_Return);
        key(Qt::Key_Return); // through the labels to OK
    });
    QTest::keyClick(&rows, Qt::Key_Return);
    EXPECT_EQ(shown(list), (QStringList{"MA\tMaladie", "CP\tCongés payés"}));
    EXPECT_EQ(rows.currentRow(), 1);
    EXPECT_TRUE(control<QLabel>(list, "Label4").isVisible());
    EXPECT_EQ(list.focusWidget(), &rows);
    QTest::keyClick(&rows, Qt::Key_Up);
    EXPECT_FALSE(control<QLabel>(list, "Label4").isVisible());
    bool opened = false;
    onEditor([&](QWidget &editor) {
        opened = true;
        EXPECT_TRUE(control<QRadioButton>(editor, "Option1_2").isChecked());
        QTest::keyClick(&editor, Qt::Key_Escape);
    });
    const QPoint first = rows.visualItemRect(rows.item(0)).center();
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(rows.viewport(), Qt::LeftButton, {}, first);
    EXPECT_TRUE(opened);
}

TEST_F(CodesForms, DeletionAsksAndSelectsTheNeighbourAndAnEmptyListOnlyAdds)
{
    const QString question = QStringLiteral("Supprimer ce code absence ?");
    for (const char *code : {"AA", "BB"})
        station.addCode(QLatin1String(code), 0);
    bool printed = false;
    Fcodabs list(session, [&](Session &, QWidget *) { printed = true; });
    show(list);
    auto &rows = control<QListWidget>(list, "List1");
    rows.setFocus();
    QTest::keyClick(&rows, Qt::Key_Down);
    station.host.expectQuestion(question, false);
    press(list, "Command5");
    EXPECT_EQ(control<QLabel>(list, "Label1").text(), QStringLiteral("BB"));
    station.host.expectQuestion(question, true);
    QTest::keyClick(&rows, Qt::Key_Delete);
    EXPECT_EQ(control<QLabel>(list, "Label1").text(), QStringLiteral("AA"));
    station.host.expectQuestion(question, true);
    press(list, "Command5");
    EXPECT_EQ(rows.count(), 0);
    EXPECT_FALSE(control<QPushButton>(list, "Command4").isEnabled());
    EXPECT_FALSE(control<QPushButton>(list, "Command5").isEnabled());
    EXPECT_TRUE(control<QPushButton>(list, "Command3").isDefault());
    press(list, "Command6");
    EXPECT_TRUE(printed);
    press(list, "Caid");
    EXPECT_TRUE(station.host.opened.value(0).endsWith(QStringLiteral("codes-absences.htm")));
    press(list, "Command8");
    EXPECT_FALSE(list.isVisible());
}

} // namespace
} // namespace velmora::test
