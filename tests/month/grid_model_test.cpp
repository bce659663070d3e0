#include "month/grid_model.h"

#include "month/open_month.h"

#include <QAbstractItemModelTester>
#include <QRect>
#include <QSignalSpy>

namespace velmora::test
{
namespace
{

class GridModelTest : public testing::Test
{
protected:
    Workstation station;

    void SetUp() override
    {
        for (const int nump : {1, 2, 3})
            station.addLine(nump, QStringLiteral("LIGNE %1").arg(nump));
    }
};

TEST_F(GridModelTest, KeepsAModelsPromisesThroughLoadRefillAndRemoval)
{
    Planning planning(station.session, 6, 2026);
    ModeleGrille model(planning);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    ASSERT_TRUE(chargi(planning, {}));
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.columnCount(), planning.colonnes.nombre() - Grille::colonnesFixes);
    station.addDay(2, {2026, 6, 15}, 480, 960);
    majligne(planning, 2, planning.grille.ligneDe(2));
    retireRangee(planning, planning.grille.ligneDe(3));
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(GridModelTest, CountsRowsAndColumnsPastTheFixedOnes)
{
    station.addDay(2, {2026, 5, 4}, 480, 960);
    OpenMonth month(station, 6, 2026);
    const ModeleGrille model(month.planning);
    const QModelIndex cell = model.index(1, 0);
    EXPECT_EQ(model.data(cell, Qt::DisplayRole).toString(), QStringLiteral("8h00 - 16h00"));
    EXPECT_EQ(model.data(cell, Qt::AccessibleTextRole).toString(),
              QStringLiteral("LIGNE 2 L04 8h00 - 16h00"));
    EXPECT_EQ(ModeleGrille::ligneGrille(cell.row()), month.row(2));
    EXPECT_EQ(ModeleGrille::colonneGrille(cell.column()), month.column({2026, 5, 4}));
    EXPECT_EQ(model.headerData(1, Qt::Vertical, Qt::DisplayRole).toString(), QStringLiteral("LIGNE 2"));
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("L04"));
    EXPECT_FALSE(model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.headerData(4, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
}

TEST_F(GridModelTest, TellsOnlyTheCellsThatAnEditTouches)
{
    OpenMonth month(station, 6, 2026);
    ModeleGrille model(month.planning);
    QList<QRect> changed;
    QObject::connect(&model, &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex &from, const QModelIndex &to) {
                         changed << QRect(QPoint(from.column(), from.row()), QPoint(to.column(), to.row()));
                     });
    station.addDay(1, {2026, 6, 15}, 480, 960);
    month.refill(1);
    const int from = ModeleGrille::colonneVue(month.column({2026, 6, 15}));
    const int to = ModeleGrille::colonneVue(month.totalColumn({2026, 6, 30}, false));
    // The line's row and the row of totals, from the day to the total of its month; the rows between rest.
    EXPECT_EQ(changed,
              (QList<QRect>{QRect(QPoint(from, 0), QPoint(to, 0)), QRect(QPoint(from, 3), QPoint(to, 3))}));
}

TEST_F(GridModelTest, TellsTheHeadersOfAMovedHighlight)
{
    OpenMonth month(station, 6, 2026);
    month.moveTo(1, {2026, 6, 15});
    ModeleGrille model(month.planning);
    QSignalSpy headers(&model, &ModeleGrille::enteteChangee);
    month.moveTo(2, {2026, 6, 16});
    QList<Qt::Orientation> told;
    for (const auto &one : headers)
        told << one.front().value<Qt::Orientation>();
    EXPECT_TRUE(told.contains(Qt::Horizontal));
    EXPECT_TRUE(told.contains(Qt::Vertical));
}

} // namespace
} // namespace velmora::test
