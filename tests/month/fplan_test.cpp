#include "month/fplan.h"

#include "month/open_form.h"
#include "support/modal.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

namespace velmora::test
{
namespace
{

void type(Partielm &dialog, const char *field, const char *text)
{
    auto *edit = dialog.findChild<QLineEdit *>(QLatin1String(field));
    edit->setFocus();
    QTest::qWait(5);
    edit->selectAll();
    QTest::keyClicks(edit, QLatin1String(text));
}

TEST_F(FplanTest, AClickShowsTheDayAndTheLastRowAndTotalsAreNeverEntered)
{
    openMonth();
    click(1, june3);
    EXPECT_EQ(status(), QStringLiteral("[Fait: 8h00 ] de 8h00 à 18h00 [Coupe: 12h00 _ 14h00]"));
    EXPECT_EQ(planning().grille.lit(3, Grille::colonneNom).fond, palette::fondSelection);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(grid(), Qt::Key_Down);
    settle();
    EXPECT_EQ(planning().curseur.ligne, 4);
    click(1, QDate(2026, 6, 7));
    QTest::keyClick(grid(), Qt::Key_Right);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 8));
    QTest::keyClick(grid(), Qt::Key_Left);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 7));
    QTest::keyClick(grid(), Qt::Key_End);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), planning().periode.fingrille);
}

TEST_F(FplanTest, TheFirstMoveAfterTheLoadGoesTheWayOfTheKey)
{
    openMonth(); // today, 15 June 2026, is a Monday
    QTest::keyClick(grid(), Qt::Key_Left);
    settle();
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 14));
    EXPECT_TRUE(planning().colonnes.estJour(planning().curseur.colonne));
}

TEST_F(FplanTest, AClickOnANameChangesTheLineAndKeepsTheColumn)
{
    openMonth();
    const int before = planning().curseur.colonne;
    QTest::mouseClick(grid()->verticalHeader()->viewport(), Qt::LeftButton, {},
                      {5, grid()->rowViewportPosition(1) + 4});
    settle();
    EXPECT_EQ(planning().curseur.ligne, 4);
    EXPECT_EQ(planning().curseur.colonne, before);
}

TEST_F(FplanTest, AClickOnANameOrItsMarkShowsTheReportOfALineWithControls)
{
    auto &ligmois = session.base.ligmois;
    ASSERT_TRUE(ligmois.first());
    ASSERT_TRUE(ligmois.edit().ok());
    ligmois.values().bcontrolr = true;
    ligmois.values().nrep = 16;
    ASSERT_TRUE(ligmois.update().ok());
    openMonth();
    QHeaderView *const names = grid()->verticalHeader();
    QString report = QStringLiteral("        ANNE\n");
    for (QDate monday = planning().periode.debgrille; monday <= planning().periode.fingrille.addDays(1);
         monday = monday.addDays(7))
        report += QStringLiteral("\nDéfaut Repos Hebdo du %1 au %2\n")
                      .arg(Foncgen::dtoc(monday), Foncgen::dtoc(monday.addDays(14)));
    for (const int x : {5, names->width() - 3}) {
        station.host.expectMessage(report);
        QTest::mouseClick(names->viewport(), Qt::LeftButton, {}, {x, grid()->rowViewportPosition(0) + 4});
        settle();
    }
    QTest::mouseClick(names->viewport(), Qt::LeftButton, {}, {5, grid()->rowViewportPosition(1) + 4});
    settle();
    EXPECT_EQ(planning().curseur.ligne, 4);
    EXPECT_EQ(planning().grille.lit(3, Grille::colonneEtat).texte, QStringLiteral("Pb"));
}

TEST_F(FplanTest, ADragSelectsDaysOfOneLineAndAMoveGivesTheirColoursBack)
{
    openMonth();
    const auto drag = [this](const QDate &from, const QDate &to) {
        const QPoint start = at(1, from);
        const QPoint end = at(2, to); // a row below: the row is forced back
        QTest::mousePress(grid()->viewport(), Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, end, grid()->viewport()->mapToGlobal(end), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(grid()->viewport(), &move);
        QTest::mouseRelease(grid()->viewport(), Qt::LeftButton, {}, end);
        settle();
    };
    drag(QDate(2026, 6, 4), QDate(2026, 6, 8)); // over the week's total
    EXPECT_TRUE(planning().selection.selact);
    EXPECT_EQ(planning().selection.coulfond.size(), 5);
    EXPECT_EQ(planning().curseur, (Place{3, column(QDate(2026, 6, 4))}));
    QTest::keyClick(grid(), Qt::Key_Down);
    settle();
    EXPECT_FALSE(planning().selection.selact);
    for (int day = 4; day <= 8; ++day)
        EXPECT_NE(planning().grille.lit(3, column(QDate(2026, 6, day))).fond, palette::fondSelection) << day;
    drag(QDate(2026, 6, 5), QDate(2026, 6, 3)); // to the left of the anchor
    EXPECT_FALSE(planning().selection.selact);
    EXPECT_TRUE(planning().suivi);
}

TEST_F(FplanTest, ACodeTypedInACellIsCheckedAndEscapeWritesNothing)
{
    openMonth();
    click(1, QDate(2026, 6, 4));
    auto *text = form->findChild<QLineEdit *>(QStringLiteral("Text1"));
    QTest::keyClicks(grid(), QStringLiteral("z"));
    ASSERT_TRUE(text->isVisible());
    EXPECT_EQ(text->text(), QStringLiteral("Z"));
    EXPECT_TRUE(text->isEnabled());
    EXPECT_TRUE(text->hasFocus());
    EXPECT_FALSE(grid()->isEnabled());
    EXPECT_EQ(form->findChild<QLabel *>(QStringLiteral("Labeli1"))->text(),
              QStringLiteral("ANNE  à dater 04/06/2026"));
    station.host.expectMessage(QStringLiteral("code Absence non autorisé ou erroné!"));
    QTest::keyClicks(text, QStringLiteral("z"));
    EXPECT_EQ(text->text(), QString());
    QTest::keyClick(text, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(text->isVisible());
    EXPECT_TRUE(grid()->isEnabled());
    EXPECT_EQ(session.base.absences.recordCount(), 0);
}

TEST_F(FplanTest, OneEntryChangesCellWeekMonthColumnTotalsAndJournal)
{
    openMonth();
    click(1, june3);
    withDialog([](Partielm &dialog) {
        QTest::qWait(330);
        type(dialog, "Text1", "09h00");
        type(dialog, "Text2", "12h00");
        QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("Command1")), Qt::LeftButton);
    });
    QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, at(1, june3));
    settle();
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(cell(1, june3), QStringLiteral("9h00 - 18h00\n[12h00 _ 14h00]"));
    const int line = planning().grille.ligneDe(1);
    const int week = column(QDate(2026, 6, 7)) + 1;
    EXPECT_EQ(planning().grille.lit(line, week).texte, QStringLiteral(" 7h00"));
    EXPECT_EQ(planning().grille.lit(planning().grille.derniereLigne(), column(june3)).texte,
              QStringLiteral(" 15h00"));
    EXPECT_TRUE(planning().commandes.annuler);
    ASSERT_TRUE(session.journal.logop.seek(store::Cmp::Eq, {1}));
    EXPECT_EQ(session.journal.logop.row().libop, QStringLiteral("nouvel horaire: ANNE le 03/06/2026"));
}

TEST_F(FplanTest, CopyPasteDeleteUndoAndRedoByKeysChangeGridAndFiles)
{
    openMonth();
    click(1, june3);
    QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
    settle();
    click(1, QDate(2026, 6, 4));
    EXPECT_TRUE(planning().commandes.coller);
    QTest::keyClick(grid(), Qt::Key_V, Qt::ControlModifier);
    settle();
    EXPECT_EQ(cell(1, QDate(2026, 6, 4)), cell(1, june3));
    station.host.expectQuestion(QStringLiteral("Suppression horaire(s) ?"), true);
    QTest::keyClick(grid(), Qt::Key_Delete);
    settle();
    EXPECT_EQ(cell(1, QDate(2026, 6, 4)), QString());
    EXPECT_EQ(planning().pressepapiers.cliplong(), 0);
    station.host.expectQuestion(QStringLiteral("invalider : Suppr. horaires : ANNE le 04/06/2026"), true);
    QTest::keyClick(grid(), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(cell(1, QDate(2026, 6, 4)), cell(1, june3));
    EXPECT_TRUE(planning().commandes.refaire);
    station.host.expectQuestion(QStringLiteral("revalider Suppr. horaires : ANNE le 04/06/2026"), true);
    QTest::keyClick(grid(), Qt::Key_Y, Qt::ControlModifier);
    settle();
    EXPECT_EQ(cell(1, QDate(2026, 6, 4)), QString());
    QTest::keyClick(grid(), Qt::Key_Delete, Qt::ShiftModifier); // asks nothing
    EXPECT_EQ(session.base.sitper.recordCount(), 2);
}

TEST_F(FplanTest, TheStarOpensTheEntryAndEscapeWritesNothing)
{
    openMonth();
    click(1, QDate(2026, 6, 4));
    bool opened = false;
    withDialog([&opened](Partielm &dialog) {
        opened = true;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QTest::keyClicks(grid(), QStringLiteral("*"));
    settle();
    EXPECT_TRUE(opened);
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(session.base.sitper.recordCount(), 2);
}

TEST_F(FplanTest, AClosedDayOpensNoEntryAndShutsTheCommands)
{
    openMonth();
    click(2, QDate(2026, 6, 11));
    EXPECT_EQ(cell(2, QDate(2026, 6, 11)), QStringLiteral("////"));
    EXPECT_FALSE(planning().commandes.absence);
    QTest::keyClicks(grid(), QStringLiteral("*"));
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(planning().suivi);
}

TEST_F(FplanTest, HundredthsChangeTheTotalsAndCloseEmptiesTheClipboard)
{
    openMonth();
    const int line = planning().grille.ligneDe(1);
    const int week = column(QDate(2026, 6, 7)) + 1;
    for (QAction *entry : form->menuBarActions())
        if (entry->menu())
            for (QAction *one : entry->menu()->actions())
                if (one->objectName() == QStringLiteral("mnucent")) one->trigger();
    EXPECT_EQ(planning().grille.lit(line, week).texte, QLatin1Char(' ') + Foncgen::strn(8, 2));
    auto &sitco = session.journal.sitco;
    ASSERT_TRUE(sitco.addNew().ok());
    ASSERT_TRUE(sitco.update().ok());
    QSignalSpy closed(form.get(), &MonthView::closed);
    form->close();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(sitco.isEmpty());
    EXPECT_FALSE(session.moisouvert);
    EXPECT_EQ(session.pagecourante, QStringLiteral("accueil.htm"));
}

TEST_F(FplanTest, AMonthWithoutLinesSaysSoAndCloses)
{
    ASSERT_TRUE(session.base.engine.execute(QStringLiteral("DELETE FROM ligmois")).ok());
    session.moisvue = 6;
    session.anvue = 2026;
    station.host.expectMessage(
        QStringLiteral("vous devez ouvrir au moins une ligne de planning pour cette période !"));
    form = std::make_unique<Fplan>(session);
    QSignalSpy closed(form.get(), &MonthView::closed);
    whenModal([](QWidget &newLine) { QTest::keyClick(&newLine, Qt::Key_Escape); });
    form->show();
    EXPECT_TRUE(closed.wait(2000));
}

} // namespace
} // namespace velmora::test
