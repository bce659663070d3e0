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

TEST(SaisabsTest, AWholeYearOpensOnItsFirstDateAndARefusalLeavesTheFocusWhereItWas)
{
    Workstation station;
    Session &session = station.session;
    station.addCode(QStringLiteral("CP"), 0);
    prepareAbsence(session, QStringLiteral("ANNE & <b>C°"), 1, {2026, 1, 1}, QDate(2026, 12, 30));
    session.abscode = QStringLiteral("CP");
    session.dlgvalide = true;
    Saisabs form(session);
    form.show();
    form.activateWindow();
    auto &from = control<QLineEdit>(form, "Text1");
    auto &codes = control<QComboBox>(form, "Combo1");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return codes.currentIndex() == 0 && from.hasFocus() && from.hasSelectedText(); }));
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(form.windowTitle(), QStringLiteral("ANNE & <b>C°  pour  CP"));
    QTest::keyClicks(&from, QStringLiteral("04062026"));
    QTest::keyClick(&from, Qt::Key_Return);
    QTest::keyClicks(&control<QLineEdit>(form, "Text3"), QStringLiteral("04062026"));
    QTest::keyClick(&control<QLineEdit>(form, "Text3"), Qt::Key_Down);
    station.host.expectMessage(QStringLiteral("Date fin < date de début !"));
    QTest::keyClick(&codes, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible() && codes.hasFocus());
    codes.setCurrentIndex(-1);
    station.host.expectMessage(QStringLiteral("Code absence non sélectionné"));
    QTest::mouseClick(&control<QPushButton>(form, "Command1"), Qt::LeftButton);
    QTest::mouseClick(&control<QPushButton>(form, "Command3"), Qt::LeftButton);
    EXPECT_TRUE(station.host.opened.value(0).endsWith(QStringLiteral("absences-conges.htm")));
    QTest::mouseClick(&control<QPushButton>(form, "Command2"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.base.absences.recordCount(), 0);
}

} // namespace
} // namespace velmora::test
