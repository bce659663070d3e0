#include "month/refresh.h"

#include "month/open_month.h"

namespace velmora::test
{
namespace
{

const QString lineGone = QStringLiteral("Une erreur de base de données vient de se produire: fermer "
                                        "l'application et relancer la !");

class RefreshTest : public testing::Test
{
protected:
    Workstation station;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"), {2026, 5, 20}, {2026, 7, 10});
        station.addLine(2, QStringLiteral("BRUNO"));
        station.addCode(QStringLiteral("CP"), 420);
        station.addDay(1, {2026, 6, 15}, 480, 960);
        station.addAbsence(1, QStringLiteral("CP"), {2026, 6, 16}, {2026, 6, 16});
    }
};

TEST_F(RefreshTest, OpensTheCommandsThatEachKindOfCellAllows)
{
    struct Case {
        QDate date;
        int held;
        bool cut;
        bool paste;
        bool absence;
    };
    const Case cases[] = {
        {{2026, 5, 19}, 1, false, false, false},                                         // closed
        {{2026, 7, 11}, 1, false, false, false}, {{2026, 5, 20}, 1, false, true, true},  // empty
        {{2026, 7, 10}, 0, false, false, true},  {{2026, 6, 15}, 1, true, true, true},   // hours
        {{2026, 6, 15}, 0, true, false, true},   {{2026, 6, 16}, 1, false, false, true}, // absence
    };
    OpenMonth month(station, 6, 2026);
    for (const Case &one : cases) {
        month.planning.pressepapiers.clipbk.resize(static_cast<std::size_t>(one.held));
        month.planning.pressepapiers.vidages = month.planning.session.vidagessitco;
        month.moveTo(1, one.date);
        const EtatCommandes &etat = month.planning.commandes;
        EXPECT_EQ(etat.couper, one.cut) << one.date.toString(Qt::ISODate).toStdString();
        EXPECT_EQ(etat.copier, one.cut);
        EXPECT_EQ(etat.coller, one.paste) << one.date.toString(Qt::ISODate).toStdString();
        EXPECT_EQ(etat.absence, one.absence);
    }
}

TEST_F(RefreshTest, LetsATotalColumnAnswerForTheDayBeforeIt)
{
    station.addDay(1, {2026, 6, 21}, 480, 960);
    OpenMonth month(station, 6, 2026);
    month.planning.curseur = {month.row(1), month.totalColumn({2026, 6, 21}, true)};
    cycle(month.planning);
    EXPECT_TRUE(month.planning.commandes.couper);
    EXPECT_EQ(month.planning.dateStatut, QDate(2026, 6, 21));
    EXPECT_EQ(month.planning.texteStatut.toStdString(), "[Fait: 8h00 ] de 8h00 à 16h00");
}

TEST_F(RefreshTest, TakesALineAsOpenOnlyAfter2090)
{
    struct Case {
        QDate end;
        bool open;
    };
    for (const Case &one :
         {Case{{2090, 12, 31}, false}, Case{{2091, 1, 1}, true}, Case{{2099, 1, 1}, true}}) {
        Ligne ligne;
        ligne.datefin = one.end;
        EXPECT_EQ(ligneOuverte(ligne), one.open);
    }
    OpenMonth month(station, 6, 2026);
    month.moveTo(1, {2026, 6, 15});
    EXPECT_FALSE(month.planning.commandes.fermerLigne);
    EXPECT_TRUE(month.planning.commandes.reouvrirLigne);
    month.moveTo(2, {2026, 6, 15});
    EXPECT_TRUE(month.planning.commandes.fermerLigne);
    EXPECT_FALSE(month.planning.commandes.reouvrirLigne);
}

TEST_F(RefreshTest, GivesEveryCellItsColoursBackBehindTheHighlight)
{
    OpenMonth month(station, 6, 2026);
    Planning &planning = month.planning;
    const QStringList untouched = snapshot(planning.grille);
    for (int row = Grille::lignesFixes; row < planning.grille.derniereLigne(); ++row) {
        for (int column = Grille::colonnesFixes; column < planning.grille.colonnes(); ++column) {
            planning.curseur = {row, column};
            cycle(planning);
            EXPECT_EQ(planning.grille.lit(row, column).fond, palette::fondSelection);
            EXPECT_EQ(planning.grille.lit(row, Grille::colonneNom).fond, palette::fondSelection);
            EXPECT_EQ(planning.grille.lit(Grille::ligneJour, column).fond,
                      planning.colonnes.estJour(column) ? palette::fondSelection : palette::fondFixe);
        }
    }
    planning.curseur = {3, 2};
    cycle(planning);
    OpenMonth other(station, 6, 2026);
    other.planning.curseur = {3, 2};
    cycle(other.planning);
    EXPECT_EQ(difference(snapshot(planning.grille), snapshot(other.planning.grille)), "");
    EXPECT_NE(difference(snapshot(planning.grille), untouched), "");
}

TEST_F(RefreshTest, ShowsTheColoursOfARefillOnceTheHighlightHasLeft)
{
    OpenMonth month(station, 6, 2026);
    month.moveTo(1, {2026, 6, 17});
    station.session.base.engine
        .execute(QStringLiteral("UPDATE codabs SET bcouleur = -1, backc = 255, forec = 0; "
                                "UPDATE absences SET datefin = '2026-06-17'"))
        .ignore();
    month.refill(1);
    month.moveTo(2, {2026, 6, 18});
    EXPECT_EQ(month.cell(1, {2026, 6, 17}).fond, 0xff0000ffU);
}

TEST_F(RefreshTest, KeepsTheHighlightOnItsCellWhenARowAboveGoes)
{
    OpenMonth month(station, 6, 2026);
    month.moveTo(2, {2026, 6, 17});
    retireRangee(month.planning, month.row(1));
    month.moveTo(2, {2026, 6, 18});
    EXPECT_EQ(month.cell(2, {2026, 6, 17}).fond, palette::fond);
    retireRangee(month.planning, month.row(2));
    EXPECT_EQ(month.planning.grille.lit(Grille::ligneJour, month.column({2026, 6, 18})).fond,
              palette::fondFixe);
}

TEST_F(RefreshTest, TellsALineDeletedElsewhereAtEachMoveAndGoesOn)
{
    OpenMonth month(station, 6, 2026);
    month.moveTo(1, {2026, 6, 15});
    ASSERT_TRUE(
        station.session.base.engine.execute(QStringLiteral("DELETE FROM ligmois WHERE nump = 2")).ok());
    for (const int dayOfMonth : {15, 16}) {
        station.host.expectMessage(lineGone);
        month.moveTo(2, {2026, 6, dayOfMonth});
        EXPECT_EQ(month.cell(2, {2026, 6, dayOfMonth}).fond, palette::fondSelection);
    }
    EXPECT_EQ(month.planning.commandes.ligneCourante, QStringLiteral("BRUNO"));
    EXPECT_TRUE(month.planning.suivi);
    // What follows runs on the line read before, and that one is closed.
    EXPECT_TRUE(month.planning.commandes.reouvrirLigne);
}

TEST_F(RefreshTest, OffersUndoAsTheJournalSays)
{
    OpenMonth month(station, 6, 2026);
    station.session.peutannul = true;
    month.refill(1);
    EXPECT_TRUE(month.planning.commandes.annuler);
    EXPECT_FALSE(month.planning.commandes.refaire);
}

} // namespace
} // namespace velmora::test
