#include "support/raw_sqlite.h"
#include "support/workstation.h"

namespace velmora::test
{
namespace
{

/// The planning's files beside another program that knows SQL and nothing of the system.
class ExternalToolsTest : public testing::Test
{
protected:
    Workstation station;
    store::MainDatabase &base = station.session.base;
    RawSqlite tool{station.mainFile()};
};

TEST_F(ExternalToolsTest, FileHoldsIsoDatesAndMinusOneForTrue)
{
    station.addDay(7, QDate(2026, 6, 3), 1320, 360);
    ASSERT_TRUE(base.sitper.first() && base.sitper.edit().ok());
    base.sitper.values().datj = QDateTime(QDate(2026, 6, 1), QTime(7, 5, 9));
    ASSERT_TRUE(base.sitper.update().ok());
    EXPECT_EQ(tool.value(QStringLiteral("SELECT nump, dat, Val, babs, heurdeb, datj FROM sitper")),
              QStringLiteral("7|2026-06-03|-1|0|1320|2026-06-01T07:05:09"));
}

TEST_F(ExternalToolsTest, EveryTableTakesRowsAndOldRowsStayWhole)
{
    for (const store::Schema *schema : store::MainDatabase::schemas()) {
        QStringList names;
        QStringList values;
        for (const store::Column &column : schema->columns) {
            names << column.name;
            values << (column.isText() ? QStringLiteral("'2026-06-03'") : QStringLiteral("-1"));
        }
        EXPECT_TRUE(tool.run(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                 .arg(schema->table, names.join(u','), values.join(u','))))
            << schema->table.toStdString();
        EXPECT_TRUE(tool.run(QStringLiteral("UPDATE %1 SET %2 = %2").arg(schema->table, names.last())));
    }
    EXPECT_TRUE(base.sitper.first() && base.sitper.row().babs);
    EXPECT_TRUE(base.absences.last() && base.absences.row().datefin == QDate(2026, 6, 3));
    EXPECT_TRUE(base.codabs.first() && base.codabs.row().modabs == -1);
    EXPECT_EQ(tool.value(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
}

TEST_F(ExternalToolsTest, RowsWithoutTheirKeyDontEndAWalk)
{
    ASSERT_TRUE(tool.run(QStringLiteral("INSERT INTO ligmois (nump) VALUES (1), (2)")));
    ASSERT_TRUE(tool.run(QStringLiteral("INSERT INTO ligmois (nump, nom) VALUES (3, 'EMMA')")));
    ASSERT_TRUE(tool.run(QStringLiteral("INSERT INTO ligmois (nump, nom) VALUES (4, NULL)")));
    EXPECT_FALSE(tool.run(QStringLiteral("INSERT INTO ligmois (nump, nom) VALUES (NULL, 'ZOE')")));
    ASSERT_TRUE(tool.run(QStringLiteral("INSERT INTO absences (nump, datedeb) VALUES (1, NULL)")));
    EXPECT_TRUE(base.absences.first() && !base.absences.row().datedeb.isValid());
    ASSERT_TRUE(base.ligmois.addNew().ok());
    base.ligmois.values().nump = 5;
    ASSERT_TRUE(base.ligmois.update().ok()) << "an unset name is an empty one";
    base.ligmois.setIndex("ligmois02");
    QList<int> forward;
    for (bool found = base.ligmois.first(); found; found = base.ligmois.next())
        forward << base.ligmois.row().nump;
    EXPECT_EQ(forward, (QList<int>{1, 2, 4, 5, 3}));
    QList<int> backward;
    for (bool found = base.ligmois.last(); found; found = base.ligmois.previous())
        backward.prepend(base.ligmois.row().nump);
    EXPECT_EQ(backward, forward);
    EXPECT_TRUE(base.ligmois.seek(store::Cmp::Eq, {QString()}));
}

TEST_F(ExternalToolsTest, NullsOfOtherColumnsReadAsTheirEmptyValue)
{
    ASSERT_TRUE(tool.run(QStringLiteral("INSERT INTO codabs (codabs, modabs, libelong, bcouleur) VALUES "
                                        "('CP', NULL, NULL, NULL), ('RT', 0, '', 0)")));
    ASSERT_TRUE(base.codabs.first());
    EXPECT_EQ(base.codabs.row().modabs, std::nullopt);
    EXPECT_TRUE(base.codabs.row().libelong.isNull());
    EXPECT_FALSE(base.codabs.row().bcouleur);
    ASSERT_TRUE(base.codabs.edit().ok() && base.codabs.update().ok());
    ASSERT_TRUE(base.codabs.next());
    EXPECT_EQ(base.codabs.row().modabs, 0);
    EXPECT_FALSE(base.codabs.row().libelong.isNull());
    ASSERT_TRUE(base.codabs.edit().ok() && base.codabs.update().ok());
    EXPECT_EQ(tool.rows(QStringLiteral("SELECT modabs, libelong FROM codabs ORDER BY codabs")),
              (QStringList{QStringLiteral("NULL|NULL"), QStringLiteral("0|")}));
}

TEST_F(ExternalToolsTest, TextThatIsNoDateReadsAsNone)
{
    for (const char *text : {"", "hier", "abcd-01-05", "2026-13-01", "2026-02-30", "03/06/2026"}) {
        ASSERT_TRUE(tool.run(QStringLiteral("DELETE FROM absences")));
        ASSERT_TRUE(tool.run(QStringLiteral("INSERT INTO absences (nump, datefin) VALUES (1, '%1')")
                                 .arg(QLatin1String(text))));
        ASSERT_TRUE(base.absences.first());
        EXPECT_FALSE(base.absences.row().datefin.isValid()) << text;
    }
}

TEST_F(ExternalToolsTest, EditReadsTheRowAgainAndTellsALockFromAMissingRow)
{
    station.addLine(1, QStringLiteral("EMMA"));
    ASSERT_TRUE(base.ligmois.first());
    ASSERT_TRUE(base.engine.execute(QStringLiteral("PRAGMA busy_timeout = 20")).ok());
    ASSERT_TRUE(tool.run(QStringLiteral("UPDATE ligmois SET maxs = 2880")));
    ASSERT_TRUE(base.ligmois.edit().ok());
    EXPECT_EQ(base.ligmois.values().maxs, 2880);
    base.ligmois.cancelUpdate();
    ASSERT_TRUE(tool.run(QStringLiteral("BEGIN EXCLUSIVE")));
    EXPECT_EQ(base.ligmois.edit().code(), store::Status::Code::Busy);
    EXPECT_FALSE(base.ligmois.seek(store::Cmp::Eq, {1}));
    EXPECT_EQ(base.ligmois.status().code(), store::Status::Code::Busy);
    ASSERT_TRUE(tool.run(QStringLiteral("DELETE FROM ligmois; COMMIT")));
    EXPECT_EQ(base.ligmois.edit().code(), store::Status::Code::NoRow);
    EXPECT_EQ(base.ligmois.editMode(), store::EditMode::None);
}

TEST_F(ExternalToolsTest, UpdateOfARowDeletedMeanwhileFails)
{
    station.addLine(1, QStringLiteral("EMMA"));
    station.addDay(1, QDate(2026, 6, 3), 480, 960);
    ASSERT_TRUE(base.ligmois.first() && base.ligmois.edit().ok());
    ASSERT_TRUE(base.sitper.first() && base.sitper.edit().ok());
    ASSERT_TRUE(tool.run(QStringLiteral("DELETE FROM ligmois; DELETE FROM sitper")));
    EXPECT_EQ(base.ligmois.update().code(), store::Status::Code::NoRow);
    EXPECT_EQ(base.sitper.update().code(), store::Status::Code::NoRow);
    EXPECT_EQ(base.ligmois.editMode(), store::EditMode::InProgress);
}

} // namespace
} // namespace velmora::test
