#include "entry/storing.h"

#include "entry/derivation.h"
#include "entry/typed_entry.h"
#include "support/faulty_engine.h"
#include "support/workstation.h"

namespace velmora::test
{
namespace
{

using store::Cmp;

const QString disque = QStringLiteral("Problème accès disque! réessayer ?");

class StoringTest : public testing::Test
{
protected:
    Faults faults;
    Workstation station{QDate(2026, 6, 15), std::make_unique<FaultyEngine>(faults)};
    Session &session = station.session;

    void SetUp() override { station.addLine(3, QStringLiteral("ANNE")); }

    void store(const QDate &dd, const QDate &df, const QStringList &heures)
    {
        const auto saisie = normaliseTranches(heures);
        ASSERT_TRUE(saisie.has_value());
        const JourneeSaisie journee{dd, df, 3, QStringLiteral("ANNE"), {}, {}};
        ecrihor(session, journee, jourDeSaisie(saisie->textes(), saisie->total()));
    }

    JourSit day(const QDate &date)
    {
        session.base.sitper.setIndex("sitper01");
        EXPECT_TRUE(session.base.sitper.seek(Cmp::Eq, {3, date}));
        return session.base.sitper.row();
    }

    int operations()
    {
        int inForce = 0;
        auto operations = session.journal.logop.range("logop01", {}, {});
        while (operations.next())
            inForce += operations.row().valop ? 1 : 0;
        return inForce;
    }

    QStringList images()
    {
        QStringList seen;
        auto &sitlog = session.journal.sitlog;
        for (bool found = sitlog.first(); found; found = sitlog.next())
            seen << QString::number(sitlog.row().rang.numop) + sitlog.row().rang.avap +
                        sitlog.row().rang.foncop + QString::number(sitlog.row().jour.dat.day());
        return seen;
    }
};

TEST_F(StoringTest, OneEntryIsOneOperationHoweverManyDays)
{
    store(QDate(2026, 6, 1), QDate(2026, 7, 1), {"8h00", "12h00", "14h00", "18h00"});
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(session.base.sitper.recordCount(), 31);
    EXPECT_EQ(session.journal.sitlog.recordCount(), 31);
    ASSERT_TRUE(session.journal.logop.seek(Cmp::Eq, {1}));
    EXPECT_EQ(session.journal.logop.row().libop,
              QStringLiteral("nouvel horaire: ANNE du 01/06 au 01/07/2026"));
    EXPECT_EQ(session.journal.logop.row().ficop, QStringLiteral("S"));
    const JourSit jour = day(QDate(2026, 6, 17));
    EXPECT_EQ(jour.heurdeb, 480);
    EXPECT_EQ(jour.heurfin, 1080);
    EXPECT_EQ(jour.hideb, 720);
    EXPECT_EQ(jour.hifin, 840);
    EXPECT_EQ(jour.heurtrav, 480);
    EXPECT_EQ(jour.Type, 1);
    EXPECT_TRUE(jour.Val);
    EXPECT_EQ(jour.datj, station.host.now());
    EXPECT_FALSE(jour.horaire.isNull());
    EXPECT_TRUE(jour.horaire.isEmpty());
}

TEST_F(StoringTest, ReplacesAHiddenRowAndRecordsItFirst)
{
    station.addDay(3, QDate(2026, 6, 2), 600, 660, 0, 0, false);
    station.addAbsence(3, QStringLiteral("CP"), QDate(2026, 6, 1), QDate(2026, 6, 5));
    store(QDate(2026, 6, 2), QDate(2026, 6, 2), {"22h00", "6h00"});
    const JourSit jour = day(QDate(2026, 6, 2));
    EXPECT_TRUE(jour.Val);
    EXPECT_EQ(jour.heurfin, 360);
    EXPECT_EQ(session.base.absences.recordCount(), 1);
    EXPECT_EQ(images(), (QStringList{"1AD2", "1PA2"}));
}

TEST_F(StoringTest, LockedFileAsksAndTheSecondTryWritesEverything)
{
    store::SqliteEngine other;
    ASSERT_TRUE(other.open(station.mainFile(), {}).ok());
    ASSERT_TRUE(session.base.engine.execute(QStringLiteral("PRAGMA busy_timeout = 20")).ok());
    ASSERT_TRUE(other.begin(store::Engine::Transaction::Write).ok());
    station.host.expectQuestion(QStringLiteral("Bloquage par autre utilisateur! réessayer ?"), true);
    station.host.whenAsked = [&] { other.rollback(); };
    store(QDate(2026, 6, 1), QDate(2026, 6, 3), {"8h00", "12h00"});
    EXPECT_EQ(session.base.sitper.recordCount(), 3);
}

TEST_F(StoringTest, FailureHalfwayKeepsTheDatesBeforeItAndRefusalEndsTheProcess)
{
    station.addDay(3, QDate(2026, 6, 3), 600, 660);
    // The third date's row is deleted, then its insertion fails.
    faults.writesBefore = 3;
    station.host.expectQuestion(disque, false);
    EXPECT_THROW(store(QDate(2026, 6, 1), QDate(2026, 6, 5), {"8h00", "12h00"}), ProcessEnded);
    EXPECT_EQ(session.base.sitper.recordCount(), 3);
    EXPECT_EQ(day(QDate(2026, 6, 2)).heurdeb, 480);
    EXPECT_EQ(day(QDate(2026, 6, 3)).heurdeb, 600);
    EXPECT_FALSE(session.base.engine.inTransaction());
    EXPECT_EQ(images(), (QStringList{"1PA1", "1PA2"})) << "no image of the date that was taken back";
}

TEST_F(StoringTest, RetriedEntryIsOneOperationThatKnowsEveryRowItReplaced)
{
    for (const int date : {1, 2, 3})
        station.addDay(3, QDate(2026, 6, date), 600, 660);
    faults.writesBefore = 3;
    station.host.expectQuestion(disque, true);
    store(QDate(2026, 6, 1), QDate(2026, 6, 3), {"8h00", "12h00"});
    EXPECT_EQ(operations(), 1);
    EXPECT_EQ(images(), (QStringList{"1AD1", "1PA1", "1AD1", "1PA1", "1AD2", "1PA2", "1AD3", "1PA3"}));
    ASSERT_TRUE(session.journal.sitlog.first());
    EXPECT_EQ(session.journal.sitlog.row().jour.heurdeb, 600);
}

TEST_F(StoringTest, NothingOfAnEntryStandsWhenTheEngineGivesItsTransactionUp)
{
    store(QDate(2026, 6, 1), QDate(2026, 6, 1), {"6h00", "7h00"});
    faults.writesBefore = 3; // in the second date
    faults.whenStruck = [this] { session.base.engine.execute(QStringLiteral("ROLLBACK")).ignore(); };
    station.host.expectQuestion(disque, false);
    EXPECT_THROW(store(QDate(2026, 6, 1), QDate(2026, 6, 3), {"8h00", "12h00"}), ProcessEnded);
    EXPECT_EQ(session.base.sitper.recordCount(), 1);
    EXPECT_EQ(operations(), 1);
    EXPECT_EQ(images(), QStringList{"1PA1"});
    EXPECT_EQ(session.opcour, 1);
}

} // namespace
} // namespace velmora::test
