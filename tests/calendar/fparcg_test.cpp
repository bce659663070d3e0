#include "calendar/fparcg.h"

#include "calendar/calendar_rows.h"
#include "support/keyboard.h"
#include "support/modal.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace velmora::test
{
namespace
{

class FparcgTest : public testing::Test
{
protected:
    CalendarStation station{QDate(2026, 6, 15)};
    Session &session = station.session;
    std::unique_ptr<Fparcg> form;

    void open()
    {
        form = std::make_unique<Fparcg>(session);
        activate(*form);
    }
    QStringList rows()
    {
        QStringList texts;
        auto &list = control<QListWidget>(*form, "List1");
        for (int row = 0; row < list.count(); ++row)
            texts << list.item(row)->text();
        return texts;
    }
    void select(int row) { control<QListWidget>(*form, "List1").setCurrentRow(row); }
    bool enabled(const char *button) { return control<QPushButton>(*form, button).isEnabled(); }
    /// Presses OK; the holidays that follow close at once.
    static void confirm(
        QWidget &entry, const std::function<void(QWidget &)> &act = [](QWidget &) {})
    {
        onModal([&](QWidget &feries) {
            EXPECT_EQ(feries.objectName(), "Ferie1");
            act(feries);
        });
        QTest::mouseClick(&control<QPushButton>(entry, "Command1"), Qt::LeftButton);
    }
    QStringList sets()
    {
        QStringList found;
        auto sets = session.base.parcg.range("parcg01", {}, {});
        while (sets.next()) {
            const JeuParam &set = sets.row();
            EXPECT_EQ(set.convcol, 0);
            found << Foncgen::dtoc(set.dat) + ' ' + QString::number(set.fdomtom) + ' ' + set.nometab;
        }
        return found;
    }
    void expectLeaving(bool answer)
    {
        station.host.expectQuestion("Il est nécessaire d'avoir un jeu de paramètres <= 15/06/2026 ! Voulez "
                                    "vous quitter ?",
                                    answer);
    }
};

TEST_F(FparcgTest, TheFirstSetIsEnteredByKeysAndShowsItsHolidays)
{
    session.nometab = "Ancien";
    open();
    EXPECT_EQ(focusName(), "Command2");
    inDialog(*form, "Command2", [](QWidget &entry) {
        EXPECT_EQ(focusName(), "Text1");
        EXPECT_EQ(control<QLineEdit>(entry, "Text1").text(), "15/06/2026");
        EXPECT_EQ(control<QComboBox>(entry, "Combo2").currentIndex(), 0);
        EXPECT_EQ(control<QLineEdit>(entry, "Text2").text(), "");
        type("01012026");
        press(Qt::Key_Return);
        EXPECT_EQ(focusName(), "Combo2");
        for (int step = 0; step < 6; ++step)
            press(Qt::Key_Down);
        press(Qt::Key_Tab);
        type("Résidence Les Tilleuls, bâtiment A");
        confirm(entry, [](QWidget &feries) { EXPECT_EQ(control<QListWidget>(feries, "List1").count(), 6); });
    });
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(sets(), QStringList{"01/01/2026 6 Résidence Les Tilleuls, b"});
    EXPECT_EQ(session.nometab, "Résidence Les Tilleuls, b");
    EXPECT_EQ(rows(), QStringList{"01/01/2026 jeu de paramètres"});
    EXPECT_EQ(station.years(), (QStringList{"2026: 3", "2027: 3"}));
    settle(*form);
    press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FparcgTest, WithoutASetThatAppliesTodayLeavingIsAsked)
{
    open();
    for (const bool answer : {false, true}) {
        form->show();
        expectLeaving(answer);
        pressButton(*form, "Command1");
        EXPECT_EQ(form->isVisible(), !answer);
    }
    station.addSet({2026, 6, 16}, 0);
    open();
    expectLeaving(false);
    form->close();
    EXPECT_TRUE(form->isVisible()) << "the title bar's button asks too";
    station.addSet({2026, 6, 15}, 0);
    form->close();
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FparcgTest, OnlyTheFirstRowsSetCantBeDeletedAndHolidaysStay)
{
    station.addSet({2020, 1, 1}, 0);
    station.addSet({2026, 1, 1}, 9);
    station.addHoliday({2026, 7, 1}, "Fête du Canada");
    open();
    EXPECT_EQ(focusName(), "List1");
    EXPECT_FALSE(enabled("Command3") || enabled("Command4"));
    select(0);
    EXPECT_TRUE(enabled("Command3"));
    EXPECT_FALSE(enabled("Command4"));
    press(Qt::Key_Down);
    EXPECT_TRUE(enabled("Command4"));
    EXPECT_EQ(control<QLineEdit>(*form, "Text1").text(), "01/01/2026");
    for (const bool answer : {false, true}) {
        station.host.expectQuestion("êtes vous sur de voumoir supprimer cet enregistrement ?", answer);
        pressButton(*form, "Command4");
        EXPECT_EQ(rows().size(), answer ? 1 : 2);
    }
    EXPECT_EQ(sets(), QStringList{"01/01/2020 0 "});
    EXPECT_FALSE(control<QGroupBox>(*form, "Frame1").isVisible());
    EXPECT_FALSE(enabled("Command3") || enabled("Command4"));
    EXPECT_EQ(station.holidays().size(), 1);
}

TEST_F(FparcgTest, AChangeOfTheNameAloneBeginsTheHolidaysAnew)
{
    station.addSet({2020, 1, 1}, 0);
    station.addSet({2025, 7, 1}, 6, "Foyer");
    station.addSet({2026, 1, 1}, 0);
    station.addHoliday({2025, 6, 30}, "Avant");
    station.addHoliday({2025, 7, 2}, "Après");
    station.addHoliday({2026, 4, 1}, "Saisie", 1);
    open();
    select(1);
    inDialog(*form, "Command3", [](QWidget &entry) {
        EXPECT_EQ(control<QLineEdit>(entry, "Text1").text(), "01/07/2025");
        EXPECT_FALSE(control<QLineEdit>(entry, "Text1").isEnabled());
        EXPECT_EQ(control<QComboBox>(entry, "Combo2").currentIndex(), 6);
        EXPECT_EQ(control<QLineEdit>(entry, "Text2").text(), "Foyer");
        control<QLineEdit>(entry, "Text2").setText("Maison");
        confirm(entry);
    });
    EXPECT_EQ(sets()[1], "01/07/2025 6 Maison");
    EXPECT_EQ(station.years(), (QStringList{"2025: 8", "2026: 12"}));
    EXPECT_FALSE(station.holidays().contains("02/07/2025 Après 0"));
    EXPECT_EQ(rows()[1], "01/07/2025 jeu de paramètres") << "the generation has moved over the sets";
}

TEST_F(FparcgTest, ANewSetRepeatsTheLastOneAndNeedsADateOfItsOwn)
{
    station.addSet({2020, 1, 1}, 3, "Premier");
    station.addSet({2026, 6, 15}, 8, "Dernier");
    open();
    station.host.expectMessage("Date incorrecte: jeu de paramères déjà existant au 15/06/2026");
    station.host.expectMessage("DATE INCORRECTE");
    inDialog(*form, "Command2", [&](QWidget &entry) {
        EXPECT_EQ(control<QComboBox>(entry, "Combo2").currentIndex(), 8);
        EXPECT_EQ(control<QLineEdit>(entry, "Text2").text(), "Dernier");
        auto &ok = control<QPushButton>(entry, "Command1");
        QTest::mouseClick(&ok, Qt::LeftButton);
        EXPECT_EQ(focusName(), "Text1");
        control<QLineEdit>(entry, "Text1").setText("31/02/2026");
        QTest::mouseClick(&ok, Qt::LeftButton);
        EXPECT_TRUE(entry.isVisible());
        press(Qt::Key_Escape);
    });
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(session.nometab, "Dernier") << "opening the entry sets it";
    EXPECT_EQ(sets().size(), 2);
    EXPECT_TRUE(station.holidays().isEmpty());
}

} // namespace
} // namespace velmora::test
