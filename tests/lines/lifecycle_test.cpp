#include "lines/lifecycle.h"

#include "month/stored_days.h"
#include "support/raw_sqlite.h"

namespace velmora::test
{
namespace
{

const QString nameTaken = QStringLiteral("Nom déjà attribué pour cette période !");
const QString hoursAfter = QStringLiteral("Des heures ont été saisies après cette date!\n\nElles seront "
                                          "supprimées !\nContinuer quand même ?");
const QString hoursOfLine = QStringLiteral("Des heures ont été saisies pour cette ligne !\n\nElles seront "
                                           "supprimées !\nContinuer quand même ?");
const QString busy = QStringLiteral("Bloquage par autre utilisateur! réessayer ?");
const QDate june1(2026, 6, 1);

/// Line 1 is "ANNE", open; line 2 is "BRUNO", from 3 to 20 June 2026.
class LifecycleTest : public StoredDays
{
protected:
    IssueLigne open(const char *name, const QDate &from, const ChampsControles &controls = {})
    {
        return nouvelleLigne(session, QString::fromUtf8(name), from, controls);
    }
    /// The lines by number: name, first date and last date.
    std::string lines()
    {
        QStringList found;
        auto rows = session.base.ligmois.range("ligmois01", {}, {});
        while (rows.next()) {
            const Ligne &one = rows.row();
            found << QStringLiteral("%1 %2 %3 %4")
                         .arg(one.nump)
                         .arg(one.nom, one.datedeb.toString(u"yyMMdd"), one.datefin.toString(u"yyMMdd"));
        }
        return found.join(u", ").toStdString();
    }
    /// Another workstation that holds the file with a change which it commits while this one is being asked.
    void otherWritesMeanwhile(RawSqlite &other, const QString &sql)
    {
        ASSERT_TRUE(session.base.engine.execute(QStringLiteral("PRAGMA busy_timeout = 20")).ok());
        ASSERT_TRUE(other.run(QStringLiteral("BEGIN IMMEDIATE; ") + sql));
        station.host.expectQuestion(busy, true);
        station.host.whenAsked = [this, &other] {
            station.host.whenAsked = {};
            EXPECT_TRUE(other.run(QStringLiteral("COMMIT")));
        };
    }
};

TEST_F(LifecycleTest, NumbersFollowTheLastLineAndStartAtOne)
{
    EXPECT_TRUE(open("  CLAIRE ", june1).faite);
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(session.base.ligmois.lastModified().row().nump, 3);
    ASSERT_TRUE(supprimeLigne(session, line(1)).faite);
    EXPECT_TRUE(open("DIDIER", june1).faite);
    EXPECT_EQ(lines(), "2 BRUNO 260603 260620, 3 CLAIRE 260601 990101, 4 DIDIER 260601 990101");
    for (int nump : {2, 3, 4})
        ASSERT_TRUE(supprimeLigne(session, line(nump)).faite);
    EXPECT_TRUE(open("EMMA", june1).faite);
    EXPECT_EQ(lines(), "1 EMMA 260601 990101");
}

TEST_F(LifecycleTest, ANameIsFreeAgainFromTheLastDateOfItsLineOn)
{
    station.addLine(3, QStringLiteral("BRUNO"), {2025, 1, 1}, {2025, 12, 31});
    station.host.expectMessage(nameTaken);
    EXPECT_EQ(open("BRUNO", {2026, 6, 19}).champ, ChampLigne::Nom);
    EXPECT_FALSE(session.dlgvalide);
    station.host.expectMessage(nameTaken);
    EXPECT_FALSE(open("ANNE ", {2040, 1, 1}).faite);
    EXPECT_TRUE(open("BRUNO", {2026, 6, 20}).faite);
    EXPECT_TRUE(open("Anne", june1).faite) << "names are compared as they are written";
    EXPECT_TRUE(open("", june1).faite);
    station.host.expectMessage(nameTaken);
    EXPECT_FALSE(open("  ", june1).faite) << "an empty name is one like another";
}

TEST_F(LifecycleTest, ChecksTheYearThenTheNameThenTheControls)
{
    const QString low = QStringLiteral("la date semble incorrecte (an<2010) !");
    const QString high = QStringLiteral("la date semble incorrecte (an<2050) !");
    ChampsControles wrong;
    wrong.bcontrolh = true;
    wrong.maxj = QStringLiteral("25h00");
    for (const auto &[date, message] :
         {std::pair(QDate(2009, 12, 31), low), std::pair(QDate(), low), std::pair(QDate(2051, 1, 1), high)}) {
        station.host.expectMessage(message);
        EXPECT_EQ(open("ANNE", date, wrong).champ, ChampLigne::Date);
        station.host.expectMessage(message);
        EXPECT_EQ(fermeLigne(session, line(1), date).champ, ChampLigne::Date);
    }
    station.host.expectMessage(nameTaken);
    EXPECT_EQ(open("ANNE", {2050, 12, 31}, wrong).champ, ChampLigne::Nom);
    station.host.expectMessage(QStringLiteral("Travail > 24h / jour !"));
    EXPECT_EQ(open("CLAIRE", {2010, 1, 1}, wrong).champ, ChampLigne::Maxj);
    EXPECT_EQ(session.base.ligmois.recordCount(), 2);
}

TEST_F(LifecycleTest, ClosingDeletesTheHoursFromTheDateOnAndNothingElse)
{
    plant(1, june1, "8 9 10 11");
    plant(2, {2026, 6, 3}, "7");
    station.addAbsence(1, QStringLiteral("CP"), {2026, 6, 3}, {2026, 6, 4});
    station.host.expectQuestion(hoursAfter, false);
    EXPECT_FALSE(fermeLigne(session, line(1), {2026, 6, 3}).faite);
    EXPECT_EQ(stored(1, june1, 4), "8 9 10 11");
    station.host.expectQuestion(hoursAfter, true);
    EXPECT_TRUE(fermeLigne(session, line(1), {2026, 6, 3}).faite);
    EXPECT_EQ(stored(1, june1, 4), "8 9 - -");
    EXPECT_EQ(stored(2, {2026, 6, 3}, 1), "7");
    EXPECT_EQ(session.base.absences.recordCount(), 1);
    EXPECT_EQ(line(1).datefin, QDate(2026, 6, 2)) << "the closing date is the first day off";
    EXPECT_TRUE(fermeLigne(session, line(2), {2026, 6, 4}).faite) << "the day after the last hours";
    EXPECT_EQ(station.host.titles, QStringList(2, QStringLiteral("Velmora")));
    EXPECT_TRUE(operations().isEmpty()) << "lines aren't recorded in the journal";
}

TEST_F(LifecycleTest, ClosingAtTheFirstDateLeavesTheLineEmptyAndNothingForbidsIt)
{
    EXPECT_TRUE(fermeLigne(session, line(2), {2026, 6, 3}).faite);
    EXPECT_EQ(line(2).datefin, QDate(2026, 6, 2));
}

TEST_F(LifecycleTest, ReopeningAsksWithTheDateAndBringsNoHoursBack)
{
    const QString question = QStringLiteral("Réouvrir la ligne fermée au20/06/2026 ?"); // no blank: wanted
    station.host.expectQuestion(question, false);
    EXPECT_FALSE(reouvreLigne(session, line(2)).faite);
    EXPECT_EQ(line(2).datefin, QDate(2026, 6, 20));
    station.host.expectQuestion(question, true);
    EXPECT_TRUE(reouvreLigne(session, line(2)).faite);
    EXPECT_EQ(line(2).datefin, QDate(2099, 1, 1));
    EXPECT_EQ(station.host.titles.last(), "Velmora");
}

TEST_F(LifecycleTest, RenamingRefusesEveryNameThatALineHasOrHad)
{
    for (const char *name : {"BRUNO", " BRUNO ", "ANNE"}) { // of a closed line, and the line's own
        station.host.expectMessage(nameTaken);
        EXPECT_EQ(renommeLigne(session, line(1), QString::fromLatin1(name)).champ, ChampLigne::Nom);
    }
    EXPECT_TRUE(renommeLigne(session, line(1), QStringLiteral(" CLAIRE ")).faite);
    EXPECT_EQ(line(1).nom, "CLAIRE");
    EXPECT_EQ(line(1).datedeb, QDate(2020, 1, 1));
}

TEST_F(LifecycleTest, DeletingTakesTheHoursAndLeavesAbsencesAndFolders)
{
    plant(1, june1, "8 9");
    plant(2, {2026, 6, 3}, "7");
    station.addAbsence(1, QStringLiteral("CP"), june1, june1);
    ASSERT_TRUE(session.base.groupe.addNew().ok());
    session.base.groupe.values() = {QStringLiteral("SOINS"), 1, true};
    ASSERT_TRUE(session.base.groupe.update().ok());
    station.host.expectQuestion(hoursOfLine, false);
    EXPECT_FALSE(supprimeLigne(session, line(1)).faite);
    EXPECT_EQ(stored(1, june1, 2), "8 9");
    station.host.expectQuestion(hoursOfLine, true);
    EXPECT_TRUE(supprimeLigne(session, line(1)).faite);
    EXPECT_EQ(lines(), "2 BRUNO 260603 260620");
    EXPECT_EQ(stored(1, june1, 2), "- -");
    EXPECT_EQ(stored(2, {2026, 6, 3}, 1), "7");
    EXPECT_EQ(session.base.absences.recordCount(), 1);
    EXPECT_EQ(session.base.groupe.recordCount(), 1);
    EXPECT_TRUE(operations().isEmpty());
}

TEST_F(LifecycleTest, NewControlsReplaceTheOldAndTouchNothingElse)
{
    plant(1, june1, "8");
    ChampsControles controls;
    controls.bcontrolr = true;
    EXPECT_TRUE(redefinitControles(session, line(1), controls).faite);
    EXPECT_EQ(line(1).nrep, 4);
    EXPECT_TRUE(redefinitControles(session, line(1), {}).faite);
    EXPECT_EQ(line(1).nrep, 0);
    EXPECT_EQ(line(1).nom, "ANNE");
    EXPECT_EQ(stored(1, june1, 1), "8");
}

TEST_F(LifecycleTest, NoLockIsHeldWhileTheUserIsAsked)
{
    RawSqlite other(station.mainFile());
    plant(1, june1, "8");
    station.host.whenAsked = [&] { EXPECT_TRUE(other.run(QStringLiteral("UPDATE tnum SET num = 2"))); };
    station.host.expectQuestion(hoursAfter, true);
    EXPECT_TRUE(fermeLigne(session, line(1), june1).faite);
    station.host.expectQuestion(QStringLiteral("Réouvrir la ligne fermée au31/05/2026 ?"), true);
    EXPECT_TRUE(reouvreLigne(session, line(1)).faite);
    EXPECT_EQ(other.value(QStringLiteral("SELECT datefin FROM ligmois WHERE nump = 1")), "2099-01-01");
}

TEST_F(LifecycleTest, HoursThatAnotherWorkstationEntersMeanwhileAreAskedFor)
{
    for (const bool answer : {false, true}) {
        RawSqlite other(station.mainFile());
        otherWritesMeanwhile(other, QStringLiteral("INSERT INTO sitper (nump, dat, Val, heurdeb) "
                                                   "VALUES (1, '2026-06-03', -1, 480)"));
        station.host.expectQuestion(hoursAfter, answer);
        EXPECT_EQ(fermeLigne(session, line(1), {2026, 6, 2}).faite, answer);
        EXPECT_EQ(stored(1, june1, 3), answer ? "- - -" : "- - 8");
        EXPECT_EQ(line(1).datefin, answer ? june1 : QDate(2099, 1, 1));
        ASSERT_TRUE(other.run(QStringLiteral("DELETE FROM sitper")));
    }
}

TEST_F(LifecycleTest, ANameThatAnotherWorkstationTakesMeanwhileIsRefused)
{
    const QString insert = QStringLiteral("INSERT INTO ligmois (nump, nom, datedeb, datefin) "
                                          "VALUES (3, 'CLAIRE', '2026-01-01', '2099-01-01')");
    RawSqlite other(station.mainFile());
    otherWritesMeanwhile(other, insert);
    station.host.expectMessage(nameTaken);
    EXPECT_EQ(open("CLAIRE", june1).champ, ChampLigne::Nom);
    ASSERT_TRUE(other.run(QStringLiteral("DELETE FROM ligmois WHERE nump = 3")));
    otherWritesMeanwhile(other, insert);
    station.host.expectMessage(nameTaken);
    EXPECT_FALSE(renommeLigne(session, line(1), QStringLiteral("CLAIRE")).faite);
    EXPECT_EQ(line(1).nom, "ANNE");
}

TEST_F(LifecycleTest, ALineDeletedElsewhereIsToldAndNoOtherLineIsChanged)
{
    const Ligne gone = line(1);
    RawSqlite other(station.mainFile());
    ASSERT_TRUE(other.run(QStringLiteral("DELETE FROM ligmois WHERE nump = 1")));
    line(2); // the table stands on another row
    const std::string before = lines();
    const QString disk = QStringLiteral("Problème accès disque!");
    station.host.expectMessage(disk);
    EXPECT_FALSE(fermeLigne(session, gone, june1).faite);
    station.host.expectMessage(disk);
    EXPECT_FALSE(renommeLigne(session, gone, QStringLiteral("CLAIRE")).faite);
    station.host.expectMessage(disk);
    EXPECT_FALSE(supprimeLigne(session, gone).faite);
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(lines(), before);
}

TEST_F(LifecycleTest, ADiskThatFailsMidwayLeavesTheLineWholeAndAnotherTryDoesAll)
{
    plant(1, june1, "8 9 10");
    station.host.expectQuestion(hoursOfLine, true);
    faults.writesBefore = 2;
    station.host.expectQuestion(QStringLiteral("Problème accès disque! réessayer ?"), true);
    EXPECT_TRUE(supprimeLigne(session, line(1)).faite);
    EXPECT_EQ(stored(1, june1, 3), "- - -");
    EXPECT_EQ(lines(), "2 BRUNO 260603 260620");
    faults.commitFails = true;
    station.host.expectQuestion(QStringLiteral("Problème accès disque! réessayer ?"), true);
    EXPECT_TRUE(open("CLAIRE", june1).faite);
    EXPECT_EQ(lines(), "2 BRUNO 260603 260620, 3 CLAIRE 260601 990101");
}

} // namespace
} // namespace velmora::test
