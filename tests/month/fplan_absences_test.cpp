#include "absences/saisabs.h"
#include "month/open_form.h"
#include "support/modal.h"
#include "workstation/toolbar_state.h"

#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QMenu>

namespace velmora::test
{
namespace
{

class FplanAbsences : public FplanTest
{
protected:
    void SetUp() override
    {
        FplanTest::SetUp();
        station.addCode(QStringLiteral(" R"), 7 * 60, QStringLiteral("Repos"));
        station.addCode(QStringLiteral("CP"), 0, QStringLiteral("Congés payés"));
        for (int day = 8; day <= 12; ++day)
            station.addDay(1, QDate(2026, 6, day), 480, 960);
        openMonth();
    }
    QLineEdit *code() { return form->findChild<QLineEdit *>(QStringLiteral("Text1")); }
    bool frame() { return form->findChild<QFrame *>(QStringLiteral("Frame2"))->isVisible(); }
    QString cells(int from, int to)
    {
        QStringList texts;
        for (int day = from; day <= to; ++day)
            texts << cell(1, QDate(2026, 6, day));
        return texts.join(QLatin1Char(' '));
    }
    /// Drags over days of the first line.
    void drag(const QDate &from, const QDate &to)
    {
        const QPoint end = at(1, to);
        QTest::mousePress(grid()->viewport(), Qt::LeftButton, {}, at(1, from));
        QMouseEvent move(QEvent::MouseMove, end, grid()->viewport()->mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(grid()->viewport(), &move);
        QTest::mouseRelease(grid()->viewport(), Qt::LeftButton, {}, end);
        settle();
    }
    QAction *entry(const char *name) { return form->findChild<QAction *>(QLatin1String(name)); }
    void backToTheGrid()
    {
        form->activateWindow(); // as a window manager does when the dialog has gone
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == form.get(); }));
        EXPECT_FALSE(code()->isVisible());
        EXPECT_FALSE(frame());
        EXPECT_TRUE(grid()->isEnabled());
        EXPECT_TRUE(grid()->hasFocus());
        EXPECT_TRUE(planning().suivi);
        EXPECT_FALSE(planning().selection.selact);
    }
};

const QString eight = QStringLiteral("8h00 - 16h00");

TEST_F(FplanAbsences, ACodeTypedInACellPlacesAnAbsenceWithItsValueAndUndoAndRedoShowIt)
{
    click(1, QDate(2026, 6, 8));
    const int line = planning().grille.ligneDe(1);
    const int week = column(QDate(2026, 6, 14)) + 1;
    EXPECT_EQ(planning().grille.lit(line, week).texte, QStringLiteral(" 40h00"));
    QTest::keyClicks(grid(), QStringLiteral("r"));
    bool opened = false;
    withDialog<Saisabs>([&](Saisabs &dialog) {
        opened = true;
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("ANNE  pour   R"));
        EXPECT_TRUE(code()->isVisible()) << "the cell's field stays under the dialog";
        EXPECT_TRUE(frame());
        EXPECT_EQ(control<QLineEdit>(dialog, "Text1").text(), QStringLiteral("08/06/2026"));
        EXPECT_TRUE(control<QLineEdit>(dialog, "Text3").hasFocus());
        QTest::keyClicks(&control<QLineEdit>(dialog, "Text3"), QStringLiteral("11062026"));
        QTest::keyClick(&control<QLineEdit>(dialog, "Text3"), Qt::Key_Return);
        EXPECT_TRUE(control<QComboBox>(dialog, "Combo1").hasFocus());
        QTest::keyClick(&control<QComboBox>(dialog, "Combo1"), Qt::Key_Return);
    });
    QTest::keyClick(code(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(opened);
    backToTheGrid();
    EXPECT_EQ(cells(8, 11), "R R R " + eight);
    EXPECT_EQ(status(), QStringLiteral("ABS: R Repos [7h00]"));
    EXPECT_EQ(planning().grille.lit(line, week).texte, QStringLiteral(" 37h00"));
    EXPECT_EQ(session.saisligne, 0);
    EXPECT_EQ(session.absligne, 1);

    const QString label = QStringLiteral("absence saisie pour ANNE du 08 au 10/06/2026");
    station.host.expectQuestion(QStringLiteral("invalider : ") + label, true);
    QTest::keyClick(grid(), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(cells(8, 9), eight + ' ' + eight);
    EXPECT_EQ(planning().grille.lit(line, week).texte, QStringLiteral(" 40h00"));
    station.host.expectQuestion(QStringLiteral("revalider ") + label, true);
    QTest::keyClick(grid(), Qt::Key_Y, Qt::ControlModifier);
    settle();
    EXPECT_EQ(cells(8, 11), "R R R " + eight);
}

TEST_F(FplanAbsences, TwoLettersOpenTheEntryAndEscapeWritesNothing)
{
    click(1, QDate(2026, 6, 9));
    QTest::keyClicks(grid(), QStringLiteral("c"));
    withDialog<Saisabs>([](Saisabs &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::keyClicks(code(), QStringLiteral("p"));
    settle();
    backToTheGrid();
    EXPECT_EQ(session.abscode, QStringLiteral("CP"));
    EXPECT_EQ(session.base.absences.recordCount(), 0);
    EXPECT_FALSE(session.peutannul);
}

TEST_F(FplanAbsences, TheMenuAndTheButtonTakeTheSelectionAndForgetTheCodeTyped)
{
    struct Case {
        std::function<void()> ask;
        bool validate;
        QString shown;
    };
    const Case cases[] = {
        {[this] { entry("mnuabs")->trigger(); }, false, eight},
        {[this] { form->command(QStringLiteral("absence")); }, true, QStringLiteral("CP")},
    };
    for (const Case &one : cases) {
        session.abscode = QStringLiteral(" R");
        drag(QDate(2026, 6, 8), QDate(2026, 6, 10));
        ASSERT_TRUE(planning().selection.selact);
        bool opened = false;
        withDialog<Saisabs>([&](Saisabs &dialog) {
            opened = true;
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("ANNE  pour  "));
            EXPECT_EQ(control<QLineEdit>(dialog, "Text1").text(), QStringLiteral("08/06/2026"));
            EXPECT_EQ(control<QLineEdit>(dialog, "Text3").text(), QStringLiteral("11/06/2026"));
            auto &codes = control<QComboBox>(dialog, "Combo1");
            EXPECT_TRUE(codes.hasFocus());
            EXPECT_EQ(codes.currentIndex(), -1);
            QTest::keyClicks(&codes, QStringLiteral("c"));
            QTest::keyClick(&dialog, one.validate ? Qt::Key_Return : Qt::Key_Escape);
        });
        one.ask();
        QTest::qWait(150);
        settle();
        EXPECT_TRUE(opened);
        backToTheGrid();
        EXPECT_EQ(cell(1, QDate(2026, 6, 10)), one.shown);
        EXPECT_EQ(cell(1, QDate(2026, 6, 11)), eight);
        EXPECT_NE(planning().grille.lit(planning().grille.ligneDe(1), column(QDate(2026, 6, 9))).fond,
                  palette::fondSelection);
    }
    // On the absence itself the commands of hours are shut and a new absence is open.
    click(1, QDate(2026, 6, 8));
    EXPECT_FALSE(entry("mnucopier")->isEnabled());
    EXPECT_TRUE(entry("mnuabs")->isEnabled());
    click(2, QDate(2026, 6, 11));
    EXPECT_FALSE(entry("mnuabs")->isEnabled()) << "a day on which the line is closed";
}

} // namespace
} // namespace velmora::test
