#include "lines/month_lines.h"

#include "lines/lifecycle.h"
#include "month/open_month.h"
#include "month/selection.h"

namespace velmora::test
{
namespace
{

/// June 2026 with ANNE, BRUNO and CLARA, who have hours. The grid begins on 4 May.
class MonthLinesTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void SetUp() override
    {
        int nump = 0;
        for (const char *nom : {"ANNE", "BRUNO", "CLARA"}) {
            station.addLine(++nump, QString::fromLatin1(nom));
            for (int day : {2, 20})
                station.addDay(nump, {2026, 6, day}, 480, 900 + nump);
            station.addDay(nump, {2026, 5, 2}, 480, 600);
        }
    }
    Ligne line(int nump)
    {
        session.base.ligmois.setIndex("ligmois01");
        EXPECT_TRUE(session.base.ligmois.seek(store::Cmp::Eq, {nump}));
        return session.base.ligmois.row();
    }
    void close(int nump, const QDate &date)
    {
        station.host.expectQuestion(
            QStringLiteral("Des heures ont été saisies après cette date!\n\nElles seront supprimées "
                           "!\nContinuer quand même ?"),
            true);
        ASSERT_TRUE(fermeLigne(session, line(nump), date).faite);
    }
    void erase(int nump)
    {
        station.host.expectQuestion(
            QStringLiteral("Des heures ont été saisies pour cette ligne !\n\nElles seront supprimées "
                           "!\nContinuer quand même ?"),
            true);
        ASSERT_TRUE(supprimeLigne(session, line(nump)).faite);
    }
    /// What differs between the month as it was followed and the month opened anew.
    std::string unlikeANewLoad(const OpenMonth &month)
    {
        const OpenMonth fresh(station, 6, 2026);
        return difference(snapshot(month.planning.grille), snapshot(fresh.planning.grille));
    }
};

TEST_F(MonthLinesTest, NewLinesJoinBeforeTheTotalsWithTheirHoursOnlyIfThePeriodHasThem)
{
    OpenMonth month(station, 6, 2026);
    station.addLine(4, QStringLiteral("ZOE")); // of another workstation, with hours already
    station.addDay(4, {2026, 6, 3}, 480, 1000);
    station.addLine(5, QStringLiteral("ZELIE"), {2026, 6, 3});
    station.addLine(6, QStringLiteral("ZAC"), {2020, 1, 1}, {2026, 5, 3});
    station.addLine(7, QStringLiteral("ZAZA"), {2026, 8, 3});
    suitNouvelleLigne(month.planning);
    EXPECT_TRUE(month.planning.suivi);
    EXPECT_EQ(unlikeANewLoad(month), "");
    EXPECT_EQ(month.row(5), 6);
    EXPECT_EQ(month.row(4), 7);
    suitNouvelleLigne(month.planning);
    EXPECT_EQ(month.planning.grille.lignes(), 9) << "nothing joins twice";
}

TEST_F(MonthLinesTest, TheFolderIsObeyedAtTheNextOpeningOnly)
{
    ASSERT_TRUE(session.base.groupe.addNew().ok());
    session.base.groupe.values() = {QStringLiteral("SOINS"), 2, true};
    ASSERT_TRUE(session.base.groupe.update().ok());
    session.dossiervue = QStringLiteral("SOINS");
    OpenMonth month(station, 6, 2026);
    ASSERT_EQ(month.planning.grille.lignes(), 5);
    ASSERT_TRUE(nouvelleLigne(session, QStringLiteral("DORA"), {2026, 6, 1}, {}).faite);
    suitNouvelleLigne(month.planning);
    EXPECT_EQ(month.planning.grille.lignes(), 8);
    EXPECT_GE(month.row(4), 0);
}

TEST_F(MonthLinesTest, AThousandRowsTakeNoLineButMoreThanAThousandDo)
{
    OpenMonth month(station, 6, 2026);
    Grille &grid = month.planning.grille;
    while (grid.lignes() < 999)
        grid.insereLigne(100);
    EXPECT_TRUE(ligneAdmise(month.planning));
    grid.insereLigne(100);
    station.host.expectMessage(QStringLiteral("Limite de lignes atteinte pour la période !"));
    EXPECT_FALSE(ligneAdmise(month.planning));
    grid.insereLigne(100);
    EXPECT_TRUE(ligneAdmise(month.planning));
}

TEST_F(MonthLinesTest, AClosedLineIsBuiltAgainAndGoesWhenItEndsBeforeTheGrid)
{
    OpenMonth month(station, 6, 2026);
    close(2, {2026, 6, 10});
    suitDates(month.planning, 2);
    EXPECT_EQ(month.text(2, {2026, 6, 10}), "////");
    EXPECT_EQ(unlikeANewLoad(month), "");
    station.host.expectQuestion(QStringLiteral("Réouvrir la ligne fermée au09/06/2026 ?"), true);
    ASSERT_TRUE(reouvreLigne(session, line(2)).faite);
    suitDates(month.planning, 2);
    EXPECT_EQ(month.text(2, {2026, 6, 20}), "") << "the hours don't come back";
    EXPECT_EQ(unlikeANewLoad(month), "");
    close(2, {2026, 5, 5});
    suitDates(month.planning, 2);
    EXPECT_GE(month.row(2), 0) << "its last date is the grid's first";
    close(3, {2026, 5, 1});
    suitDates(month.planning, 3);
    EXPECT_EQ(month.row(3), -1);
    EXPECT_EQ(unlikeANewLoad(month), "");
}

TEST_F(MonthLinesTest, ADeletedLineTakesItsMinutesAlongAndTheCursorGoesUpARow)
{
    OpenMonth month(station, 6, 2026);
    month.moveTo(3, {2026, 6, 2});
    commenceSelection(month.planning);
    glisseSelection(month.planning, month.column({2026, 6, 4}));
    erase(3);
    suitSuppression(month.planning, 3);
    EXPECT_FALSE(month.planning.selection.selact);
    EXPECT_EQ(month.planning.curseur, (Place{month.row(2), month.column({2026, 6, 2})}));
    month.planning.curseur = {month.row(1), month.column({2026, 6, 2})};
    erase(1);
    suitSuppression(month.planning, 1);
    EXPECT_EQ(month.planning.curseur.ligne, Grille::lignesFixes) << "but not above the first line";
    EXPECT_EQ(month.planning.grille.numligne(3), 2);
    EXPECT_EQ(unlikeANewLoad(month), "");
}

TEST_F(MonthLinesTest, TheOnlyLineShownIsNotDeletedWhateverThereIsOutside)
{
    close(1, {2026, 5, 1});
    close(2, {2026, 5, 1});
    OpenMonth month(station, 6, 2026);
    ASSERT_EQ(month.planning.grille.lignes(), 5);
    station.host.expectMessage(QStringLiteral("Vous devez avoir au moins une ligne: modifiez la !"));
    EXPECT_FALSE(ligneSupprimable(month.planning));
    station.addLine(4, QStringLiteral("ZOE"));
    suitNouvelleLigne(month.planning);
    EXPECT_TRUE(ligneSupprimable(month.planning));
}

TEST_F(MonthLinesTest, WithTheLastLineClosedAwayTheCommandsOfALineAreShut)
{
    erase(1);
    erase(2);
    OpenMonth month(station, 6, 2026);
    month.moveTo(3, {2026, 6, 2});
    close(3, {2026, 5, 1});
    suitDates(month.planning, 3);
    cycle(month.planning);
    const EtatCommandes &commands = month.planning.commandes;
    EXPECT_FALSE(commands.fermerLigne || commands.renommerLigne || commands.copier || commands.absence);
    EXPECT_EQ(month.planning.grille.lit(3, month.column({2026, 6, 2})).texte, " 0h00");
}

TEST_F(MonthLinesTest, ANewNameIsShownInItsRow)
{
    OpenMonth month(station, 6, 2026);
    ASSERT_TRUE(renommeLigne(session, line(2), QStringLiteral("ZOE")).faite);
    suitNom(month.planning, 2);
    EXPECT_EQ(month.planning.grille.lit(4, Grille::colonneNom).texte, "ZOE") << "its row stays where it is";
}

} // namespace
} // namespace velmora::test
