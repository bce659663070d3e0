#include "workstation/mdivel.h"

#include "support/modal.h"
#include "support/workstation.h"
#include "workstation/colours.h"

#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QToolButton>

namespace velmora::test
{
namespace
{

/// A month that notes what it is told.
class NotedMonth : public MonthView
{
public:
    NotedMonth(Session &theSession, QWidget *parent) : MonthView(parent), session(theSession)
    {
        session.moisouvert = true;
        menu.setText("Affichage");
    }
    QList<QAction *> menuBarActions() const override { return {const_cast<QAction *>(&menu)}; }
    void command(const QString &cle) override { keys << cle; }
    bool stretchColumns(int twips) override
    {
        if (!stretches) return false;
        columns << twips;
        return true;
    }
    void stretchRows(int twips) override { rows << twips; }

    Session &session;
    QAction menu;
    QStringList keys;
    QList<int> columns;
    QList<int> rows;
    bool stretches = true;
    bool flagAtClose = true;
    bool foncgenAtClose = false;

protected:
    void closeEvent(QCloseEvent *) override
    {
        flagAtClose = session.moisouvert;
        foncgenAtClose = session.foncgen != nullptr;
        emit closed();
    }
};

class MdivelTest : public testing::Test
{
protected:
    Workstation station{QDate(2026, 6, 15)};
    Session &session = station.session;
    Ouvertures ouvertures;
    QPointer<NotedMonth> month;
    int months = 0;
    std::unique_ptr<Mdivel> window;

    void SetUp() override
    {
        ouvertures.mois = [this](Session &theSession, QWidget *parent) {
            ++months;
            return month = new NotedMonth(theSession, parent);
        };
    }
    void start()
    {
        window = std::make_unique<Mdivel>(session, ouvertures);
        window->charge();
        window->show();
        auto &timer = *window->findChild<QTimer *>("Timer1", Qt::FindDirectChildrenOnly);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !timer.isActive(); }));
    }
    void answerSmois(Qt::Key key)
    {
        onModal([key](QWidget &smois) { QTest::keyClick(&control<QScrollBar>(smois, "VS1"), key); });
    }
    void openMonth()
    {
        answerSmois(Qt::Key_Return);
        button("Open").click();
        ASSERT_NE(month, nullptr);
    }
    void openReadyMonth()
    {
        openMonth();
        emit month->ready();
    }
    /// Whether a control shows once the layouts have settled.
    static bool shows(const QWidget &widget)
    {
        QApplication::processEvents();
        return widget.isVisible();
    }
    QToolButton &button(const char *key) { return control<QToolButton>(*window, key); }
    QSlider &slider(const char *name) { return control<QSlider>(*window, name); }
    QAction &entry(const char *name) { return *window->findChild<QAction *>(name); }
    QStringList menuBar()
    {
        QStringList captions;
        for (const QAction *action : window->menuBar()->actions())
            captions << action->text();
        return captions;
    }
    QString entries(int menu)
    {
        QStringList captions;
        for (const QAction *action : window->menuBar()->actions().at(menu)->menu()->actions())
            captions << action->text();
        return captions.join('|');
    }
    void addSet()
    {
        ASSERT_TRUE(session.base.parcg.addNew().ok());
        session.base.parcg.values().dat = QDate(2020, 1, 1);
        ASSERT_TRUE(session.base.parcg.update().ok());
    }
    void addHoliday(const QDate &date)
    {
        ASSERT_TRUE(session.base.ferie.addNew().ok());
        session.base.ferie.values().datedeb = date;
        ASSERT_TRUE(session.base.ferie.update().ok());
    }
};

const QStringList ownMenus = {"  &Planning", "   &Paramètrage", "   &Fermeture", "  &?"};

TEST_F(MdivelTest, StartReadsTheSettingsBehindTheSplash)
{
    QString caption;
    onModal(
        [&](QWidget &splash) { caption = splash.windowTitle() + control<QLabel>(splash, "Label1").text(); });
    start();
    EXPECT_EQ(caption, "VELMORA - PLANNING AGENTS: chargementPATIENTEZ");
    EXPECT_EQ(session.affichage.haut1, 350);
    EXPECT_TRUE(session.dlgvalide);
}

TEST_F(MdivelTest, StandsWithoutAMonthAtFirst)
{
    start();
    EXPECT_EQ(window->windowTitle(), "Velmora: suivi d'heures");
    EXPECT_EQ(menuBar(), ownMenus);
    EXPECT_TRUE(shows(button("Open")));
    EXPECT_TRUE(shows(button("Save")));
    EXPECT_FALSE(shows(button("Imprimer")));
    EXPECT_FALSE(shows(control<QFrame>(*window, "Frameh")));
    EXPECT_FALSE(shows(slider("VScroll1")));
    const auto scale = [](const QSlider &one) {
        return QList<int>{one.minimum(), one.maximum(), one.value(), one.singleStep(), one.pageStep()};
    };
    EXPECT_EQ(scale(slider("HScroll1")), (QList<int>{0, 200, 100, 2, 2}));
    EXPECT_EQ(scale(slider("VScroll1")), (QList<int>{0, 100, 50, 2, 2}));
    EXPECT_EQ(entries(0), "&Ouvrir un planning (mois)|Sauvegarde Fichier");
    EXPECT_EQ(entries(1), "Paramètres Généraux|Dossiers (équipe, groupe..)|Codes absence|&Fériés");
}

TEST_F(MdivelTest, EntriesOpenTheirWindowAndAreOffWithoutOne)
{
    QStringList opened;
    ouvertures.parametres = [&](Session &, QWidget *) { opened << "parametres"; };
    ouvertures.codesAbsence = [&](Session &, QWidget *) { opened << "codes"; };
    ouvertures.feries = [&](Session &, QWidget *, const DemandeFeries &demande) {
        opened << demande.dateappli.toString(Qt::ISODate) + '/' + QString::number(demande.reinitferie);
    };
    addSet();
    start();
    for (const char *name : {"mnupg", "mnucodabs", "mnuferie", "mnudos", "mnusave"})
        entry(name).trigger();
    EXPECT_EQ(opened, (QStringList{"parametres", "codes", "2026-06-15/0"}));
    EXPECT_FALSE(entry("mnudos").isEnabled());
    EXPECT_FALSE(entry("mnusave").isEnabled());
    EXPECT_FALSE(button("Save").isEnabled());
}

TEST_F(MdivelTest, HelpOpensTheMainWindowsPageWhateverWasCurrent)
{
    start();
    session.pagecourante = "liggest.htm";
    entry("mnuaid").trigger();
    ASSERT_EQ(station.host.opened.size(), 1);
    EXPECT_TRUE(station.host.opened.front().endsWith("accueil.htm"));
}

TEST_F(MdivelTest, AMonthTakesTheMenuBarAndTheToolbar)
{
    session.peutannul = true;
    session.peutrefaire = false;
    start();
    openMonth();
    EXPECT_EQ(menuBar(), QStringList{"Affichage"});
    EXPECT_FALSE(button("Open").isEnabled());
    EXPECT_FALSE(button("Save").isEnabled());
    EXPECT_TRUE(shows(button("zoom")));
    EXPECT_TRUE(button("Undo").isEnabled());
    EXPECT_FALSE(button("Do").isEnabled());
    EXPECT_TRUE(month->isVisible());
    EXPECT_FALSE(shows(slider("HScroll1")));
    emit month->ready();
    EXPECT_TRUE(shows(slider("HScroll1")));
    EXPECT_TRUE(shows(slider("VScroll1")));
}

TEST_F(MdivelTest, KeysOfTheToolbarGoToTheMonth)
{
    start();
    openMonth();
    emit month->commandsChanged(ToolbarState::onRefresh({}));
    button("absence").click();
    EXPECT_EQ(month->keys, QStringList());
    EtatCommandes commandes;
    commandes.absence = true;
    emit month->commandsChanged(ToolbarState::onRefresh(commandes));
    for (const char *key : {"Imprimer", "zoom", "absence"})
        button(key).click();
    EXPECT_EQ(month->keys, (QStringList{"Imprimer", "zoom", "absence"}));
}

TEST_F(MdivelTest, AClosedMonthGivesTheFrameBack)
{
    start();
    openReadyMonth();
    emit month->tipChanged("Coller", "Coller 8h20");
    EXPECT_EQ(button("Coller").toolTip(), "Coller 8h20");
    month->close();
    EXPECT_EQ(menuBar(), ownMenus);
    EXPECT_TRUE(button("Open").isEnabled());
    EXPECT_FALSE(shows(button("Couper")));
    EXPECT_FALSE(shows(slider("HScroll1")));
    EXPECT_FALSE(session.moisouvert);
    EXPECT_EQ(button("Coller").toolTip(), "Coller");
    openMonth();
    EXPECT_EQ(months, 2);
}

TEST_F(MdivelTest, ARefusedDialogLeavesTheOpenMonthAndAnAcceptedOneReplacesIt)
{
    start();
    openMonth();
    NotedMonth *const first = month;
    answerSmois(Qt::Key_Escape);
    entry("mnuoldfen").trigger();
    EXPECT_EQ(month, first);
    EXPECT_TRUE(first->isVisible());
    answerSmois(Qt::Key_Return);
    entry("mnuoldfen").trigger();
    EXPECT_NE(month, first);
    EXPECT_FALSE(first->isVisible());
    EXPECT_TRUE(session.moisouvert);
}

TEST_F(MdivelTest, TheFirstMoveOfTheWidthSliderJumpsFromFifty)
{
    start();
    openReadyMonth();
    slider("HScroll1").setFocus();
    QTest::keyClick(&slider("HScroll1"), Qt::Key_Right);
    QTest::keyClick(&slider("HScroll1"), Qt::Key_Right);
    EXPECT_EQ(month->columns, (QList<int>{260, 10}));
    QTest::keyClick(&slider("VScroll1"), Qt::Key_Left);
    EXPECT_EQ(month->rows, QList<int>{-10});
    EXPECT_TRUE(slider("HScroll1").isEnabled());
}

TEST_F(MdivelTest, ARefusedWidthBringsTheSliderBackToWhereItActedLast)
{
    start();
    openReadyMonth();
    slider("HScroll1").setValue(120);
    month->stretches = false;
    slider("HScroll1").setValue(20);
    EXPECT_EQ(slider("HScroll1").value(), 120);
    month->stretches = true;
    slider("HScroll1").setValue(118);
    EXPECT_EQ(month->columns, (QList<int>{350, -10}));
}

TEST_F(MdivelTest, EachMonthOpensWithTheSlidersAtTheirStart)
{
    start();
    openReadyMonth();
    slider("HScroll1").setValue(140);
    slider("VScroll1").setValue(80);
    month->close();
    openReadyMonth();
    EXPECT_EQ(slider("HScroll1").value(), 100);
    EXPECT_EQ(slider("VScroll1").value(), 50);
    slider("HScroll1").setValue(102);
    slider("VScroll1").setValue(52);
    EXPECT_EQ(month->columns, QList<int>{10});
    EXPECT_EQ(month->rows, QList<int>{10});
}

TEST_F(MdivelTest, StartClosesWhenNoParameterSetComesOfTheDialog)
{
    int asked = 0;
    ouvertures.parametres = [&](Session &, QWidget *) { ++asked; };
    start();
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MdivelTest, StartStaysWhenAParameterSetComesOfTheDialog)
{
    ouvertures.parametres = [&](Session &, QWidget *) { addSet(); };
    start();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(MdivelTest, StartOpensTheHolidaysThatEndThisYear)
{
    QList<QDate> asked;
    ouvertures.feries = [&](Session &, QWidget *, const DemandeFeries &demande) {
        EXPECT_FALSE(demande.reinitferie);
        asked << demande.dateappli;
    };
    addSet();
    addHoliday(QDate(2026, 12, 25));
    start();
    EXPECT_EQ(asked, QList<QDate>{QDate(2026, 6, 15)});
}

TEST_F(MdivelTest, StartPassesOverWindowsThatAreMissing)
{
    start();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(MdivelTest, CloseClosesTheMonthThenReleasesThenSaves)
{
    start();
    openMonth();
    const QPointer<NotedMonth> open = month;
    session.affichage.haut1 = 777;
    window->close();
    ASSERT_NE(open, nullptr);
    EXPECT_FALSE(open->flagAtClose);
    EXPECT_TRUE(open->foncgenAtClose);
    EXPECT_EQ(session.foncgen, nullptr);
    EXPECT_EQ(session.base.agent.row().affichage.haut1, 777);
}

TEST_F(MdivelTest, AClosedMonthHasNoMoreSayInTheToolbar)
{
    start();
    openMonth();
    const QPointer<NotedMonth> gone = month;
    month->close();
    ASSERT_NE(gone, nullptr);
    emit gone->commandsChanged(ToolbarState::onRefresh({}));
    emit gone->ready();
    EXPECT_FALSE(shows(button("Couper")));
    EXPECT_FALSE(shows(slider("HScroll1")));
}

TEST_F(MdivelTest, ActivatedWhileMinimisedItComesBack)
{
    start();
    window->showMinimized();
    QApplication::setActiveWindow(nullptr);
    ASSERT_TRUE(window->isMinimized());
    QApplication::setActiveWindow(window.get());
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(MdivelTest, ABackupThatLeavesTheDatabasesClosedClosesTheWindow)
{
    struct Case {
        bool accepted, reopened, stays;
    };
    for (const Case &one : {Case{true, true, true}, Case{false, false, true}, Case{true, false, false}}) {
        ouvertures.sauvegarde = [&](Session &theSession, QWidget *) {
            theSession.dlgvalide = one.accepted;
            return one.reopened;
        };
        start();
        button("Save").click();
        EXPECT_EQ(window->isVisible(), one.stays);
    }
}

} // namespace
} // namespace velmora::test
