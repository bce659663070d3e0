#include "lines/flig.h"
#include "lines/fligc.h"
#include "lines/fligf.h"
#include "lines/fligr.h"
#include "lines/fligs.h"

#include "support/modal.h"
#include "support/workstation.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace velmora::test
{
namespace
{

class LineDialogsTest : public testing::Test
{
protected:
    Workstation station{QDate(2026, 6, 15)};
    Session &session = station.session;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE & <b>FILS"));
        station.addLine(2, QStringLiteral("BRUNO"));
        session.dlgvalide = true;
    }
    Ligne line(int nump)
    {
        session.base.ligmois.setIndex("ligmois01");
        EXPECT_TRUE(session.base.ligmois.seek(store::Cmp::Eq, {nump}));
        return session.base.ligmois.row();
    }
    static void show(QDialog &form)
    {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    static QString text(const QDialog &form, const char *name)
    {
        return control<QLineEdit>(form, name).text();
    }
    static std::string focus() { return QApplication::focusWidget()->objectName().toStdString(); }
    /// Types where the focus is.
    static void type(const char *keys) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(keys)); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    static void click(const QDialog &form, const char *name)
    {
        auto &button = control<QAbstractButton>(form, name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, {8, button.height() / 2});
    }
    /// Which of Text3 to Text9 can be typed in, as digits.
    static std::string enabled(const QDialog &form)
    {
        std::string fields;
        for (char number = '3'; number <= '9'; ++number)
            if (control<QLineEdit>(form, qPrintable(QStringLiteral("Text%1").arg(QLatin1Char(number))))
                    .isEnabled())
                fields += number;
        return fields;
    }
    static std::string values(const QDialog &form)
    {
        QStringList shown;
        for (int number = 3; number <= 9; ++number)
            shown << text(form, qPrintable(QStringLiteral("Text%1").arg(number)));
        return shown.join(u' ').toStdString();
    }
};

TEST_F(LineDialogsTest, ANewLineIsTypedByKeysAlone)
{
    Flig form(session);
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(form.windowTitle(), "Ouvrir une ligne de planning");
    EXPECT_EQ(text(form, "Text2"), "15/06/2026");
    EXPECT_EQ(values(form), "48h00 10h00 13h00 11h00 4 1 20");
    EXPECT_EQ(enabled(form), "");
    show(form);
    EXPECT_EQ(focus(), "Text1");
    type("claire");
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "Text2");
    type("01072026");
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "Check1");
    press(Qt::Key_Space);
    EXPECT_EQ(enabled(form), "3456");
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "Text3");
    type("3500");
    for (int i = 0; i < 4 && focus() != "Command1"; ++i)
        press(Qt::Key_Return);
    EXPECT_EQ(focus(), "Command1") << "the fields that are off are passed over";
    press(Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(session.dlgvalide);
    const Ligne opened = line(3);
    EXPECT_EQ(opened.nom, "CLAIRE");
    EXPECT_EQ(opened.datedeb, QDate(2026, 7, 1));
    EXPECT_EQ(opened.maxs, 2100);
    EXPECT_EQ(opened.nrep, 0);
}

TEST_F(LineDialogsTest, ARefusalLeavesTheDialogOpenOnItsField)
{
    Flig form(session);
    show(form);
    type("BRUNO");
    station.host.expectMessage(QStringLiteral("Nom déjà attribué pour cette période !"));
    click(form, "Command1");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(focus(), "Text1");
    type("CLAIRE");
    EXPECT_EQ(text(form, "Text1"), "CLAIRE") << "the refused name was selected";
    click(form, "Check2");
    control<QLineEdit>(form, "Text7").setText(QStringLiteral("1"));
    station.host.expectMessage(QStringLiteral("Plus de repos contigüs que de repos totaux !"));
    click(form, "Command1");
    EXPECT_EQ(focus(), "Text8");
    click(form, "Command3");
    EXPECT_TRUE(station.host.opened.value(0).endsWith(QStringLiteral("liggest.htm")));
    press(Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(session.base.ligmois.recordCount(), 2);
}

TEST_F(LineDialogsTest, EachSwitchOpensItsFieldsAndKeepsWhatWasTyped)
{
    Fligc form(session, line(1));
    show(form);
    EXPECT_EQ(control<QLabel>(form, "Label2").text(), "Ligne : ANNE & <b>FILS");
    EXPECT_EQ(values(form), "48h00 10h00 13h00 11h00 4 1 20");
    EXPECT_EQ(enabled(form), "");
    EXPECT_TRUE(control<QRadioButton>(form, "Option1_0").isChecked());
    click(form, "Check3");
    EXPECT_EQ(enabled(form), "");
    click(form, "Option1_1");
    EXPECT_EQ(enabled(form), "9");
    click(form, "Check2");
    EXPECT_EQ(enabled(form), "789");
    click(form, "Check1");
    EXPECT_EQ(enabled(form), "3456789");
    control<QLineEdit>(form, "Text4").setText(QStringLiteral("9h30"));
    click(form, "Check1");
    click(form, "Option1_0");
    EXPECT_EQ(enabled(form), "78");
    click(form, "Check1");
    EXPECT_EQ(text(form, "Text4"), "9h30");
    click(form, "Check1");
    click(form, "Check2");
    click(form, "Command1");
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(line(1).maxj, 0) << "zeros are stored, not the values shown";
    EXPECT_TRUE(line(1).b6j);
}

TEST_F(LineDialogsTest, AControlledLineIsShownAsItIsAndOkChangesNothing)
{
    Ligne limited = line(1);
    limited.bcontrolh = limited.bcontrolr = limited.bcontrolp = limited.b6j = true;
    limited.maxs = 6750; // longer than the field takes from the keyboard
    limited.maxj = 0;
    limited.ampj = 720;
    limited.reposmin = 1500;
    limited.nrep = 3;
    limited.pause = 120;
    ASSERT_TRUE(session.base.ligmois.edit().ok());
    session.base.ligmois.values() = limited;
    ASSERT_TRUE(session.base.ligmois.update().ok());
    Fligc form(session, line(1));
    show(form);
    EXPECT_EQ(values(form), "112h30 0h00 12h00 25h00 3 0 120");
    EXPECT_EQ(enabled(form), "3456789");
    station.host.expectQuestion(QStringLiteral("Valeur maxi semaine anormalement basse! Continuer ?"), true);
    click(form, "Command1");
    const Ligne kept = line(1);
    EXPECT_EQ(kept.maxs, 6750);
    EXPECT_EQ(kept.reposmin, 1500);
    EXPECT_EQ(kept.pause, 120);
    EXPECT_TRUE(kept.b6j && kept.bcontrolp);
}

TEST_F(LineDialogsTest, ClosingRenamingAndDeletingShowTheirLine)
{
    Fligf closing(session, line(1));
    EXPECT_EQ(closing.windowTitle(), "Ouvrir une ligne de planning"); // as the dialog that opens one: wanted
    EXPECT_EQ(control<QLabel>(closing, "Label1").text(), "ANNE & <b>FILS");
    EXPECT_EQ(control<QLabel>(closing, "Label1").textFormat(), Qt::PlainText);
    show(closing);
    EXPECT_EQ(focus(), "Text2");
    type("10062026");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(line(1).datefin, QDate(2026, 6, 9));

    Fligr renaming(session, line(2));
    EXPECT_EQ(renaming.windowTitle(), "Renommer une ligne de planning");
    EXPECT_EQ(control<QLabel>(renaming, "Label1").text(), "Nom actuel: BRUNO");
    show(renaming);
    type("abcdefghijklmnopqr");
    click(renaming, "Command1");
    EXPECT_EQ(line(2).nom, "ABCDEFGHIJKLMNO");

    Fligs deleting(session, line(2));
    EXPECT_EQ(deleting.windowTitle(), "Supprimer une ligne de planning");
    EXPECT_EQ(control<QLabel>(deleting, "Label1").text(), "ABCDEFGHIJKLMNO");
    show(deleting);
    press(Qt::Key_Escape);
    EXPECT_FALSE(session.dlgvalide);
    show(deleting);
    press(Qt::Key_Return);
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(session.base.ligmois.recordCount(), 1);
}

} // namespace
} // namespace velmora::test
