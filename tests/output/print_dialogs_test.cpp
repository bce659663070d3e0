#include "month/print_dates.h"
#include "output/absli.h"
#include "output/fimpplh.h"
#include "output/fimppli.h"
#include "output/fimpplii.h"
#include "support/modal.h"
#include "support/pdf.h"
#include "support/workstation.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace velmora::test
{
namespace
{

/// A machine without printers: pages go to a PDF file.
class PrintDialogs : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;
    QTemporaryDir folder;
    const QString file = folder.filePath("print.pdf");

    void SetUp() override
    {
        station.addLine(1, "Zoé");
        station.addLine(2, "Émile & fils");
        station.addDay(1, {2026, 6, 4}, 480, 1020);
        for (const int nump : {0, 1}) {
            ASSERT_TRUE(session.base.groupe.addNew().ok());
            session.base.groupe.values() = {"Nuit", nump, nump != 0};
            ASSERT_TRUE(session.base.groupe.update().ok());
        }
        session.impdate = {2026, 6, 4};
        session.impdeb = {2026, 6, 1};
        session.impfin = {2026, 6, 30};
        session.saisdeb = "Zoé";
        session.saisligne = 1;
    }
    static QPushButton &button(const QWidget &form, const char *name)
    {
        return control<QPushButton>(form, name);
    }
    static QString label(const QWidget &form, const char *name) { return control<QLabel>(form, name).text(); }
    /// Answers the question for a file's name.
    static void nameFile(const QString &name)
    {
        onModal([name](QWidget &modal) {
            auto *const dialog = qobject_cast<QFileDialog *>(&modal);
            ASSERT_NE(dialog, nullptr);
            control<QLineEdit>(*dialog, "fileNameEdit").setText(name);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
    }
    void print(DialogueImpression &form)
    {
        nameFile(file);
        QTest::mouseClick(&button(form, "Command1"), Qt::LeftButton);
    }
    [[nodiscard]] QStringList printed() const { return PdfFile(file).lines(); }
};

TEST_F(PrintDialogs, OfTheLinePrintsTheDatesOfTheBarsIntoTheFileAskedFor)
{
    Fimppli form(session);
    form.show();
    EXPECT_EQ(form.windowTitle(), " Velmora Impression: planning individuel]");
    EXPECT_EQ(label(form, "Label1"), "03/06/2026");
    EXPECT_EQ(label(form, "Label2"), "30/06/2026");
    EXPECT_FALSE(control<QProgressBar>(form, "Pgb").isVisible());
    QTest::keyClick(&control<QScrollBar>(form, "VS1"), Qt::Key_Right);
    auto &last = control<QScrollBar>(form, "VS2");
    QTest::keyClick(&last, Qt::Key_Home);
    EXPECT_EQ(last.value(), 10);
    EXPECT_EQ(label(form, "Label2"), "10/06/2026");
    print(form);
    const QStringList lines = printed();
    EXPECT_EQ(lines[1], "PLANNING DU 04/06/2026 AU 10/06/2026");
    EXPECT_EQ(lines[2], "Zoé");
    EXPECT_EQ(lines[3], "Jeu 04/06/2026 8h00 - 17h00");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.focusWidget(), &button(form, "Command1"));
    EXPECT_FALSE(control<QProgressBar>(form, "Pgb").isVisible());
    for (const char *name : {"Command1", "Command2", "Command3", "Command4"})
        EXPECT_TRUE(button(form, name).isEnabled()) << name;
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(PrintDialogs, TheCommandsAreClosedAndTheProgressShowsWhileItPrints)
{
    /// A print that looks at its dialog from within.
    class Probe : public Absli
    {
    public:
        using Absli::Absli;
        std::function<void()> look;

    protected:
        [[nodiscard]] Impression impression() const override
        {
            return {"Essai", [this](Imprimante &imprimante, const Progres &progres) {
                        imprimante.nouvellePage();
                        progres(1, 2);
                        look();
                        return store::Status{};
                    }};
        }
    };
    Probe form(session);
    form.show();
    bool looked = false;
    form.look = [&] {
        looked = true;
        for (const char *name : {"Command1", "Command2", "Command3", "Command4"})
            EXPECT_FALSE(button(form, name).isEnabled()) << name;
        auto &pgb = control<QProgressBar>(form, "Pgb");
        EXPECT_TRUE(pgb.isVisible());
        EXPECT_EQ(pgb.value(), 1);
        EXPECT_EQ(pgb.maximum(), 2);
        form.reject();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    };
    print(form);
    EXPECT_TRUE(looked);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PrintDialogs, NothingIsPrintedWhenTheFileIsNotNamedAndAFileThatFailsIsTold)
{
    Fimppli form(session);
    form.show();
    onModal([](QWidget &modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    QTest::mouseClick(&button(form, "Command1"), Qt::LeftButton);
    EXPECT_EQ(label(form, "Label5"), "Fichier PDF sur un nom à choisir");
    ASSERT_TRUE(session.base.engine.execute("DROP TABLE sitper").ok());
    station.host.expectMessage(QStringLiteral("Le planning n'a pas pu être lu en entier."));
    print(form);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(PrintDialogs, OfTheSetPrintsTheFolderChosen)
{
    Fimpplii form(session);
    form.show();
    EXPECT_EQ(form.windowTitle(), "  Velmora: Impression plannings individuels (ensemble de lignes)");
    EXPECT_EQ(label(form, "titre"), "Ensemble de lignes");
    print(form);
    EXPECT_EQ(PdfFile(file).pages(), 2);
    EXPECT_EQ(printed()[2], "Émile & fils");
    auto &list = control<QListWidget>(form, "List1");
    EXPECT_EQ(list.item(0)->text(), "Global");
    list.item(1)->setSelected(true);
    QFile::remove(file);
    print(form);
    EXPECT_EQ(PdfFile(file).pages(), 1);
    EXPECT_EQ(printed()[2], "Zoé");
}

TEST_F(PrintDialogs, OfTheWeekStartsAtTheCursorsDateAndTakesATypedOneWithinTheGrid)
{
    session.impdeb = {2026, 5, 4};
    session.impfin = {2026, 8, 2};
    Fimpplh form(session);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(form.windowTitle(), "  Velmora Impression planning hebdomadaire");
    auto &date = control<QLineEdit>(form, "Text1");
    auto &bar = control<QScrollBar>(form, "VS1");
    EXPECT_EQ(date.text(), "04/06/2026");
    const std::pair<const char *, const char *> typed[]{{"10/06/2026", "10/06/2026"},
                                                        {"01/01/2020", "04/05/2026"},
                                                        {"01/01/2030", "27/07/2026"},
                                                        {"99/99/9999", "27/07/2026"},
                                                        {"01/06/2026", "01/06/2026"}};
    for (const auto &[entry, shown] : typed) {
        date.setFocus();
        date.selectAll();
        QTest::keyClicks(&date, entry);
        QTest::keyClick(&date, Qt::Key_Return);
        EXPECT_EQ(date.text(), shown);
    }
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(date.text(), "02/06/2026");
    control<QCheckBox>(form, "Check1").setChecked(true);
    print(form);
    EXPECT_EQ(printed()[1], "Planning hebdomadaire");
    EXPECT_TRUE(printed()[2].startsWith("Nom Mar 02/06/2026")) << printed()[2].toStdString();
}

TEST_F(PrintDialogs, AFontOnceChosenServesTheNextPrintsOfTheSession)
{
    {
        Absli form(session);
        form.show();
        EXPECT_EQ(form.windowTitle(), "Impression des codes absence");
        EXPECT_EQ(label(form, "Label4"), "Police : Arial");
        onModal([](QWidget &modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
        QTest::mouseClick(&button(form, "Command4"), Qt::LeftButton);
        EXPECT_EQ(label(form, "Label4"), "Police : Arial");
        onModal([](QWidget &modal) {
            auto *const dialog = qobject_cast<QFontDialog *>(&modal);
            ASSERT_NE(dialog, nullptr);
            dialog->setCurrentFont(QFont("DejaVu Sans Mono"));
            dialog->accept();
        });
        QTest::mouseClick(&button(form, "Command4"), Qt::LeftButton);
        EXPECT_EQ(label(form, "Label4"), "Police : DejaVu Sans Mono");
    }
    Absli form(session);
    form.show();
    EXPECT_EQ(label(form, "Label4"), "Police : DejaVu Sans Mono");
    print(form);
    EXPECT_EQ(PdfFile(file).fonts().filter("DejaVuSansMono-Bold").size(), 1);
}

TEST_F(PrintDialogs, ThePreviewShowsThePagesThatWouldComeOut)
{
    Fimpplii form(session);
    form.show();
    int pages = 0;
    onModal([&](QWidget &modal) {
        ASSERT_NE(qobject_cast<QPrintPreviewDialog *>(&modal), nullptr);
        auto *const preview = modal.findChild<QPrintPreviewWidget *>();
        ASSERT_NE(preview, nullptr);
        pages = preview->pageCount();
    });
    QTest::mouseClick(&button(form, "apercu"), Qt::LeftButton);
    EXPECT_EQ(pages, 2);
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(PrintDialogs, CopiesTakeTwoDigitsAndEveryButtonBearsItsCaption)
{
    Fimppli form(session);
    form.show();
    auto &copies = control<QLineEdit>(form, "Cotext");
    EXPECT_EQ(copies.text(), "1");
    copies.selectAll();
    QTest::keyClicks(&copies, "1x234");
    EXPECT_EQ(copies.text(), "12");
    EXPECT_EQ(control<QGroupBox>(form, "Frame6").title(), "Choix d'imprimante");
    EXPECT_EQ(control<QGroupBox>(form, "Frame8").title(), "A (compris)");
    const std::pair<const char *, const char *> captions[]{{"Command1", "Imprimer"},
                                                           {"Command2", "Quitter"},
                                                           {"Command3", "Autre Imprim."},
                                                           {"Command4", "Autre Police"}};
    for (const auto &[name, caption] : captions)
        EXPECT_EQ(button(form, name).text(), caption);
}

} // namespace
} // namespace velmora::test
