#include "folders/smois.h"

#include "support/modal.h"
#include "support/workstation.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace velmora::test
{
namespace
{

class SmoisTest : public testing::Test
{
protected:
    Workstation station{QDate(2026, 6, 15)};
    Session &session = station.session;

    void SetUp() override
    {
        for (const char *groupe : {"Accueil", "Équipe"}) {
            ASSERT_TRUE(session.base.groupe.addNew().ok());
            session.base.groupe.values() = {QString::fromUtf8(groupe), 0, false};
            ASSERT_TRUE(session.base.groupe.update().ok());
        }
    }
    static QString text(const Smois &form, const char *name) { return control<QLineEdit>(form, name).text(); }
    static void click(Smois &form, int row)
    {
        auto &list = control<QListWidget>(form, "List1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    }
    static QList<int> selection(const Smois &form)
    {
        QList<int> rows;
        auto &list = control<QListWidget>(form, "List1");
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->isSelected()) rows << row;
        return rows;
    }
};

TEST_F(SmoisTest, OpensOnTheCurrentMonthWithGlobalSelectedAndTheFolderUntouched)
{
    session.dossiervue = "Équipe";
    session.dlgvalide = true;
    const Smois form(session);
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(selection(form), QList<int>{0});
    EXPECT_EQ(control<QLabel>(form, "Label3").text(), "Global");
    EXPECT_EQ(session.dossiervue, "Équipe");
    EXPECT_EQ(text(form, "Text1"), " 6");
    EXPECT_EQ(text(form, "Text2"), " 2026");
    EXPECT_EQ(session.moisvue, 6);
    EXPECT_EQ(control<QGroupBox>(form, "Frame2").title(), "Mois à afficher");
}

TEST_F(SmoisTest, TheStartMonthChoiceStartsInJanuaryAndSaysSo)
{
    session.choixmoisdebut = 1;
    const Smois form(session);
    EXPECT_EQ(session.moisvue, 1);
    EXPECT_EQ(text(form, "Text1"), " 1");
    EXPECT_EQ(control<QGroupBox>(form, "Frame2").title(), "Mois / An début");
}

TEST_F(SmoisTest, TheBarMovesOverTheMonthsByKeyAndStopsAtTheWindowsEnds)
{
    Smois form(session);
    form.show();
    auto &bar = control<QScrollBar>(form, "VS1");
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(text(form, "Text1"), " 7");
    EXPECT_EQ(session.moisvue, 7);
    QTest::keyClick(&bar, Qt::Key_PageUp);
    EXPECT_EQ(session.anvue, 2027);
    QTest::keyClick(&bar, Qt::Key_End);
    EXPECT_EQ(text(form, "Text1"), " 12");
    EXPECT_EQ(text(form, "Text2"), " 2027");
    QTest::keyClick(&bar, Qt::Key_Home);
    EXPECT_EQ(session.moisvue, 1);
    EXPECT_EQ(session.anvue, 2025);
}

TEST_F(SmoisTest, TheListHoldsToOneRow)
{
    Smois form(session);
    form.show();
    click(form, 2);
    EXPECT_EQ(selection(form), QList<int>{2});
    EXPECT_EQ(session.dossiervue, "Équipe");
    EXPECT_EQ(control<QLabel>(form, "Label3").text(), "Équipe");
    click(form, 2);
    EXPECT_EQ(selection(form), QList<int>{2});
    EXPECT_EQ(session.dossiervue, "Équipe");
    click(form, 0);
    EXPECT_EQ(selection(form), QList<int>{0});
    EXPECT_EQ(session.dossiervue, "");
    EXPECT_EQ(control<QLabel>(form, "Label3").text(), "Global");
}

TEST_F(SmoisTest, TheListIsUsedByKeyToo)
{
    Smois form(session);
    form.show();
    auto &list = control<QListWidget>(form, "List1");
    list.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(selection(form), QList<int>{1});
    EXPECT_EQ(session.dossiervue, "Accueil");
}

TEST_F(SmoisTest, OkTakesTheCellsChoiceAndItIsThereAtTheNextOpening)
{
    const std::pair<const char *, int> cases[] = {{"Option1_1", 0}, {"Option1_2", 2}, {"Option1_0", 1}};
    for (const auto &[option, mode] : cases) {
        Smois form(session);
        form.show();
        QTest::mouseClick(&control<QRadioButton>(form, option), Qt::LeftButton);
        QTest::keyClick(&control<QScrollBar>(form, "VS1"), Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
        EXPECT_TRUE(session.dlgvalide);
        EXPECT_EQ(session.modecellule, mode);
        EXPECT_TRUE(control<QRadioButton>(Smois(session), option).isChecked());
    }
}

TEST_F(SmoisTest, CancelKeepsTheCellsChoice)
{
    Smois form(session);
    form.show();
    QTest::mouseClick(&control<QRadioButton>(form, "Option1_2"), Qt::LeftButton);
    session.dlgvalide = true;
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(session.modecellule, 1);
}

TEST_F(SmoisTest, HelpOpensTheDialogsOwnPage)
{
    Smois form(session);
    form.show();
    QTest::mouseClick(&control<QPushButton>(form, "Command3"), Qt::LeftButton);
    ASSERT_EQ(station.host.opened.size(), 1);
    EXPECT_TRUE(station.host.opened.front().endsWith("acces-planning.htm"));
    EXPECT_TRUE(form.isVisible());
}

} // namespace
} // namespace velmora::test
