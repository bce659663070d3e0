#include "absences/saisabs.h"

#include "support/modal.h"
#include "support/workstation.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace velmora::test
{
namespace
{

class SaisabsTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    std::unique_ptr<Saisabs> form;

    void open(const QString &code, const QDate &from, const QDate &to)
    {
        station.addCode(QStringLiteral("CP"), 0);
        prepareAbsence(session, QStringLiteral("ANNE & <b>C°"), 1, from, to);
        session.abscode = code;
        session.dlgvalide = true;
        form = std::make_unique<Saisabs>(session);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return !form->findChild<QTimer *>(QStringLiteral("Timer1"))->isActive(); }));
    }
    QLineEdit &text(const char *name) { return control<QLineEdit>(*form, name); }
};

TEST_F(SaisabsTest, ARefusalLeavesItOpenWithTheFocusWhereItWas)
{
    open(QStringLiteral("CP"), {2026, 6, 3}, {2026, 6, 3});
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("ANNE & <b>C°  pour  CP"));
    QTest::keyClicks(&text("Text3"), QStringLiteral("03062026"));
    station.host.expectMessage(QStringLiteral("Date fin < date de début !"));
    QTest::keyClick(&text("Text3"), Qt::Key_Down); // on to the codes
    QTest::keyClick(&control<QComboBox>(*form, "Combo1"), Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(control<QComboBox>(*form, "Combo1").hasFocus());
    EXPECT_FALSE(session.dlgvalide);
    control<QComboBox>(*form, "Combo1").setCurrentIndex(-1);
    station.host.expectMessage(QStringLiteral("Code absence non sélectionné"));
    QTest::mouseClick(&control<QPushButton>(*form, "Command1"), Qt::LeftButton);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(session.base.absences.recordCount(), 0);
}

TEST_F(SaisabsTest, AWholeYearOpensOnItsFirstDateAndOneDayHasItsReturnOnTheNext)
{
    open(QStringLiteral("CP"), {2026, 1, 1}, {2026, 12, 30});
    EXPECT_TRUE(text("Text1").hasFocus());
    EXPECT_EQ(text("Text1").selectedText(), QStringLiteral("01/01/2026"));
    QTest::keyClicks(&text("Text1"), QStringLiteral("04/06/2026"));
    QTest::keyClick(&text("Text1"), Qt::Key_Return);
    QTest::keyClicks(&text("Text3"), QStringLiteral("05062026"));
    QTest::mouseClick(&control<QPushButton>(*form, "Command1"), Qt::LeftButton);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(session.dlgvalide);
    ASSERT_TRUE(session.base.absences.first());
    EXPECT_EQ(session.base.absences.row().datedeb, QDate(2026, 6, 4));
    EXPECT_EQ(session.base.absences.row().datefin, QDate(2026, 6, 4));
}

TEST_F(SaisabsTest, HelpOpensItsPageAndCancelWritesNothing)
{
    open({}, {2026, 6, 3}, {2026, 6, 3});
    QTest::mouseClick(&control<QPushButton>(*form, "Command3"), Qt::LeftButton);
    EXPECT_TRUE(station.host.opened.value(0).endsWith(QStringLiteral("absences-conges.htm")));
    QTest::mouseClick(&control<QPushButton>(*form, "Command2"), Qt::LeftButton);
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(session.base.absences.recordCount(), 0);
}

} // namespace
} // namespace velmora::test
