#include "entry/partielm.h"

#include "support/workstation.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace velmora
{

class PartielmForm : public testing::Test
{
protected:
    void SetUp() override
    {
        poste.addLine(7, QStringLiteral("DURAND Paul"));
        poste.session.base.ligmois.setIndex("ligmois01");
        ASSERT_TRUE(poste.session.base.ligmois.seek(store::Cmp::Eq, {7}));
        ASSERT_TRUE(prepareSaisie(poste.session, QStringLiteral("Durand"), 7, QDate(2026, 6, 3)));
        poste.session.dlgvalide = true;
    }

    void stocke(std::array<int, 4> tranches)
    {
        auto &sitper = poste.session.base.sitper;
        ASSERT_TRUE(sitper.addNew().ok());
        JourSit &jour = sitper.values();
        jour.nump = 7;
        jour.dat = QDate(2026, 6, 3);
        jour.hdeb1 = tranches[0];
        jour.hfin1 = tranches[1];
        jour.hdeb2 = tranches[2];
        jour.hfin2 = tranches[3];
        ASSERT_TRUE(sitper.update().ok());
    }

    void ouvre()
    {
        forme = std::make_unique<Partielm>(poste.session, [this](const JourneeSaisie &, const JourSit &jour) {
            if (abandonne) return false;
            stockes.push_back(jour);
            return true;
        });
        forme->show();
        forme->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(forme.get()));
    }

    void ouvreEtCharge()
    {
        ouvre();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !trouve<QTimer>("Timer1")->isActive(); }));
    }

    template <class Controle> Controle *trouve(const char *nom)
    {
        return forme->findChild<Controle *>(QLatin1String(nom));
    }
    QLineEdit *texte(int numero)
    {
        return trouve<QLineEdit>(qPrintable(QStringLiteral("Text%1").arg(numero)));
    }
    QPushButton *ok() { return trouve<QPushButton>("Command1"); }

    std::string champs()
    {
        QStringList textes;
        for (int numero = 1; numero <= 6; ++numero)
            textes << texte(numero)->text();
        return textes.join(u' ').toStdString();
    }

    /// Types where the focus is, as a user does who doesn't look.
    void frappe(const char *touches)
    {
        for (; *touches; ++touches)
            touche(*touches);
    }
    template <class Touche> void touche(Touche laquelle)
    {
        QTest::keyClick(QApplication::focusWidget(), laquelle);
        QApplication::processEvents();
    }
    std::string focus() { return QApplication::focusWidget()->objectName().toStdString(); }

    test::Workstation poste;
    std::vector<JourSit> stockes;
    bool abandonne = false; // the store gives the entry up
    std::unique_ptr<Partielm> forme;
};

TEST_F(PartielmForm, AWholeScheduleIsTypedAndStoredWithTheKeyboardAlone)
{
    ouvreEtCharge();
    EXPECT_EQ(focus(), "Text1");
    frappe("0800120014001800");
    EXPECT_EQ(focus(), "Text5");
    touche(Qt::Key_Return);
    touche(Qt::Key_Return);
    EXPECT_EQ(focus(), "Command1");
    touche(Qt::Key_Return);
    ASSERT_EQ(stockes.size(), 1u);
    EXPECT_EQ(stockes[0].heurdeb, 480);
    EXPECT_EQ(stockes[0].heurfin, 1080);
    EXPECT_EQ(stockes[0].hideb, 720);
    EXPECT_EQ(stockes[0].heurtrav, 480);
    EXPECT_TRUE(poste.session.dlgvalide);
    EXPECT_FALSE(forme->isVisible());
}

TEST_F(PartielmForm, ThirdSliceEndsInTheLastFieldWithItsTotal)
{
    ouvreEtCharge();
    frappe("6h009h0010h0012h0013h0015h00");
    EXPECT_EQ(champs(), "6h00 9h00 10h00 12h00 13h00 15h00");
    EXPECT_EQ(trouve<QLineEdit>("Totext")->text(), "7h00");
    EXPECT_EQ(focus(), "Text6");
    EXPECT_FALSE(trouve<QTimer>("Timer2")->isActive()) << "a finished hour cuts the wait short";
}

TEST_F(PartielmForm, AnUnfinishedHourInTheLastFieldIsNormalisedByTheDelay)
{
    ouvreEtCharge();
    frappe("6h009h0010h0012h0013h0015");
    auto *const delai = trouve<QTimer>("Timer2");
    EXPECT_TRUE(delai->isActive());
    EXPECT_EQ(delai->interval(), 3000);
    EXPECT_NE(trouve<QLineEdit>("Totext")->text(), "7h00");
    delai->start(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !delai->isActive(); }));
    EXPECT_EQ(trouve<QLineEdit>("Totext")->text(), "7h00");
    EXPECT_EQ(texte(6)->text(), "15h00");
}

TEST_F(PartielmForm, LeavingTheLastFieldEndsItsDelay)
{
    ouvreEtCharge();
    frappe("6h009h0010h0012h0013h0015");
    texte(1)->setFocus();
    EXPECT_FALSE(trouve<QTimer>("Timer2")->isActive());
    EXPECT_EQ(texte(6)->text(), "15h00");
}

TEST_F(PartielmForm, AStoredDayShowsAfterTheDialogAndThenOkOpens)
{
    stocke({480, 720, 840, 1080});
    ouvre();
    EXPECT_EQ(trouve<QTimer>("Timer1")->interval(), 300);
    EXPECT_EQ(texte(1)->text(), "0h00");
    EXPECT_FALSE(ok()->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([this] { return ok()->isEnabled(); }));
    EXPECT_EQ(champs(), "8h00 12h00 14h00 18h00 18h00 18h00");
    EXPECT_EQ(texte(1)->selectedText(), "8h00") << "the first key replaces the hour";
}

TEST_F(PartielmForm, ANewDayKeepsOkClosedUntilAFieldIsNormalised)
{
    ouvreEtCharge();
    EXPECT_FALSE(ok()->isEnabled());
    EXPECT_FALSE(texte(3)->isEnabled());
    frappe("8h00");
    EXPECT_TRUE(ok()->isEnabled());
}

TEST_F(PartielmForm, DeleteOnAWhollySelectedFieldClearsFromItOn)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    texte(3)->setFocus();
    touche(Qt::Key_Delete);
    EXPECT_EQ(champs(), "8h00 12h00 12h00 12h00 12h00 12h00");
    EXPECT_EQ(texte(3)->selectedText(), "12h00");
    EXPECT_EQ(trouve<QLineEdit>("Totext")->text(), "4h00");
}

TEST_F(PartielmForm, DeleteOnAPartOfAFieldDeletesThatPart)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    texte(3)->setFocus();
    texte(3)->setCursorPosition(4);
    touche(Qt::Key_Delete);
    EXPECT_EQ(texte(3)->text(), "14h0");
    EXPECT_EQ(texte(4)->text(), "18h00");
}

TEST_F(PartielmForm, AnHourOutOfRangeIsPutBackAndItsFieldRegainsTheFocus)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    frappe("2500");
    EXPECT_EQ(champs(), "8h00 12h00 14h00 18h00 18h00 18h00");
    EXPECT_EQ(focus(), "Text1");
    EXPECT_EQ(texte(1)->selectedText(), "8h00");
}

TEST_F(PartielmForm, OkOnADayWithoutHoursSaysSoAndStaysOpen)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    touche(Qt::Key_Delete);
    poste.host.expectMessage(QStringLiteral("horaire en anomalie !"));
    QTest::mouseClick(ok(), Qt::LeftButton);
    EXPECT_EQ(poste.host.titles, QStringList("velmora"));
    EXPECT_TRUE(forme->isVisible());
    EXPECT_TRUE(stockes.empty());
}

TEST_F(PartielmForm, AClickOnOkAfterAnHourOutOfRangeSaysSoAndStoresNothing)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    texte(4)->setFocus();
    frappe("25");
    poste.host.expectMessage(QStringLiteral("horaire en anomalie !"));
    // The events between press and release run, as they do under a real mouse.
    QTest::mousePress(ok(), Qt::LeftButton);
    QApplication::processEvents();
    QTest::mouseRelease(ok(), Qt::LeftButton);
    EXPECT_TRUE(stockes.empty());
    EXPECT_EQ(texte(4)->text(), "18h00");
    EXPECT_EQ(focus(), "Text4");
    QTest::mouseClick(ok(), Qt::LeftButton);
    EXPECT_EQ(stockes.size(), 1u);
}

TEST_F(PartielmForm, AnEntryThatTheStoreGivesUpStaysOpenWithItsHours)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    abandonne = true;
    poste.session.dlgvalide = false;
    QTest::mouseClick(ok(), Qt::LeftButton);
    EXPECT_TRUE(forme->isVisible());
    EXPECT_TRUE(forme->isEnabled());
    EXPECT_FALSE(poste.session.dlgvalide);
    abandonne = false;
    QTest::mouseClick(ok(), Qt::LeftButton);
    EXPECT_EQ(stockes.size(), 1u);
}

TEST_F(PartielmForm, AnAbnormalSituationIsSaidAndCloses)
{
    stocke({480, 720, 840, 1080}); // a stored day loads late enough to be marked first
    poste.host.expectMessage(QStringLiteral("situation anormale: opération impossible"));
    ouvre();
    forme->marqueAnormale();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !forme->isVisible(); }));
    EXPECT_FALSE(poste.session.dlgvalide);
}

TEST_F(PartielmForm, EscapeAndAnnulerStoreNothing)
{
    for (const bool parEchap : {true, false}) {
        poste.session.dlgvalide = true;
        ouvreEtCharge();
        frappe("08001200");
        if (parEchap) {
            touche(Qt::Key_Escape);
        } else {
            QTest::mouseClick(trouve<QPushButton>("Command2"), Qt::LeftButton);
        }
        EXPECT_FALSE(forme->isVisible());
        EXPECT_FALSE(poste.session.dlgvalide);
        EXPECT_TRUE(stockes.empty());
    }
}

TEST_F(PartielmForm, FieldsHaveTheColourOfTheBarOrOfTheTotal)
{
    ouvreEtCharge();
    const auto fond = [](QWidget *widget) { return widget->palette().color(QPalette::Base).name(); };
    EXPECT_EQ(fond(texte(1)), fond(trouve<QLineEdit>("Textcom")));
    EXPECT_EQ(fond(texte(3)), fond(trouve<QLineEdit>("Totext")));
    frappe("8h00");
    EXPECT_EQ(fond(texte(3)), fond(trouve<QLineEdit>("Textcom")));
    EXPECT_NE(fond(texte(3)), fond(texte(5)));
}

TEST_F(PartielmForm, TheTotalSendsTheFocusToTheFirstField)
{
    stocke({480, 720, 840, 1080});
    ouvreEtCharge();
    texte(4)->setFocus();
    QTest::mouseClick(trouve<QLineEdit>("Totext"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(focus(), "Text1");
}

TEST_F(PartielmForm, HelpOpensThePageOfTheEntry)
{
    ouvreEtCharge();
    QTest::mouseClick(trouve<QPushButton>("Command3"), Qt::LeftButton);
    touche(Qt::Key_F1);
    ASSERT_EQ(poste.host.opened.size(), 2);
    EXPECT_TRUE(poste.host.opened[0].endsWith(QLatin1String("fonctions.htm")));
}

TEST_F(PartielmForm, CaptionsAreTheOnesThatUsersKnow)
{
    ouvre();
    const std::pair<const char *, const char *> etiquettes[]{
        {"Label2", "Durand le 03/06/2026"},
        {"Label1", "DURAND Paul"},
        {"Label5", "de                        à"},
        {"Label6", "et"},
        {"Label9", "et"},
        {"Labtot", "Soit"},
        {"Labpr", "Heures"},
    };
    for (const auto &[nom, attendu] : etiquettes)
        EXPECT_EQ(trouve<QLabel>(nom)->text(), QString::fromUtf8(attendu)) << nom;
    EXPECT_EQ(forme->windowTitle(), "Heures - Horaire");
}

} // namespace velmora
