#include "month/deletion.h"

#include "month/open_month.h"
#include "month/selection.h"
#include "month/stored_days.h"

namespace velmora::test
{
namespace
{

const QDate first(2026, 6, 1);
const QString hoursQuestion = QStringLiteral("Suppression horaire(s) ?");

using DeletionTest = StoredDays;

TEST_F(DeletionTest, DeletesTheAbsenceOfTheFirstDayOrElseTheHours)
{
    const QString absence = QStringLiteral("Suppression absence CP  du 03 au 09/06/2026 ?");
    struct Case {
        int from;
        int to;
        QString question; ///< empty: none
        bool answer;
        Suppression outcome;
        const char *days; ///< of the whole plant afterwards
        int absences;
        QString operation;
    };
    const QString hours = QStringLiteral("SSuppr. horaires : ANNE du 01 au 07/06/2026");
    const QString spans = QStringLiteral("SSuppr. absence : ANNE du 03 au 09/06/2026");
    const Case cases[] = {
        // The absence on a later day changes nothing: hours alone, hidden ones too.
        {1, 7, hoursQuestion, true, Suppression::Faite, "- - - - - - - - 9! 10", 1, hours + " #3"},
        {1, 7, hoursQuestion, false, Suppression::Refusee, "8 - 8! - 8! - - - 9! 10", 1, hours + " #0"},
        // The whole absence goes, beyond the dates asked for, and its hidden hours count again.
        {5, 5, absence, true, Suppression::Faite, "8 - 8 - 8 - - - 9 10", 0, spans + " #0"},
        {3, 10, absence, true, Suppression::Faite, "8 - 8 - 8 - - - 9 10", 0, spans + " #0"},
        {9, 10, absence, false, Suppression::Refusee, "8 - 8! - 8! - - - 9! 10", 1, spans + " #0"},
        {2, 2, {}, false, Suppression::SansObjet, "8 - 8! - 8! - - - 9! 10", 1, {}},
        {11, 20, {}, false, Suppression::SansObjet, "8 - 8! - 8! - - - 9! 10", 1, {}},
    };
    for (const Case &one : cases) {
        for (const char *table : {"sitper", "absences"})
            ASSERT_TRUE(session.base.engine.execute(QStringLiteral("DELETE FROM ") + table).ok());
        ASSERT_TRUE(session.journal.engine.execute("UPDATE logop SET valop = 0 WHERE numop > 0").ok());
        for (const int dat : {3, 5, 9})
            station.addDay(1, {2026, 6, dat}, dat == 9 ? 540 : 480, 1200, 0, 0, false);
        plant(1, first, "8");
        plant(1, {2026, 6, 10}, "10");
        station.addAbsence(1, QStringLiteral("CP"), {2026, 6, 3}, {2026, 6, 9});
        if (!one.question.isEmpty()) station.host.expectQuestion(one.question, one.answer);
        bool locked = false;
        station.host.whenAsked = [&] {
            locked = session.base.engine.inTransaction() || session.journal.engine.inTransaction();
        };
        const Suppression outcome = supprimeJours(session, line(1), {2026, 6, one.from}, {2026, 6, one.to});
        EXPECT_EQ(outcome, one.outcome) << one.from << "-" << one.to;
        EXPECT_FALSE(locked);
        EXPECT_EQ(stored(1, first, 10), one.days) << one.from << "-" << one.to;
        EXPECT_EQ(session.base.absences.recordCount(), one.absences);
        EXPECT_EQ(operations(), one.operation.isEmpty() ? QStringList() : QStringList(one.operation));
    }
}

TEST_F(DeletionTest, RecordsTheImageOfAnAbsenceInAnOperationOnHours)
{
    station.addAbsence(1, QStringLiteral("CP"), {2026, 6, 3}, {2026, 6, 3});
    station.host.expectQuestion(QStringLiteral("Suppression absence CP  le 03/06/2026 ?"), true);
    supprimeJours(session, line(1), {2026, 6, 3}, {2026, 6, 3});
    ASSERT_TRUE(session.journal.logabs.first());
    EXPECT_EQ(session.journal.logabs.row().rang.foncop, QStringLiteral("D"));
    EXPECT_EQ(session.journal.logabs.row().absence.codabs, QStringLiteral("CP"));
}

TEST_F(DeletionTest, LeavesHiddenHoursAloneWhenTheAbsenceGoesDuringTheQuestion)
{
    plant(1, first, "8");
    day(1, first).Val = false;
    ASSERT_TRUE(session.base.sitper.update().ok());
    station.addAbsence(1, QStringLiteral("CP"), first, first);
    station.host.expectQuestion(QStringLiteral("Suppression absence CP  le 01/06/2026 ?"), true);
    station.host.whenAsked = [&] {
        // The engine gives the next absence the place of the deleted one.
        EXPECT_TRUE(session.base.engine
                        .execute(QStringLiteral(
                            "DELETE FROM absences; INSERT INTO absences (nump, codabs, datedeb, datefin) "
                            "VALUES (1, 'CP', '2026-07-01', '2026-07-02')"))
                        .ok());
    };
    supprimeJours(session, line(1), first, first);
    EXPECT_EQ(stored(1, first, 1), "8!");
    EXPECT_EQ(session.base.absences.recordCount(), 1);
    EXPECT_EQ(session.journal.logabs.recordCount(), 0);
}

TEST_F(DeletionTest, SecondTryOfAnAbsenceBringsBackTheHoursThatTheFirstOneDidNotReach)
{
    for (const int dat : {1, 2, 3})
        station.addDay(1, {2026, 6, dat}, 480, 1200, 0, 0, false);
    station.addAbsence(1, QStringLiteral("CP"), first, first.addDays(2));
    station.host.expectQuestion(QStringLiteral("Suppression absence CP  du 01 au 03/06/2026 ?"), true);
    failAfter(2);
    supprimeJours(session, line(1), first, first);
    EXPECT_EQ(stored(1, first, 3), "8 8 8");
    EXPECT_EQ(session.base.absences.recordCount(), 0);
}

TEST_F(DeletionTest, EmptiesTheClipboardWhateverTheAnswerAndRefillsTheRowOnYes)
{
    plant(1, {2026, 6, 10}, "8 - 9");
    OpenMonth month(station, 6, 2026);
    Planning &planning = month.planning;
    for (const bool answer : {false, true}) {
        month.moveTo(1, {2026, 6, 10});
        clipcopie(planning);
        ASSERT_GT(planning.pressepapiers.cliplong(), 0);
        commenceSelection(planning);
        glisseSelection(planning, month.column({2026, 6, 12}));
        finitSelection(planning);
        station.host.expectQuestion(hoursQuestion, answer);
        supcell(planning);
        EXPECT_EQ(planning.pressepapiers.cliplong(), 0);
        EXPECT_EQ(month.text(1, {2026, 6, 12}), answer ? "" : "9h00 - 20h00");
        EXPECT_EQ(month.minutes(1, {2026, 6, 12}), answer ? 0 : 11 * 60);
        EXPECT_EQ(planning.curseur, (Place{month.row(1), month.column({2026, 6, 10})}));
        EXPECT_TRUE(planning.suivi);
        EXPECT_EQ(operations().size(), answer ? 2 : 1);
    }
    planning.pressepapiers.clipbk.resize(1);
    supcell(planning);
    EXPECT_EQ(planning.pressepapiers.cliplong(), 0);
}

} // namespace
} // namespace velmora::test
