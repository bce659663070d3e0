#include "month/open_form.h"
#include "support/modal.h"

#include <QLineEdit>
#include <QPushButton>

namespace velmora::test
{
namespace
{

/// An open month whose commands on lines are run from its menus.
class LineMenusTest : public FplanTest
{
protected:
    void SetUp() override {} // each test has its own lines

    void openMonthOn(const char *first, const char *second)
    {
        station.addLine(1, QString::fromLatin1(first));
        station.addLine(2, QString::fromLatin1(second));
        station.addDay(2, june3, 480, 960);
        openMonth();
    }
    QAction *entry(const char *name) { return form->findChild<QAction *>(QLatin1String(name)); }
    /// Runs a menu's command; `act` works on the dialog that it shows.
    void run(const char *name, const std::function<void(QWidget &)> &act = {})
    {
        ASSERT_TRUE(entry(name)->isEnabled()) << name;
        if (act) onModal(act);
        entry(name)->trigger();
        settle();
    }
    Grille &grille() { return planning().grille; }
    /// Names from top to bottom with the total of 3 June.
    std::string rows()
    {
        QStringList names;
        for (int row = Grille::lignesFixes; row < grille().lignes(); ++row)
            names << grille().lit(row, Grille::colonneNom).texte;
        return (names.join(u',') + grille().lit(grille().derniereLigne(), column(june3)).texte).toStdString();
    }
    static void confirm(QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }
    static std::function<void(QWidget &)> fills(const char *field, const char *text)
    {
        return [field, text](QWidget &dialog) {
            control<QLineEdit>(dialog, field).setText(QString::fromLatin1(text));
            control<QPushButton>(dialog, "Command1").click();
        };
    }
};

TEST_F(LineMenusTest, EachCommandShowsInTheGrid)
{
    openMonthOn("ANNE", "BRUNO");
    session.saisdeb = QStringLiteral("01/06/2026");
    run("mnunewl", fills("Text1", "ABEL"));
    EXPECT_EQ(rows(), "ANNE,BRUNO,ABEL,Total Heures 8h00") << "last until the next opening";
    EXPECT_EQ(session.saisdeb, "");
    EXPECT_EQ(planning().commandes.ligneCourante, "ANNE") << "the cursor stays on its line";
    run("mnurenlig", fills("Text1", "ZOE"));
    EXPECT_EQ(rows(), "ZOE,BRUNO,ABEL,Total Heures 8h00");
    EXPECT_EQ(entry("mnuimpi")->text(), "Planning de ZOE");
    run("mnufermlig", fills("Text2", "10/06/2026"));
    EXPECT_TRUE(planning().commandes.reouvrirLigne);
    EXPECT_FALSE(entry("mnufermlig")->isEnabled());
    const int june15 = column({2026, 6, 15});
    EXPECT_EQ(grille().lit(3, june15).texte, "////");
    station.host.expectQuestion(QStringLiteral("Réouvrir la ligne fermée au09/06/2026 ?"), true);
    run("mnureouv");
    EXPECT_EQ(grille().lit(3, june15).texte, "");
    EXPECT_TRUE(entry("mnufermlig")->isEnabled());
    QTest::keyClick(grid(), Qt::Key_Down);
    settle();
    station.host.expectQuestion(
        QStringLiteral("Des heures ont été saisies pour cette ligne !\n\nElles seront "
                       "supprimées !\nContinuer quand même ?"),
        true);
    run("mnusuplig", confirm);
    EXPECT_EQ(rows(), "ZOE,ABEL,Total Heures 0h00");
    EXPECT_EQ(planning().commandes.ligneCourante, "ZOE");
    run("mnucont", [](QWidget &dialog) {
        control<QAbstractButton>(dialog, "Check3").click();
        confirm(dialog);
    });
    session.base.ligmois.setIndex("ligmois01");
    ASSERT_TRUE(session.base.ligmois.seek(store::Cmp::Eq, {1}));
    EXPECT_TRUE(session.base.ligmois.row().b6j);
    run("mnusuplig", confirm);
    EXPECT_EQ(rows(), "ABEL,Total Heures 0h00");
    station.host.expectMessage(QStringLiteral("Vous devez avoir au moins une ligne: modifiez la !"));
    run("mnusuplig");
    EXPECT_EQ(session.base.ligmois.recordCount(), 1);
}

TEST_F(LineMenusTest, ACancelledDialogLeavesTheGridAndTheMonthAtWork)
{
    openMonthOn("ANNE", "BRUNO");
    const auto cancel = [](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
    for (const char *name : {"mnunewl", "mnufermlig", "mnucont", "mnurenlig", "mnusuplig"}) {
        run(name, cancel);
        EXPECT_TRUE(planning().suivi) << name;
        EXPECT_EQ(rows(), "ANNE,BRUNO,Total Heures 8h00") << name;
    }
}

TEST_F(LineMenusTest, TheOnlyLineClosedAwayLeavesAnEmptyGridThatTakesANewLine)
{
    station.addLine(1, QStringLiteral("ANNE"));
    openMonth();
    run("mnufermlig", fills("Text2", "01/05/2026"));
    EXPECT_EQ(rows(), "Total Heures 0h00");
    EXPECT_FALSE(entry("mnurenlig")->isEnabled());
    run("mnucont"); // there is no line for it
    run("mnunewl", fills("Text1", "BRUNO"));
    EXPECT_EQ(rows(), "BRUNO,Total Heures 0h00");
    EXPECT_EQ(planning().commandes.ligneCourante, "BRUNO");
}

TEST_F(LineMenusTest, ALineDeletedElsewhereOpensNoDialogOnAnotherOne)
{
    openMonthOn("ANNE", "BRUNO");
    ASSERT_TRUE(session.base.engine.execute(QStringLiteral("DELETE FROM ligmois WHERE nump = 1")).ok());
    const QString gone = QStringLiteral("Une erreur de base de données vient de se produire: fermer "
                                        "l'application et relancer la !");
    station.host.expectMessage(gone); // by the command
    station.host.expectMessage(gone); // by the refresh that follows it
    run("mnusuplig");
    EXPECT_EQ(session.base.ligmois.recordCount(), 1);
}

TEST_F(LineMenusTest, AMonthWithoutLinesOpensOnTheLineThatIsMadeForIt)
{
    station.host.expectMessage(
        QStringLiteral("vous devez ouvrir au moins une ligne de planning pour cette période !"));
    whenModal(fills("Text1", "ANNE"));
    openMonth();
    EXPECT_EQ(rows(), "ANNE,Total Heures 0h00");
    EXPECT_EQ(planning().date(planning().curseur.colonne), QDate(2026, 6, 15));
    EXPECT_EQ(planning().commandes.ligneCourante, "ANNE");
}

TEST_F(LineMenusTest, AMonthClosesWhenTheLineMadeForItIsOfAnotherPeriod)
{
    station.host.expectMessage(
        QStringLiteral("vous devez ouvrir au moins une ligne de planning pour cette période !"));
    session.moisvue = 6;
    session.anvue = 2026;
    form = std::make_unique<Fplan>(session);
    QSignalSpy closed(form.get(), &MonthView::closed);
    whenModal([](QWidget &dialog) {
        control<QLineEdit>(dialog, "Text2").setText(QStringLiteral("01/01/2030"));
        fills("Text1", "ANNE")(dialog);
    });
    form->show();
    EXPECT_TRUE(closed.wait(2000));
}

} // namespace
} // namespace velmora::test
