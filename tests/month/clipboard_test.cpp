#include "journal/recording.h"
#include "journal/replay.h"
#include "month/open_month.h"
#include "month/selection.h"
#include "month/stored_days.h"

namespace velmora::test
{
namespace
{

const QDate first(2026, 6, 1); // a Monday

class ClipboardTest : public StoredDays
{
protected:
    Pressepapiers presse;

    Retenue hold(int nump, const QDate &from, int days, bool cut = false)
    {
        presse.clipcoupe = cut;
        return retientJours(session, presse, line(nump), from, from.addDays(days - 1));
    }
    void paste(int nump, const QDate &from) { colleJours(session, presse, line(nump), from); }
};

TEST_F(ClipboardTest, WritesEachHeldDayInItsPlaceAndNothingElse)
{
    struct Case {
        const char *held;   ///< on line 1 from 1 June on
        const char *target; ///< on line 2, open from 3 to 20 June, from `from` on
        QDate from;
        const char *after;
    };
    const Case cases[] = {
        {"8 - 9", "6 6 6 6", {2026, 6, 8}, "8 - 9 6"},      // an empty day empties
        {"- - -", "6 - 6 6", {2026, 6, 8}, "- - - 6"},      //
        {"8 9 10", "- - -", {2026, 6, 19}, "8 9 -"},        // past the end of the line
        {"8 - -", "6 6 6", {2026, 6, 19}, "8 - 6"},         // nor is a day emptied there
        {"8 9 10", "6 - -", {2026, 6, 2}, "6 9 10"},        // before its start
        {"8 9 10 7", "- - - -", {2026, 6, 5}, "8 9 10 7"},  // over a week total
        {"8 9 10 7", "- 6 - 6", {2026, 6, 12}, "8 9 10 7"}, // onto filled and empty days
    };
    for (const Case &one : cases) {
        ASSERT_TRUE(session.base.engine.execute(QStringLiteral("DELETE FROM sitper")).ok());
        plant(1, first, one.held);
        plant(2, one.from, one.target);
        const int days = static_cast<int>(QString::fromLatin1(one.held).split(u' ').size());
        hold(1, first, days);
        EXPECT_EQ(presse.cliplong(), days);
        paste(2, one.from);
        const int shown = static_cast<int>(QString::fromLatin1(one.after).split(u' ').size());
        EXPECT_EQ(stored(2, one.from, shown), one.after) << one.held << " on " << one.target;
        EXPECT_EQ(stored(1, first, days), one.held);
    }
}

TEST_F(ClipboardTest, MovesDaysOverThemselves)
{
    plant(1, first, "6 7 - 9 10 11 12");
    hold(1, first, 5, true);
    EXPECT_EQ(stored(1, first, 7), "- - - - - 11 12");
    paste(1, first.addDays(2));
    EXPECT_EQ(stored(1, first, 8), "- - 6 7 - 9 10 -");
    EXPECT_EQ(operations(), (QStringList{"S coupé: ANNE  du 01 au 05/06/2026 #4",
                                         "S - collé: horaires pour ANNE  du 03 au 07/06/2026 #6"}));
}

TEST_F(ClipboardTest, CopiesTheWholeHoursAndLeavesARowItsIdentity)
{
    plant(1, first, "8");
    JourSit &source = day(1, first);
    source.numri = 1, source.numi = 2, source.numimp = 3, source.numv = 4, source.sit = 5;
    source.Type = 6, source.hideb2 = 700, source.hifin2 = 710, source.heurtrav = 480, source.heurpaye = 470;
    source.hdeb6 = 1100, source.hfin6 = 1110, source.horaire = QStringLiteral("M"), source.Val = false;
    ASSERT_TRUE(session.base.sitper.update().ok());
    plant(2, {2026, 6, 10}, "6");
    JourSit &there = day(2, {2026, 6, 10});
    there.numri = 11, there.numi = 12, there.numimp = 13, there.numv = 14, there.sit = 15, there.Val = false;
    there.babs = true;
    ASSERT_TRUE(session.base.sitper.update().ok());
    hold(1, first, 1);
    for (const int dat : {10, 11})
        paste(2, {2026, 6, dat});
    for (const int dat : {10, 11}) {
        const JourSit jour = day(2, {2026, 6, dat});
        session.base.sitper.cancelUpdate();
        const int identity = dat == 10 ? 10 : 0;
        EXPECT_EQ(jour.numri, identity + 1);
        EXPECT_EQ(jour.numi, identity + 2);
        EXPECT_EQ(jour.numimp, identity + 3);
        EXPECT_EQ(jour.sit, dat == 10 ? 15 : 0);
        EXPECT_EQ(jour.babs, dat == 10);
        EXPECT_EQ(jour.numv, 0);
        EXPECT_EQ(jour.Type, 6);
        EXPECT_EQ(jour.heurdeb, 480);
        EXPECT_EQ(jour.hifin2, 710);
        EXPECT_EQ(jour.heurtrav, 480);
        EXPECT_EQ(jour.heurpaye, 470);
        EXPECT_EQ(jour.hfin6, 1110);
        EXPECT_EQ(jour.horaire, QStringLiteral("M"));
        EXPECT_EQ(jour.datj, station.host.now());
        EXPECT_TRUE(jour.Val);
    }
}

TEST_F(ClipboardTest, SurvivesAPasteAndEndsWithAnyOtherOperation)
{
    plant(1, first, "8 9");
    hold(1, first, 2);
    paste(2, {2026, 6, 4});
    paste(2, {2026, 6, 8});
    EXPECT_EQ(stored(2, {2026, 6, 4}, 6), "8 9 - - 8 9");
    ecritop(session, QStringLiteral("S"), QStringLiteral("autre"));
    paste(2, {2026, 6, 12});
    EXPECT_EQ(stored(2, {2026, 6, 12}, 2), "- -");
    EXPECT_EQ(presse.cliplong(), 0);
    EXPECT_EQ(operations().size(), 3);
}

TEST_F(ClipboardTest, SecondTryOfACutStillHoldsWhatTheFirstOneTookOut)
{
    plant(1, first, "8 9 10 11");
    failAfter(2);
    EXPECT_EQ(hold(1, first, 4, true), Retenue::Faite);
    EXPECT_EQ(stored(1, first, 4), "- - - -");
    paste(2, {2026, 6, 10});
    EXPECT_EQ(stored(2, {2026, 6, 10}, 4), "8 9 10 11");
}

TEST_F(ClipboardTest, SecondTryOfAPasteWritesEveryDayInItsOneOperationAndLeavesTheClipboard)
{
    plant(1, first, "8 9 10");
    plant(2, {2026, 6, 10}, "6 6 6");
    hold(1, first, 3);
    failAfter(1);
    paste(2, {2026, 6, 10});
    EXPECT_EQ(stored(2, {2026, 6, 10}, 3), "8 9 10");
    EXPECT_FALSE(session.collage);
    EXPECT_EQ(session.journal.sitco.recordCount(), 3);
    station.host.expectQuestion(
        QStringLiteral("invalider :  - collé: horaires pour BRUNO  du 10 au 12/06/2026"), true);
    annulop(session);
    EXPECT_EQ(stored(2, {2026, 6, 10}, 3), "6 6 6");
}

class ClipboardInTheGrid : public StoredDays
{
protected:
    /// Drags over a run of days.
    static void select(OpenMonth &month, int nump, const QDate &from, const QDate &to)
    {
        month.moveTo(nump, from);
        commenceSelection(month.planning);
        glisseSelection(month.planning, month.column(to));
        finitSelection(month.planning);
    }
};

TEST_F(ClipboardInTheGrid, MovesTheSelectionOverAWeekTotalAndRefillsBothRows)
{
    plant(1, {2026, 6, 6}, "8 - 9");
    OpenMonth month(station, 6, 2026);
    Planning &planning = month.planning;
    select(month, 1, {2026, 6, 6}, {2026, 6, 8});
    planning.pressepapiers.clipcoupe = true;
    clipcopie(planning);
    EXPECT_FALSE(planning.pressepapiers.clipcoupe);
    EXPECT_EQ(planning.pressepapiers.cliplong(), 3);
    EXPECT_EQ(planning.pressepapiers.infobulle, QStringLiteral("Coller 0h00 0h00 0h00 "));
    EXPECT_EQ(month.text(1, {2026, 6, 6}), "");
    month.moveTo(2, {2026, 6, 13});
    clipcolle(planning);
    EXPECT_EQ(stored(2, {2026, 6, 13}, 3), "8 - 9");
    EXPECT_EQ(month.text(2, {2026, 6, 13}), "8h00 - 20h00");
    EXPECT_EQ(month.minutes(2, {2026, 6, 15}), 11 * 60);
    EXPECT_EQ(planning.grille.minutes(month.column({2026, 6, 15}), 0), 11 * 60);
    EXPECT_EQ(planning.curseur, (Place{month.row(2), month.column({2026, 6, 13})}));
    EXPECT_FALSE(planning.selection.selact);
    EXPECT_EQ(planning.selection.seldeb, planning.curseur.colonne);
    EXPECT_EQ(planning.selection.selfin, planning.curseur.colonne);
    EXPECT_TRUE(planning.suivi);
}

TEST_F(ClipboardInTheGrid, HoldsAnEmptyRangeWithItsMessageAndPastesItAsDaysToEmpty)
{
    plant(2, {2026, 6, 10}, "6 6 6");
    OpenMonth month(station, 6, 2026);
    Planning &planning = month.planning;
    station.host.expectMessage(QStringLiteral("Attention: pas d'horaire pour la sélection"));
    select(month, 1, {2026, 6, 1}, {2026, 6, 2});
    clipcopie(planning);
    EXPECT_EQ(planning.pressepapiers.cliplong(), 2);
    month.moveTo(2, {2026, 6, 10});
    EXPECT_TRUE(planning.commandes.coller);
    clipcolle(planning);
    EXPECT_EQ(stored(2, {2026, 6, 10}, 3), "- - 6");
}

TEST_F(ClipboardInTheGrid, ShowsTheWorkedTimeOfEachDayHeld)
{
    plant(1, first, "8 - 9");
    day(1, first).heurtrav = 425;
    ASSERT_TRUE(session.base.sitper.update().ok());
    OpenMonth month(station, 6, 2026);
    select(month, 1, first, first.addDays(2));
    clipcopie(month.planning);
    EXPECT_EQ(month.planning.pressepapiers.infobulle, QStringLiteral("Coller 7h05 0h00 0h00 "));
}

TEST_F(ClipboardInTheGrid, WritesNothingOffTheLinesOrForALineThatIsGone)
{
    plant(1, first, "8");
    OpenMonth month(station, 6, 2026);
    Planning &planning = month.planning;
    month.moveTo(1, first);
    clipcopie(planning);
    planning.curseur.ligne = planning.grille.derniereLigne();
    clipcolle(planning);
    ASSERT_TRUE(session.base.engine.execute(QStringLiteral("DELETE FROM ligmois WHERE nump = 2")).ok());
    planning.curseur = {month.row(2), month.column({2026, 6, 10})};
    clipcolle(planning);
    EXPECT_EQ(session.base.sitper.recordCount(), 1);
    EXPECT_TRUE(operations().isEmpty());
}

} // namespace
} // namespace velmora::test
