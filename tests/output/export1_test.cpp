#include "output/export1.h"

#include "support/modal.h"
#include "support/workstation.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace velmora::test
{
namespace
{

class Export1Test : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void SetUp() override
    {
        station.addLine(1, QStringLiteral("ANNE"));
        session.impdeb = {2026, 7, 1};
        session.impfin = {2026, 7, 31};
    }
    static std::pair<QString, QString> dates(const Export1 &form)
    {
        return {control<QLabel>(form, "Label1").text(), control<QLabel>(form, "Label2").text()};
    }
    void show(Export1 &form)
    {
        form.show();
        QTest::qWait(20);
    }
};

TEST_F(Export1Test, TheBarsMoveTheDatesShownAndKeepAWeekBetweenThem)
{
    Export1 form(session);
    show(form);
    EXPECT_EQ(form.windowTitle(), "Exportation vers Excel");
    EXPECT_EQ(control<QGroupBox>(form, "Frame4").title(), "Dates");
    EXPECT_EQ(control<QGroupBox>(form, "Frame8").title(), "A (compris)");
    EXPECT_EQ(dates(form), std::pair(QString("04/07/2026"), QString("31/07/2026")));
    auto &first = control<QScrollBar>(form, "VS1");
    auto &last = control<QScrollBar>(form, "VS2");
    EXPECT_EQ(first.maximum(), 25);
    EXPECT_EQ(last.minimum(), 7);
    QTest::keyClick(&first, Qt::Key_Right);
    QTest::keyClick(&last, Qt::Key_Home);
    EXPECT_EQ(dates(form), std::pair(QString("05/07/2026"), QString("11/07/2026")));
    EXPECT_EQ(last.value(), 11);
}

TEST_F(Export1Test, AnExportSpansTheMonthWhateverTheBarsAndLeavesTheDialogOpen)
{
    Export1 form(session);
    show(form);
    QTest::keyClick(&control<QScrollBar>(form, "VS2"), Qt::Key_Home);
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    const QString text = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(text.contains("PLANNING Du 01/07/2026 au 31/07/2026")) << text.left(80).toStdString();
    EXPECT_EQ(station.host.opened.size(), 1);
    EXPECT_TRUE(QFileInfo::exists(station.folder() + "Velexc.txt"));
    EXPECT_FALSE(control<QProgressBar>(form, "Pgb").isVisible());
    EXPECT_EQ(control<QProgressBar>(form, "Pgb").value(), 0);
    station.host.opens = false;
    station.host.expectMessage(
        "Pb lancement EXCEL ! Le résultat se trouve dans le fichier : " + station.folder() + "Velexc.txt");
    QTest::mouseClick(&control<QPushButton>(form, "Command1"), Qt::LeftButton);
    QTest::mouseClick(&control<QPushButton>(form, "Command2"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace velmora::test
