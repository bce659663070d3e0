#include "support/workstation.h"

namespace velmora::test
{
namespace
{

using store::Cmp;

QList<int> walk(store::Table<JourSit> &table)
{
    QList<int> days;
    for (bool found = table.first(); found; found = table.next())
        days << table.row().nump * 100 + table.row().dat.day();
    return days;
}

class TableTest : public testing::Test
{
protected:
    Workstation station;
    store::Table<JourSit> &sitper = station.session.base.sitper;

    void SetUp() override
    {
        for (const int nump : {1, 2})
            for (const int day : {3, 5, 9})
                station.addDay(nump, QDate(2026, 6, day), 480, 960);
        sitper.setIndex("sitper01");
    }
};

TEST_F(TableTest, SeeksEachComparisonOnAWholeKeyAndOnItsFirstColumn)
{
    struct Case {
        Cmp comparison;
        store::Key key;
        int expected; ///< line * 100 + day, 0 for none
    };
    const QDate fourth(2026, 6, 4);
    const QDate fifth(2026, 6, 5);
    const Case cases[] = {
        {Cmp::Eq, {1, fifth}, 105},
        {Cmp::Eq, {1, fourth}, 0},
        {Cmp::Ge, {1, fourth}, 105},
        {Cmp::Ge, {1, fifth}, 105},
        {Cmp::Gt, {1, fifth}, 109},
        {Cmp::Lt, {1, fifth}, 103},
        {Cmp::Le, {1, fifth}, 105},
        {Cmp::Lt, {1, QDate(2026, 6, 1)}, 0},
        {Cmp::Gt, {2, QDate(2026, 6, 9)}, 0},
        {Cmp::Eq, {2}, 203},
        {Cmp::Ge, {2}, 203},
        {Cmp::Gt, {1}, 203},
        {Cmp::Lt, {2}, 109},
        {Cmp::Le, {2}, 209},
        {Cmp::Lt, {1}, 0},
    };
    for (const Case &one : cases) {
        const bool found = sitper.seek(one.comparison, one.key);
        EXPECT_EQ(found, one.expected != 0);
        if (found) {
            EXPECT_EQ(sitper.row().nump * 100 + sitper.row().dat.day(), one.expected);
        }
    }
}

TEST_F(TableTest, WalkStaysRightWhileRowsGoUnderIt)
{
    QList<int> seen;
    for (bool found = sitper.first(); found; found = sitper.next()) {
        seen << sitper.row().nump * 100 + sitper.row().dat.day();
        if (sitper.row().nump == 1) {
            EXPECT_TRUE(sitper.erase().ok());
        }
    }
    EXPECT_EQ(seen, (QList<int>{103, 105, 109, 203, 205, 209}));
    EXPECT_EQ(walk(sitper), (QList<int>{203, 205, 209}));
    sitper.setIndex("sitper02");
    ASSERT_TRUE(sitper.last());
    ASSERT_TRUE(sitper.previous());
    EXPECT_EQ(sitper.row().dat.day(), 5);
}

TEST_F(TableTest, FailedUpdateKeepsTheEditAndItsValues)
{
    ASSERT_TRUE(sitper.addNew().ok());
    sitper.values() = JourSit{};
    sitper.values().nump = 1;
    sitper.values().dat = QDate(2026, 6, 5);
    EXPECT_EQ(sitper.update().code(), store::Status::Code::Constraint);
    EXPECT_EQ(sitper.editMode(), store::EditMode::Add);
    EXPECT_TRUE(sitper.updatePending());
    sitper.values().dat = QDate(2026, 6, 6);
    EXPECT_TRUE(sitper.update().ok());
    EXPECT_EQ(sitper.editMode(), store::EditMode::None);
    EXPECT_TRUE(sitper.goTo(sitper.lastModified()));
    EXPECT_EQ(sitper.row().dat, QDate(2026, 6, 6));
}

TEST_F(TableTest, UpdateWritesTheEditedRowWhateverIsSoughtMeanwhile)
{
    ASSERT_TRUE(sitper.seek(Cmp::Eq, {1, QDate(2026, 6, 5)}) && sitper.edit().ok());
    sitper.values().heurdeb = 77;
    EXPECT_EQ(sitper.current().heurdeb, 480);
    ASSERT_TRUE(sitper.seek(Cmp::Eq, {2, QDate(2026, 6, 9)}));
    ASSERT_TRUE(sitper.update().ok());
    EXPECT_EQ(sitper.row().nump, 2);
    EXPECT_EQ(sitper.row().heurdeb, 480);
    ASSERT_TRUE(sitper.goTo(sitper.lastModified()));
    EXPECT_EQ(sitper.row().dat, QDate(2026, 6, 5));
    EXPECT_EQ(sitper.row().heurdeb, 77);
    EXPECT_EQ(walk(sitper).size(), 6);
}

TEST_F(TableTest, EndsOfAnEmptyTableLeaveNoRowToActOn)
{
    ASSERT_TRUE(sitper.first());
    ASSERT_TRUE(station.session.base.engine.execute(QStringLiteral("DELETE FROM sitper")).ok());
    EXPECT_FALSE(sitper.last());
    EXPECT_TRUE(sitper.atEnd());
    EXPECT_EQ(sitper.edit().code(), store::Status::Code::NoRow);
}

TEST_F(TableTest, ReadsARowWrittenWithOnlyTheFieldsThatMatter)
{
    ASSERT_TRUE(station.session.base.engine
                    .execute(QStringLiteral("INSERT INTO sitper (nump, dat, Val, heurdeb, heurfin) VALUES "
                                            "(7, '2026-06-03', -1, 480, 960)"))
                    .ok());
    ASSERT_TRUE(sitper.seek(Cmp::Eq, {7, QDate(2026, 6, 3)}));
    EXPECT_TRUE(sitper.row().Val);
    EXPECT_EQ(sitper.row().heurfin, 960);
    EXPECT_EQ(sitper.row().hifin2, 0);
    EXPECT_TRUE(sitper.row().horaire.isNull());
}

TEST_F(TableTest, RangeLeavesTheCurrentRowAndReadsBothEnds)
{
    ASSERT_TRUE(sitper.seek(Cmp::Eq, {2, QDate(2026, 6, 3)}));
    auto days = sitper.range("sitper01", {1, QDate(2026, 6, 5)}, {1, QDate(2026, 6, 9)},
                             store::Columns<JourSit>::of(&JourSit::dat, &JourSit::heurfin));
    QList<int> seen;
    while (days.next())
        seen << days.row().dat.day();
    EXPECT_EQ(seen, (QList<int>{5, 9}));
    EXPECT_EQ(days.row().heurfin, 960);
    EXPECT_EQ(sitper.row().nump, 2);
}

TEST_F(TableTest, PassWithinAPassOverTheSameColumnsFailsVisibly)
{
    auto outer = sitper.range("sitper01", {1}, {1});
    ASSERT_TRUE(outer.next());
    auto inner = sitper.range("sitper01", {2}, {2});
    EXPECT_FALSE(inner.next());
    EXPECT_FALSE(inner.status().ok());
}

/// A table whose rows aren't told apart by their key.
class SameKeyTest : public testing::Test
{
protected:
    Workstation station;
    store::Table<AbsenceSaisie> &absences = station.session.base.absences;

    void SetUp() override
    {
        for (const char *code : {"A", "B", "C", "D"})
            station.addAbsence(1, QString::fromLatin1(code), QDate(2026, 6, 3), QDate(2026, 6, 3));
    }
    QString codes(bool forward)
    {
        QString seen;
        for (bool found = forward ? absences.first() : absences.last(); found;
             found = forward ? absences.next() : absences.previous())
            seen += absences.row().codabs;
        return seen;
    }
};

TEST_F(SameKeyTest, WalksSeeEveryRowOfOneKeyBothWays)
{
    EXPECT_EQ(codes(true), QStringLiteral("ABCD"));
    EXPECT_EQ(codes(false), QStringLiteral("DCBA"));
}

TEST_F(SameKeyTest, DeletionStepsOnToTheNeighbour)
{
    ASSERT_TRUE(absences.first() && absences.next());
    ASSERT_TRUE(absences.erase().ok());
    EXPECT_FALSE(absences.hasRow());
    EXPECT_EQ(absences.erase().code(), store::Status::Code::NoRow);
    ASSERT_TRUE(absences.next());
    EXPECT_EQ(absences.row().codabs, QStringLiteral("C"));
    EXPECT_EQ(codes(true), QStringLiteral("ACD"));
}

TEST_F(SameKeyTest, BookmarkFindsItsRowAmongEqualsUntilItIsGone)
{
    ASSERT_TRUE(absences.first() && absences.next());
    const auto mark = absences.bookmark();
    ASSERT_TRUE(absences.last());
    ASSERT_TRUE(absences.goTo(mark));
    EXPECT_EQ(absences.row().codabs, QStringLiteral("B"));
    ASSERT_TRUE(absences.erase().ok());
    ASSERT_TRUE(absences.first());
    EXPECT_FALSE(absences.goTo(mark));
    EXPECT_TRUE(absences.status().ok());
    EXPECT_EQ(absences.row().codabs, QStringLiteral("A"));
}

TEST_F(SameKeyTest, NewRowLeavesTheCurrentOneUntilItIsGoneTo)
{
    ASSERT_TRUE(absences.first());
    station.addAbsence(2, QStringLiteral("E"), QDate(2026, 6, 3), QDate(2026, 6, 3));
    EXPECT_EQ(absences.row().codabs, QStringLiteral("A"));
    ASSERT_TRUE(absences.goTo(absences.lastModified()));
    EXPECT_EQ(absences.row().nump, 2);
}

TEST(FoldersTest, FoldersOfALineComeInFrenchOrder)
{
    Workstation station;
    auto &groupe = station.session.base.groupe;
    for (const char *nom : {"zone", "Été", "atelier", "étage"}) {
        for (const int nump : {1, 2}) {
            ASSERT_TRUE(groupe.addNew().ok());
            groupe.values() = {QString::fromUtf8(nom), nump, true};
            ASSERT_TRUE(groupe.update().ok());
        }
    }
    groupe.setIndex("groupeng");
    QStringList order;
    for (bool found = groupe.seek(Cmp::Ge, {2}); found && groupe.row().nump == 2; found = groupe.next())
        order << groupe.row().groupe;
    EXPECT_EQ(order.join(u' '), QStringLiteral("atelier étage Été zone"));
    groupe.setIndex("groupegn");
    EXPECT_TRUE(groupe.seek(Cmp::Eq, {QStringLiteral("Été"), 2}));
    EXPECT_FALSE(groupe.seek(Cmp::Eq, {QStringLiteral("été"), 2}));
}

TEST(NamesTest, SortAsAFrenchReaderExpectsAndStayWritableBySqlTools)
{
    Workstation station;
    auto &base = station.session.base;
    for (const char *nom : {"zoé", "Été", "ete", "étage", "Etage", "EMMA"}) {
        ASSERT_TRUE(base.engine
                        .execute(QStringLiteral("INSERT INTO ligmois (nump, nom) VALUES ((SELECT "
                                                "coalesce(max(nump), 0) + 1 FROM ligmois), '%1')")
                                     .arg(QString::fromUtf8(nom)))
                        .ok());
    }
    QStringList order;
    base.ligmois.setIndex("ligmois02");
    for (bool found = base.ligmois.first(); found; found = base.ligmois.next())
        order << base.ligmois.row().nom;
    EXPECT_EQ(order.join(u' '), QStringLiteral("EMMA Etage étage ete Été zoé"));
}

} // namespace
} // namespace velmora::test
