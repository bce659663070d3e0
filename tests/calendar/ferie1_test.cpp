#include "calendar/ferie1.h"

#include "calendar/calendar_rows.h"
#include "calendar/holiday_list.h"
#include "support/faulty_engine.h"
#include "support/keyboard.h"
#include "support/modal.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace velmora::test
{
namespace
{

class Ferie1Test : public testing::Test
{
protected:
    Faults faults;
    CalendarStation station{QDate(2026, 6, 15), std::make_unique<FaultyEngine>(faults)};
    Session &session = station.session;
    std::unique_ptr<Ferie1> form;

    void open()
    {
        form = std::make_unique<Ferie1>(session);
        activate(*form);
    }
    QListWidget &list() { return control<QListWidget>(*form, "List1"); }
    QStringList rows()
    {
        QStringList texts;
        for (int row = 0; row < list().count(); ++row)
            texts << list().item(row)->text();
        return texts;
    }
    bool enabled(const char *button) { return control<QPushButton>(*form, button).isEnabled(); }
    bool paneShows() { return control<QGroupBox>(*form, "Frame1").isVisible(); }
    QString text(const char *field) { return control<QLineEdit>(*form, field).text(); }
};

TEST_F(Ferie1Test, OpeningGeneratesThenShowsTheListWithNothingSelected)
{
    station.addSet({2000, 1, 1}, 6);
    onModal([](QWidget &modal) {
        auto &list = control<QListWidget>(modal, "List1");
        ASSERT_EQ(list.count(), 6);
        EXPECT_EQ(list.item(0)->text(), "01/01/2026\t\tNouvel An");
        EXPECT_EQ(list.item(5)->text(), "26/12/2027\t\tSt Etienne");
        EXPECT_TRUE(list.selectedItems().isEmpty());
        EXPECT_FALSE(control<QGroupBox>(modal, "Frame1").isVisible());
        EXPECT_FALSE(control<QPushButton>(modal, "Command3").isEnabled());
        EXPECT_FALSE(control<QPushButton>(modal, "Command4").isEnabled());
    });
    ouvreferies(session, nullptr, {false, QDate(2026, 6, 15)});
}

TEST_F(Ferie1Test, AGenerationThatFailsIsToldAndOpensNothing)
{
    station.addSet({2000, 1, 1}, 6);
    faults.writesBefore = 1;
    station.host.expectMessage("Problème accès disque!");
    ouvreferies(session, nullptr, {true, QDate(2026, 1, 1)});
    EXPECT_TRUE(station.holidays().isEmpty());
}

TEST_F(Ferie1Test, SelectingShowsTheRowAndARowThatIsGoneShowsNothing)
{
    station.addHoliday({2026, 1, 1}, "Nouvel An");
    station.addHoliday({2026, 7, 14}, "Fête Nationale");
    open();
    press(Qt::Key_Down);
    EXPECT_TRUE(paneShows());
    EXPECT_EQ(text("Text1"), "14/07/2026");
    EXPECT_EQ(text("Text3"), "Fête Nationale");
    EXPECT_TRUE(enabled("Command3") && enabled("Command4"));
    ASSERT_TRUE(session.base.ferie.first());
    ASSERT_TRUE(session.base.ferie.erase().ok());
    press(Qt::Key_Up);
    EXPECT_FALSE(paneShows());
    EXPECT_FALSE(enabled("Command3") || enabled("Command4"));
    const QRect row = list().visualItemRect(list().item(0));
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, row.center());
}

TEST_F(Ferie1Test, ADayIsAddedByKeysOnceItsDateIsRight)
{
    station.addHoliday({2026, 7, 14}, "Fête Nationale");
    open();
    for (const char *message : {"DATE INCORRECTE", "DATE INCORRECTE", "JOUR FERIE DEJA PREVU"})
        station.host.expectMessage(QString::fromUtf8(message));
    inDialog(*form, "Command2", [&](QWidget &entry) {
        EXPECT_EQ(control<QLineEdit>(entry, "Text1").text(), "15/06/2026");
        EXPECT_EQ(focusName(), "Text1");
        for (const char *date : {"31121989", "99", "14072026", "01011990"}) {
            type(date);
            if (focusName() == "Text1") press(Qt::Key_Return);
            EXPECT_EQ(focusName(), "Text3") << date;
            if (date == std::string("31121989")) type("Fermeture annuelle de la maison");
            press(Qt::Key_Return);
            press(Qt::Key_Return);
            EXPECT_EQ(entry.isVisible(), date != std::string("01011990")) << date;
        }
    });
    EXPECT_TRUE(session.dlgvalide);
    EXPECT_EQ(station.host.titles, (QStringList{"velmora", "velmora", "velmora"}));
    EXPECT_EQ(station.holidays(),
              (QStringList{"01/01/1990 Fermeture annuelle de la maiso 1", "14/07/2026 Fête Nationale 0"}));
    EXPECT_EQ(rows().first(), "01/01/1990\t\tFermeture annuelle de la maiso");
    EXPECT_TRUE(list().selectedItems().isEmpty()) << "a row has no last date to be found by";
}

TEST_F(Ferie1Test, TheRowAfterAnAdditionIsSoughtInItsTwelfthCharacterOn)
{
    const JourFerie day{{2026, 1, 2}, {2026, 1, 2}, "2/01/2026", 1, 1};
    const JourFerie other{{2026, 1, 1}, {2026, 1, 1}, "2/01/2026", 1, 1};
    EXPECT_EQ(ligneAjoutee({ligneferie(other), ligneferie(day)}, day), 1);
    EXPECT_EQ(ligneAjoutee({ligneferie({{2026, 1, 2}, {2026, 1, 2}, "02/01/2026", 1, 1})}, day), -1);
}

TEST_F(Ferie1Test, AModifiedDayHasANewLabelAndCountsAsGenerated)
{
    station.addHoliday({2026, 7, 13}, "Pont", 1);
    open();
    press(Qt::Key_Space);
    inDialog(*form, "Command4", [](QWidget &entry) {
        EXPECT_EQ(control<QLineEdit>(entry, "Text1").text(), "13/07/2026");
        EXPECT_FALSE(control<QLineEdit>(entry, "Text1").isEnabled());
        EXPECT_EQ(focusName(), "Text3");
        type("Fermeture");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    EXPECT_EQ(station.holidays(), QStringList{"13/07/2026 Fermeture 0"});
    EXPECT_EQ(rows(), QStringList{"13/07/2026\t\tFermeture"});
    EXPECT_EQ(text("Text3"), "Fermeture");
    EXPECT_EQ(session.base.ferie.row().Val, 1);
    inDialog(*form, "Command4", [](QWidget &) {
        type("Autre");
        press(Qt::Key_Escape);
    });
    EXPECT_FALSE(session.dlgvalide);
    EXPECT_EQ(rows(), QStringList{"13/07/2026\t\tFermeture"});
}

TEST_F(Ferie1Test, ADayIsDeletedAfterAQuestionAndAFailureIsTold)
{
    station.addHoliday({2026, 7, 13}, "Pont", 1);
    station.addHoliday({2026, 7, 14}, "Fête Nationale");
    open();
    press(Qt::Key_Space);
    const QString question = "confirmer la suppression !";
    station.host.expectQuestion(question, false);
    pressButton(*form, "Command3");
    EXPECT_EQ(list().count(), 2);
    faults.writesBefore = 0;
    station.host.expectQuestion(question, true);
    station.host.expectMessage("Problème accès disque!");
    pressButton(*form, "Command3");
    EXPECT_EQ(list().count(), 2);
    station.host.expectQuestion(question, true);
    pressButton(*form, "Command3");
    EXPECT_EQ(rows(), QStringList{"14/07/2026\t\tFête Nationale"});
    EXPECT_TRUE(list().selectedItems().isEmpty());
    EXPECT_FALSE(enabled("Command3") || paneShows());
    EXPECT_EQ(station.holidays(), QStringList{"14/07/2026 Fête Nationale 0"});
}

} // namespace
} // namespace velmora::test
