#include "output/horairp.h"

#include "support/modal.h"
#include "support/pdf.h"
#include "support/workstation.h"

#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace velmora::test
{
namespace
{

class HorairpTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void SetUp() override
    {
        session.impdate = {2026, 6, 1};
        session.impdeb = {2026, 6, 30};
        session.impfin = {2020, 1, 1}; // another command's
        station.addLine(1, QStringLiteral("ANNE"));
    }
    static QStringList row(const Horairp &form, int number)
    {
        const auto *model = control<QTableView>(form, "mg").model();
        QStringList texts;
        for (int column = 0; column < model->columnCount(); ++column)
            texts << model->index(number, column).data().toString();
        return texts;
    }
};

TEST_F(HorairpTest, ShowsEachScheduleOnceWithItsBarAndSortsByAnyColumn)
{
    station.addDay(1, {2026, 6, 2}, 480, 1080, 720, 840);
    station.addDay(1, {2026, 6, 3}, 1320, 360);
    station.addDay(1, {2026, 6, 4}, 1320, 360);
    Horairp form(session);
    form.show();
    QTest::qWait(30);
    EXPECT_EQ(form.windowTitle(), "Horaires pratiqués");
    EXPECT_EQ(row(form, 0), QStringList({"8h00", "18h00", "12h00", "14h00", "", "", "8h00", "1"}));
    EXPECT_EQ(row(form, 1), QStringList({"22h00", "6h00", "", "", "", "", "8h00", "2"}));
    auto &table = control<QTableView>(form, "mg");
    // The bars lie beside their rows: work is dark, a cut and the rest are light.
    auto &bars = control<QWidget>(form, "Picture1");
    const QImage picture = bars.grab().toImage();
    const auto dark = [&](int line, double hour) {
        const int y = table.rowViewportPosition(line) + table.rowHeight(line) / 2;
        return qBlue(picture.pixel(static_cast<int>(hour / 24 * picture.width()), y)) > 0xb0 &&
               qRed(picture.pixel(static_cast<int>(hour / 24 * picture.width()), y)) < 0x80;
    };
    for (const double hour : {8.5, 11.5, 14.5, 17.5})
        EXPECT_TRUE(dark(0, hour)) << hour;
    for (const double hour : {7.5, 12.5, 13.5, 18.5})
        EXPECT_FALSE(dark(0, hour)) << hour;
    for (const double hour : {0.5, 5.5, 22.5, 23.5})
        EXPECT_TRUE(dark(1, hour)) << hour;
    EXPECT_FALSE(dark(1, 6.5));
    QHeaderView &header = *table.horizontalHeader();
    const QPoint count(header.sectionViewportPosition(7) + 5, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, count);
    EXPECT_EQ(row(form, 0).last(), "1");
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, count);
    EXPECT_EQ(row(form, 0).last(), "2");
    QTest::mouseClick(&control<QPushButton>(form, "Command1"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(HorairpTest, PrintsTheRowsAsTheyAreSorted)
{
    station.addDay(1, {2026, 6, 2}, 480, 1080);
    station.addDay(1, {2026, 6, 3}, 540, 1080);
    station.addDay(1, {2026, 6, 4}, 540, 1080);
    Horairp form(session);
    form.show();
    EXPECT_FALSE(control<QPushButton>(form, "Command2").isEnabled());
    QTest::qWait(30);
    control<QTableView>(form, "mg").horizontalHeader()->setSortIndicator(7, Qt::DescendingOrder);
    emit control<QTableView>(form, "mg").horizontalHeader()->sectionClicked(7);
    const QTemporaryDir folder;
    const QString file = folder.filePath("print.pdf");
    onModal([&](QWidget &modal) {
        control<QLineEdit>(modal, "fileNameEdit").setText(file);
        QTest::keyClick(&modal, Qt::Key_Return);
    });
    QTest::mouseClick(&control<QPushButton>(form, "Command2"), Qt::LeftButton);
    const QStringList lines = PdfFile(file).lines();
    EXPECT_EQ(lines.value(1), "Horaires Pratiqués du 01/06/2026 au 30/06/2026");
    EXPECT_EQ(lines.mid(3), QStringList({"9h00 18h00 9h00 2", "8h00 18h00 10h00 1"}));
    EXPECT_TRUE(form.isVisible());
}

TEST_F(HorairpTest, APeriodWithoutDataIsToldAndTheReportHides)
{
    station.addDay(1, {2026, 7, 1}, 480, 1080);
    station.host.expectMessage("planning non généré");
    Horairp form(session);
    form.show();
    QTest::qWait(30);
    EXPECT_EQ(station.host.titles, QStringList{"GenVelmora"});
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace velmora::test
