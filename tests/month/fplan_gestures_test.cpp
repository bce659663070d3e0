#include "month/fplan.h"

#include "month/open_form.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

namespace velmora::test
{
namespace
{

/// Keys and mouse on the real grid.
class GesturesTest : public FplanTest
{
protected:
    QLineEdit *code() { return form->findChild<QLineEdit *>(QStringLiteral("Text1")); }
    QMenu *popup() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

    void rightClick(int nump, const QDate &date)
    {
        QTest::mouseClick(grid()->viewport(), Qt::RightButton, {}, at(nump, date));
        settle();
    }
    void move(const QPoint &to)
    {
        QMouseEvent event(QEvent::MouseMove, to, grid()->viewport()->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(grid()->viewport(), &event);
    }
    void wheel(int notches)
    {
        const QPointF place(20, 20);
        QWheelEvent event(place, grid()->viewport()->mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton,
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(grid()->viewport(), &event);
    }
};

TEST_F(GesturesTest, OnlyTheKeysFrom47To122OnADayOfTheLineStartACode)
{
    openMonth();
    const struct {
        QDate day;
        char key;
        bool starts;
    } cases[] = {{june3, '.', false}, {june3, '/', true},  {june3, '0', true},
                 {june3, 'z', true},  {june3, '{', false}, {QDate(2026, 6, 11), 'c', false}};
    for (const auto &[day, key, starts] : cases) {
        click(2, day); // BERNARD's line is closed after 10 June
        QTest::keyClick(grid(), key);
        EXPECT_EQ(code()->isVisible(), starts) << key;
        if (starts) QTest::keyClick(code(), Qt::Key_Escape);
        settle();
        EXPECT_TRUE(planning().suivi) << key;
    }
}

TEST_F(GesturesTest, ACodeLiesOverItsCellAndShutsCommandsMenusAndWheel)
{
    station.addCode(QStringLiteral("CP"), 0);
    for (int nump = 3; nump <= 40; ++nump)
        station.addLine(nump, QStringLiteral("LIGNE %1").arg(nump));
    openMonth();
    click(1, june3);
    QTest::keyClicks(grid(), QStringLiteral("x"));
    const QRect cell = grid()->rectCurseur();
    EXPECT_EQ(code()->geometry().size(), cell.size());
    EXPECT_EQ(code()->mapToGlobal(QPoint()), grid()->viewport()->mapToGlobal(cell.topLeft()));
    EXPECT_EQ(form->findChild<QLabel *>(QStringLiteral("Labeli2"))->text(),
              QStringLiteral("Terminer votre saisie                 <ESC>=abandon"));
    const auto menus = form->menuBarActions();
    EXPECT_FALSE(menus.first()->isEnabled());
    const int top = grid()->verticalScrollBar()->value();
    wheel(-1);
    EXPECT_EQ(grid()->verticalScrollBar()->value(), top);
    QTest::keyClick(code(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(menus.first()->isEnabled());
    wheel(-1);
    EXPECT_EQ(grid()->verticalScrollBar()->value(), top + 1);
    wheel(1);
    wheel(1);
    EXPECT_EQ(grid()->verticalScrollBar()->value(), top);
}

TEST_F(GesturesTest, TheRightButtonTakesTheCellUnderItAndItsMenuOpensBesideIt)
{
    openMonth();
    const QDate left(2026, 6, 16); // in view, in the left half
    click(1, left);
    for (const QDate &day : {left, left.addDays(7)}) {
        rightClick(2, day);
        EXPECT_EQ(planning().curseur, (Place{4, column(day)}));
        ASSERT_NE(popup(), nullptr);
        EXPECT_EQ(popup()->objectName(), QStringLiteral("maca"));
        const QRect cell = grid()->rectCurseur();
        const int x = grid()->viewport()->mapFromGlobal(popup()->pos()).x();
        if (cell.left() < grid()->viewport()->width() / 2)
            EXPECT_GT(x, cell.right());
        else
            EXPECT_LT(x, cell.left());
        popup()->close();
        settle();
    }
}

TEST_F(GesturesTest, ASelectionThatEndsOnATotalStopsAtTheLastDayBeforeIt)
{
    openMonth();
    const QDate sunday(2026, 6, 7);
    at(1, QDate(2026, 6, 9)); // brings the week into view
    const QPoint start = at(1, QDate(2026, 6, 5));
    const QPoint end = at(1, sunday);
    QTest::mousePress(grid()->viewport(), Qt::LeftButton, {}, start);
    move(end);
    const QPoint total = end + QPoint(grid()->columnWidth(grid()->columnAt(end.x())), 0);
    move(total);
    QTest::mouseRelease(grid()->viewport(), Qt::LeftButton, {}, total);
    settle();
    EXPECT_TRUE(planning().selection.selact);
    EXPECT_EQ(planning().selection.selfin, column(sunday));
    rightClick(2, QDate(2026, 6, 6)); // with a selection the right button moves nothing
    EXPECT_EQ(planning().curseur, (Place{3, column(QDate(2026, 6, 5))}));
    EXPECT_TRUE(planning().selection.selact);
    if (popup()) popup()->close();
}

TEST_F(GesturesTest, AClickOnADayThatShowsInPartMovesNothingUnderTheSecondClick)
{
    openMonth();
    const QDate day(2026, 6, 16);
    click(1, day);
    // The last column that shows, in part.
    const QPoint edge(grid()->viewport()->width() - 2, at(1, day).y());
    const int left = grid()->horizontalScrollBar()->value();
    const int under = grid()->columnAt(edge.x());
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, edge);
    settle();
    EXPECT_EQ(grid()->horizontalScrollBar()->value(), left);
    EXPECT_EQ(grid()->columnAt(edge.x()), under);
}

TEST_F(GesturesTest, ACodeAndAPasteBringTheirCellIntoView)
{
    for (int nump = 3; nump <= 60; ++nump)
        station.addLine(nump, QStringLiteral("LIGNE %1").arg(nump));
    openMonth();
    click(1, june3);
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    settle();
    for (const bool paste : {false, true}) {
        grid()->verticalScrollBar()->setValue(grid()->verticalScrollBar()->maximum());
        ASSERT_FALSE(grid()->rectCurseur().intersects(grid()->viewport()->rect()));
        if (paste) {
            QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
        } else {
            QTest::keyClicks(grid(), QStringLiteral("c"));
            EXPECT_TRUE(form->rect().contains(code()->geometry()));
            QTest::keyClick(code(), Qt::Key_Escape);
        }
        settle();
        EXPECT_TRUE(grid()->rectCurseur().intersects(grid()->viewport()->rect())) << paste;
    }
}

TEST_F(GesturesTest, NothingInterruptsADrag)
{
    openMonth();
    const QDate from(2026, 6, 3);
    click(1, from.addDays(2));
    const QPoint start = at(1, from);
    const QPoint end = at(1, from.addDays(2));
    QTest::mousePress(grid()->viewport(), Qt::LeftButton, {}, start);
    settle(); // the refresh that the move to the cell asked for
    EXPECT_FALSE(planning().suivi);
    move(end);
    QTest::keyClick(grid(), Qt::Key_Down);
    QTest::keyClick(grid(), Qt::Key_X, Qt::ControlModifier);
    move({-20, end.y()}); // over the names nothing changes
    EXPECT_EQ(planning().selection.selfin, column(from.addDays(2)));
    QTest::mouseRelease(grid()->viewport(), Qt::LeftButton, {}, end);
    settle();
    EXPECT_EQ(planning().selection.coulfond.size(), 3);
    EXPECT_EQ(session.base.sitper.recordCount(), 2);
    EXPECT_TRUE(planning().suivi);
}

TEST_F(GesturesTest, CommandsThatADayDoesNotAllowAreShutAndAnotherOperationEndsWhatWasHeld)
{
    openMonth();
    const auto entry = [this](const char *name) { return form->findChild<QAction *>(QLatin1String(name)); };
    click(2, QDate(2026, 6, 11));
    EXPECT_FALSE(entry("mnusup")->isEnabled());
    click(1, june3);
    EXPECT_TRUE(entry("mnusup")->isEnabled());
    entry("maccopier")->trigger();
    settle();
    EXPECT_TRUE(entry("mnucoller")->isEnabled());
    click(2, june3);
    station.host.expectQuestion(QStringLiteral("Suppression horaire(s) ?"), true);
    entry("mnusup")->trigger();
    settle();
    EXPECT_FALSE(entry("mnucoller")->isEnabled());
    click(1, june3);
    QTest::keyClick(grid(), Qt::Key_X, Qt::ControlModifier);
    settle();
    EXPECT_EQ(session.base.sitper.recordCount(), 0);
    EXPECT_TRUE(entry("maccolle")->isEnabled());
    // The small letters of the popup are its own.
    EXPECT_EQ(entry("maccopier")->text(), QStringLiteral("copier"));
    EXPECT_EQ(entry("maccolle")->text(), QStringLiteral("coller"));
    EXPECT_EQ(entry("maccoupe")->text(), QStringLiteral("Couper"));
    EXPECT_EQ(entry("mnuimpi")->text(), QStringLiteral("Planning de ANNE"));
}

TEST_F(GesturesTest, AHiddenDayIsPassedOverInTheDirectionOfTravel)
{
    openMonth();
    click(1, QDate(2026, 6, 9));
    planning().grille.fixeLargeur(column(QDate(2026, 6, 10)), 100);
    QTest::keyClick(grid(), Qt::Key_Right);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 11));
    QTest::keyClick(grid(), Qt::Key_Left);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 9));
    QTest::keyClick(grid(), Qt::Key_Tab);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 11));
}

TEST_F(GesturesTest, NothingOpensBesideTheDaysAndNothingIsDeletedOutsideTheLine)
{
    openMonth();
    click(2, QDate(2026, 6, 11));
    QTest::keyClick(grid(), Qt::Key_Delete); // asks nothing
    QTest::mouseDClick(grid()->verticalHeader()->viewport(), Qt::LeftButton, {},
                       {5, grid()->rowViewportPosition(0) + 4});
    QTest::mouseDClick(grid()->horizontalHeader()->viewport(), Qt::LeftButton, {}, {200, 5});
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(session.base.sitper.recordCount(), 2);
}

} // namespace
} // namespace velmora::test
