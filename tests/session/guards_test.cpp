#include "session/batch.h"
#include "session/guards.h"

#include "support/raw_sqlite.h"
#include "support/workstation.h"

#include <QCoreApplication>
#include <QTimer>

namespace velmora::test
{
namespace
{

using store::EditMode;
using store::Status;

const QString bloquage = QStringLiteral("Bloquage par autre utilisateur! réessayer ?");
const QString disque = QStringLiteral("Problème accès disque! réessayer ?");

class GuardsTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    ScriptedHost &host = station.host;
    store::Table<Ligne> &ligmois = session.base.ligmois;
    RawSqlite other{station.mainFile()};

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("EMMA"));
        ASSERT_TRUE(ligmois.first());
        // The other workstation's lock shows soon.
        ASSERT_TRUE(session.base.engine.execute(QStringLiteral("PRAGMA busy_timeout = 20")).ok());
    }

    Status rename(const QString &nom)
    {
        Status status = editgarde(session, ligmois);
        if (!status.ok()) return status;
        ligmois.values().nom = nom;
        return ligmois.update();
    }
    bool otherWrites(int nump)
    {
        return other.run(QStringLiteral("INSERT INTO ligmois (nump) VALUES (%1)").arg(nump));
    }
    QString nameInFile() { return other.value(QStringLiteral("SELECT nom FROM ligmois WHERE nump = 1")); }
    void otherHolds() { ASSERT_TRUE(other.run(QStringLiteral("BEGIN IMMEDIATE"))); }
    void otherLetsGo() { ASSERT_TRUE(other.run(QStringLiteral("COMMIT"))); }
};

TEST_F(GuardsTest, FreeTableIsChangedWithoutAWord)
{
    EXPECT_TRUE(rename(QStringLiteral("EMMA B")).ok());
    EXPECT_TRUE(ajoutgarde(session, ligmois).ok());
    ligmois.cancelUpdate();
    EXPECT_TRUE(supprgarde(session, ligmois).ok());
    EXPECT_TRUE(ligmois.isEmpty());
}

TEST_F(GuardsTest, TableHeldInEditMakesEveryGuardAskAndNoEndTheProcess)
{
    ASSERT_TRUE(ligmois.edit().ok());
    const std::function<Status()> guards[] = {[&] { return editgarde(session, ligmois); },
                                              [&] { return ajoutgarde(session, ligmois); },
                                              [&] { return supprgarde(session, ligmois); }};
    for (const auto &guard : guards) {
        host.expectQuestion(bloquage, false);
        EXPECT_THROW(guard().ignore(), ProcessEnded);
    }
    EXPECT_EQ(host.titles.count(QStringLiteral("velmora")), 3);
    EXPECT_EQ(ligmois.editMode(), EditMode::InProgress);
    EXPECT_EQ(ligmois.recordCount(), 1);
}

TEST_F(GuardsTest, YesKeepsAskingWhileTheEditStandsAndGoesOnOnceItIsDropped)
{
    ASSERT_TRUE(ligmois.edit().ok());
    for (int i = 0; i < 3; ++i)
        host.expectQuestion(bloquage, true);
    host.whenAsked = [&, asked = 0]() mutable {
        if (++asked == 3) ligmois.cancelUpdate();
    };
    EXPECT_TRUE(editgarde(session, ligmois).ok());
}

TEST_F(GuardsTest, WaitsAThousandRoundsAndLetsNoEventRun)
{
    static int rounds = 0;
    static int freedAt = 0;
    static store::TableBase *held = nullptr;
    held = &ligmois;
    for (const bool asks : {false, true}) {
        ASSERT_TRUE(ligmois.edit().ok());
        rounds = 0;
        freedAt = asks ? 1000 : 999;
        if (asks) host.expectQuestion(bloquage, true);
        attendlibre(session, ligmois, bloquage, [] {
            if (++rounds == freedAt) held->cancelUpdate();
        });
        EXPECT_EQ(rounds, freedAt);
    }
    ASSERT_TRUE(ligmois.edit().ok());
    bool ran = false;
    QTimer::singleShot(0, qApp, [&ran] { ran = true; });
    host.expectQuestion(bloquage, true);
    host.whenAsked = [&] {
        EXPECT_FALSE(ran);
        ligmois.cancelUpdate();
    };
    EXPECT_TRUE(ajoutgarde(session, ligmois).ok());
}

TEST_F(GuardsTest, YesTriesAFailedUpdateAgainSoThatItsValuesAreNotLost)
{
    otherHolds();
    ASSERT_TRUE(ligmois.edit().ok());
    ligmois.values().nom = QStringLiteral("EMMA B");
    EXPECT_EQ(ligmois.update().code(), Status::Code::Busy);
    host.expectQuestion(bloquage, true);
    host.whenAsked = [&] { otherLetsGo(); };
    EXPECT_TRUE(editgarde(session, ligmois).ok());
    EXPECT_EQ(ligmois.values().nom, QStringLiteral("EMMA B"));
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA B"));
}

TEST_F(GuardsTest, NoLockIsHeldWhileTheUserIsAsked)
{
    host.expectQuestion(bloquage, true);
    host.whenAsked = [&] {
        EXPECT_TRUE(otherWrites(2));
        session.base.sitper.cancelUpdate();
    };
    enLot(session, [&] {
        const Status status = rename(QStringLiteral("EMMA B"));
        EXPECT_FALSE(otherWrites(3));
        EXPECT_TRUE(session.base.sitper.addNew().ok());
        EXPECT_TRUE(ajoutgarde(session, session.base.sitper).ok());
        session.base.sitper.cancelUpdate();
        EXPECT_FALSE(otherWrites(3)) << "the command goes on under its lock";
        return status;
    });
    EXPECT_EQ(other.rows(QStringLiteral("SELECT nump, nom FROM ligmois ORDER BY nump")),
              (QStringList{QStringLiteral("1|EMMA B"), QStringLiteral("2|")}));
}

TEST_F(GuardsTest, PauseWithinAPauseLeavesTheLockToTheFirst)
{
    enLot(session, [&] {
        {
            const Batch::Pause first(session.batch);
            {
                const Batch::Pause second(session.batch);
            }
            EXPECT_FALSE(session.base.engine.inTransaction());
        }
        EXPECT_TRUE(session.base.engine.inTransaction());
        return rename(QStringLiteral("EMMA B"));
    });
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA B"));
}

TEST_F(GuardsTest, CommandWaitsForAnotherWorkstationsLockAndLosesNothing)
{
    otherHolds();
    host.expectQuestion(bloquage, true);
    host.whenAsked = [&] { otherLetsGo(); };
    int runs = 0;
    enLot(session, [&] {
        ++runs;
        return rename(QStringLiteral("EMMA B"));
    });
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA B"));
}

TEST_F(GuardsTest, RefusedWaitEndsTheProcessBeforeTheCommandBegins)
{
    otherHolds();
    host.expectQuestion(bloquage, false);
    EXPECT_THROW(enLot(session,
                       [&] {
                           ADD_FAILURE() << "ran without the lock";
                           return Status{};
                       }),
                 ProcessEnded);
    EXPECT_EQ(session.batch, nullptr);
}

TEST_F(GuardsTest, FailedCommandKeepsItsRowsAndRunsAgainOnYes)
{
    host.expectQuestion(disque, true);
    host.whenAsked = [&] {
        EXPECT_EQ(nameInFile(), QStringLiteral("EMMA 1"));
        EXPECT_EQ(session.base.absences.editMode(), EditMode::None);
    };
    int runs = 0;
    enLot(session, [&] {
        const Status status = rename(QStringLiteral("EMMA %1").arg(++runs));
        EXPECT_TRUE(session.base.absences.addNew().ok());
        return runs == 1 ? Status{Status::Code::Io, {}} : status;
    });
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA 2"));
}

TEST_F(GuardsTest, BatchWithinABatchJoinsIt)
{
    enLot(session, [&] {
        enLot(session, [&] { return rename(QStringLiteral("EMMA B")); });
        EXPECT_TRUE(session.base.engine.inTransaction());
        return Status{};
    });
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA B"));
}

TEST_F(GuardsTest, FailedBatchWithinABatchLeavesTheOuterOnesEdit)
{
    host.expectQuestion(disque, true);
    enLot(session, [&] {
        EXPECT_TRUE(ligmois.edit().ok());
        ligmois.values().nom = QStringLiteral("EMMA B");
        int essai = 0;
        enLot(session, [&] { return ++essai == 1 ? Status{Status::Code::Full, {}} : Status{}; });
        return ligmois.update();
    });
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA B"));
}

TEST_F(GuardsTest, FailureThatAnotherTryCantMendGivesTheCommandUp)
{
    for (const auto code : {Status::Code::NoRow, Status::Code::Constraint, Status::Code::Misuse}) {
        host.expectMessage(QStringLiteral("Problème accès disque!"));
        EXPECT_FALSE(enLot(session, [&] {
            EXPECT_TRUE(rename(QStringLiteral("À MOITIÉ")).ok());
            return Status{code, {}};
        }));
        EXPECT_EQ(nameInFile(), QStringLiteral("EMMA"));
    }
}

TEST_F(GuardsTest, StepIsKeptOrTakenBackWhole)
{
    enLot(session, [&] {
        {
            BatchStep step(session);
            EXPECT_TRUE(rename(QStringLiteral("GARDÉ")).ok());
            step.keep();
        }
        const BatchStep step(session);
        return rename(QStringLiteral("REPRIS"));
    });
    EXPECT_EQ(nameInFile(), QStringLiteral("GARDÉ"));
}

TEST_F(GuardsTest, LostJournalDoesNotStopThePlanning)
{
    session.journal.close();
    enLot(session, [&] { return rename(QStringLiteral("EMMA B")); });
    EXPECT_EQ(nameInFile(), QStringLiteral("EMMA B"));
}

TEST_F(GuardsTest, PassReadsOneStateOfTheFile)
{
    {
        const ReadPass pass(session.base.engine);
        EXPECT_EQ(ligmois.recordCount(), 1);
        EXPECT_FALSE(otherWrites(2));
        EXPECT_EQ(ligmois.recordCount(), 1);
    }
    EXPECT_TRUE(otherWrites(2));
    EXPECT_EQ(ligmois.recordCount(), 2);
}

} // namespace
} // namespace velmora::test
