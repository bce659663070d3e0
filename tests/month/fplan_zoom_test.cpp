#include "month/bars_table.h"
#include "month/fplan.h"

#include "support/modal.h"
#include "support/workstation.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace velmora::test
{
namespace
{

/// An open month of many lines, shown off screen, with what the menus open beside it.
class FplanZoomTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    std::unique_ptr<Fplan> form;
    const QDate june3{2026, 6, 3};

    void openMonth(int lines)
    {
        for (int line = 1; line <= lines; ++line)
            station.addLine(line, QStringLiteral("LIGNE %1").arg(line, 3, 10, QLatin1Char('0')));
        station.addDay(1, june3, 480, 1080, 720, 840);
        station.addDay(2, june3.addDays(-1), 1320, 420);
        session.moisvue = 6;
        session.anvue = 2026;
        form = std::make_unique<Fplan>(session);
        QSignalSpy ready(form.get(), &MonthView::ready);
        form->resize(1366, 700);
        form->show();
        ASSERT_TRUE(ready.wait(5000));
        settle();
    }
    static void settle() { QTest::qWait(40); }
    void moveTo(int line, const QDate &date)
    {
        grid().setCurrentIndex(
            grid().modele().index(line - 1, ModeleGrille::colonneVue(planning().colonnes.colonneDe(date))));
        settle();
    }
    QAction *entry(const QString &name)
    {
        for (QAction *menu : form->menuBarActions())
            if (menu->menu())
                for (QAction *one : menu->menu()->actions())
                    if (one->objectName() == name) return one;
        return nullptr;
    }
    void trigger(const QString &name)
    {
        entry(name)->trigger();
        settle();
    }
    Planning &planning() { return form->planning(); }
    VueGrille &grid() { return control<VueGrille>(*form, "mg"); }
    QTableView &list() { return control<QTableView>(*form, "Mgm"); }
    QWidget &bars() { return control<QWidget>(*form, "Piczoom"); }
    QString listed(int row, int column) { return list().model()->index(row, column).data().toString(); }
    QString heading(int column)
    {
        return list().model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }
};

TEST_F(FplanZoomTest, TheZoomMaximisesTheWindowFollowsTheCursorAndGoesAgain)
{
    session.affichage.haut1 = 1440; // one inch
    openMonth(2);
    EXPECT_EQ(list().horizontalHeader()->height(), form->logicalDpiX());
    EXPECT_FALSE(bars().isVisible());
    EXPECT_TRUE(entry("mnuaffnorm")->isChecked());
    trigger("mnuzoom");
    EXPECT_TRUE(form->isMaximized());
    EXPECT_TRUE(bars().isVisible());
    EXPECT_TRUE(entry("mnuzoom")->isChecked());
    EXPECT_FALSE(entry("mnuaffnorm")->isChecked());
    moveTo(1, june3);
    EXPECT_EQ(heading(1), "mercredi 3");
    EXPECT_EQ(heading(3), "Deb.  -  Fin");
    EXPECT_EQ(listed(0, 3), "8h00  -  18h00 /");
    EXPECT_EQ(listed(1, 3), " ... - 7h00");
    QTest::keyClick(&grid(), Qt::Key_Left);
    settle();
    EXPECT_EQ(heading(1), "mardi 2");
    EXPECT_EQ(listed(0, 3), QString());
    trigger("mnuzoom"); // on already: it stays
    EXPECT_TRUE(bars().isVisible() && entry("mnuzoom")->isChecked());
    form->command("zoom");
    settle();
    EXPECT_FALSE(bars().isVisible());
    EXPECT_TRUE(entry("mnuaffnorm")->isChecked());
    EXPECT_TRUE(form->isMaximized());
    form->command("zoom");
    settle();
    EXPECT_TRUE(bars().isVisible());
}

TEST_F(FplanZoomTest, AnEditShowsInTheZoomAtOnce)
{
    openMonth(2);
    trigger("mnuzoom");
    moveTo(1, june3);
    station.host.expectQuestion("Suppression horaire(s) ?", true);
    trigger("mnusup");
    EXPECT_EQ(listed(0, 3), QString());
    EXPECT_EQ(listed(0, 2), QString());
}

TEST_F(FplanZoomTest, AClickOnTheListMovesTheCursorInItsColumnAndAGoneLineLeavesIt)
{
    openMonth(5);
    trigger("mnuzoom");
    moveTo(1, june3);
    const auto click = [this](int row) {
        const QRect cell = list().visualRect(list().model()->index(row, 1));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, cell.center());
    };
    click(3);
    settle();
    EXPECT_EQ(planning().curseur,
              (Place{planning().grille.ligneDe(4), planning().colonnes.colonneDe(june3)}));
    EXPECT_TRUE(grid().hasFocus());
    EXPECT_TRUE(list().selectionModel()->isRowSelected(3));
    planning().grille.fixeNumligne(planning().grille.ligneDe(5), 99);
    click(4); // its row still bears the old number
    EXPECT_EQ(planning().curseur.ligne, planning().grille.ligneDe(4));
}

TEST_F(FplanZoomTest, ManyLinesScrollWithTheGridAndTheBarsStayBesideTheirRows)
{
    openMonth(300);
    trigger("mnuzoom");
    moveTo(1, june3);
    grid().verticalScrollBar()->setValue(150);
    settle();
    EXPECT_EQ(list().rowAt(0), 150);
    EXPECT_EQ(bars().height(), list().viewport()->height());
    EXPECT_EQ(bars().mapTo(form.get(), QPoint()).y(), list().viewport()->mapTo(form.get(), QPoint()).y());
    moveTo(280, june3);
    EXPECT_GE(list().rowViewportPosition(279), 0);
    EXPECT_LE(list().rowViewportPosition(279) + list().rowHeight(279), list().viewport()->height());
    form->showNormal();
    form->resize(900, 560);
    settle();
    EXPECT_GT(bars().height(), 100);
    EXPECT_GT(grid().viewport()->height(), 100);
}

TEST_F(FplanZoomTest, TheMenusHandTheirDatesToTheExportAndTheReport)
{
    openMonth(2);
    moveTo(1, QDate(2026, 5, 20)); // before the month opened
    QString title;
    const auto see = [&](QWidget &dialog) { title = dialog.windowTitle(); };
    onModal(see);
    entry("mnuex")->trigger();
    EXPECT_EQ(title, "Exportation vers Excel");
    EXPECT_EQ(session.impdeb, QDate(2026, 5, 1));
    EXPECT_EQ(session.impfin, QDate(2026, 5, 31));
    onModal(see);
    entry("mnuhor")->trigger();
    EXPECT_EQ(title, "Horaires pratiqués");
    EXPECT_EQ(session.impdate, planning().periode.debgrille);
    EXPECT_EQ(session.impdeb, planning().periode.fingrille);
}

} // namespace
} // namespace velmora::test
