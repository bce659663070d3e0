#include "foncgen/foncgen.h"
#include "output/page_head.h"
#include "output/period_bars.h"
#include "output/printed_grid.h"
#include "support/pdf.h"

#include <QFile>
#include <QImage>

namespace velmora::test
{
namespace
{

constexpr double portraitWidth = 11906;
constexpr double portraitHeight = 16838;
/// From the paper's edge to the printable area.
constexpr double corner = 340;

Impression drawing(std::function<void(Imprimante &)> draw)
{
    return {QStringLiteral("Essai"), [draw = std::move(draw)](Imprimante &imprimante, const Progres &) {
                draw(imprimante);
                return store::Status{};
            }};
}

Impression heads(const EntetePage &entete, int pages)
{
    return drawing([=](Imprimante &imprimante) {
        for (int page = 0; page < pages; ++page)
            EXPECT_EQ(entetepage(imprimante, entete), premiereLigne(entete));
    });
}

PdfWord word(const PdfFile &pdf, const QString &text)
{
    for (const PdfWord &one : pdf.words())
        if (one.text == text) return one;
    ADD_FAILURE() << "not on the page: " << text.toStdString();
    return {};
}

TEST(PrintFrame, HeadBearsTheEstablishmentTheMomentThePageAndTheTitlesOnEachPage)
{
    const PrintedPdf pdf(heads({QStringLiteral("Maison Énée"), QStringLiteral("PLANNING DÛ"), "Zoé", 2}, 2));
    EXPECT_EQ(pdf.pages(), 2);
    EXPECT_TRUE(pdf.pageSize().contains("A4")) << pdf.pageSize().toStdString();
    for (const int page : {1, 2}) {
        const QStringList expected{
            QStringLiteral("Maison Énée [imprimé le 15/06/2026 à 8h15] Page : %1 - 2").arg(page),
            QStringLiteral("PLANNING DÛ"), QStringLiteral("Zoé")};
        EXPECT_EQ(joined(pdf.lines(page)), joined(expected));
    }
    EXPECT_NEAR(word(pdf, "Maison").left, corner + 300, 15);
    EXPECT_NEAR(word(pdf, "Page").left, portraitWidth - corner - 2000, 15);
    const PdfWord second = word(pdf, "Zoé");
    EXPECT_NEAR((second.left + second.right) / 2, corner + (11225 - 500) / 2.0, 20);
    for (const QString &font : pdf.fonts())
        EXPECT_TRUE(font.contains(QRegularExpression("yes +\\w+ +yes"))) << font.toStdString();
}

TEST(PrintFrame, HeadOfOnePageHasItsNumberAloneAndLongTextsEndInAnEllipsisInsideTheFrame)
{
    const QString lengthy = QStringLiteral("Résidence des Trois Ormeaux ").repeated(9);
    const PrintedPdf pdf(heads({lengthy, lengthy, lengthy, 1}, 1), QStringLiteral("DejaVu Sans"));
    const QStringList lines = pdf.lines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].endsWith("[imprimé le 15/06/2026 à 8h15] Page : 1")) << lines[0].toStdString();
    for (const QString &line : lines)
        EXPECT_TRUE(line.contains(QChar(0x2026))) << line.toStdString();
    EXPECT_NEAR(word(pdf, "Résidence").top, corner + 100, 40);
    EXPECT_EQ(joined(badlyPlaced(pdf, portraitWidth, portraitHeight)), "");
}

TEST(PrintFrame, ServicesPlaceTextsOnTheGridAndLeaveTheLineOnTheLastOneUsed)
{
    const PrintedPdf pdf(drawing([](Imprimante &imprimante) {
        imprimante.nouvellePage();
        int ligne = 10;
        Foncgen::pprint(imprimante, ligne, 9, QStringLiteral("gauche"));
        EXPECT_EQ(ligne, 10);
        Foncgen::pprintc(imprimante, ligne, 40, QStringLiteral("milieu\ndessous"));
        EXPECT_EQ(ligne, 11);
        Foncgen::pprintd(imprimante, ligne, 70, QStringLiteral("droite"));
        ligne = 9;
        Foncgen::tabl(imprimante, ligne, 9, 12, 70, true, true, true, true, {24});
        EXPECT_EQ(ligne, 12);
    }));
    EXPECT_NEAR(word(pdf, "gauche").left, corner + 8 * 144, 10);
    const PdfWord middle = word(pdf, "milieu");
    EXPECT_NEAR((middle.left + middle.right) / 2, corner + 39 * 144, 10);
    EXPECT_NEAR(middle.top, word(pdf, "gauche").top, 3);
    EXPECT_NEAR(word(pdf, "dessous").top - middle.top, 240, 3);
    EXPECT_NEAR(word(pdf, "droite").right, corner + 69 * 144 - 40, 10);
    EXPECT_NEAR(word(pdf, "droite").top, word(pdf, "dessous").top, 3);
}

TEST(PrintFrame, FramesHaveTheSidesAskedForAndFillsLieWithinTheirCells)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("frame.pdf");
    ASSERT_TRUE(ecritPdf(file, drawing([](Imprimante &imprimante) {
                             imprimante.nouvellePage();
                             int ligne = 10;
                             Foncgen::remplir(imprimante, ligne, 30, 10, 40, qRgb(255, 0, 0));
                             ligne = 10;
                             Foncgen::tabl(imprimante, ligne, 10, 19, 50, true, false, true, false, {20});
                         }),
                         {}, {}));
    QProcess process;
    process.start("pdftoppm", {"-r", "144", "-png", "-singlefile", file, folder.filePath("frame")});
    ASSERT_TRUE(process.waitForFinished(30000));
    const QImage page(folder.filePath("frame.png"));
    const auto dark = [&](double column, double line) {
        const int x = qRound((corner + (column - 1) * 144) / 10);
        const int y = qRound((corner + (line - 1) * 240) / 10);
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -1; dy <= 1; ++dy)
                if (qGray(page.pixel(x + dx, y + dy)) < 128) return true;
        return false;
    };
    EXPECT_TRUE(dark(45, 10)) << "top";
    EXPECT_FALSE(dark(45, 20)) << "bottom";
    EXPECT_TRUE(dark(10, 15)) << "left";
    EXPECT_FALSE(dark(50, 15)) << "right";
    EXPECT_TRUE(dark(20, 15)) << "rule";
    EXPECT_FALSE(dark(15, 15)) << "a rule where none is asked for";
    const auto at = [&](double column, double line) {
        return QColor(
            page.pixel(qRound((corner + (column - 1) * 144) / 10), qRound((corner + (line - 1) * 240) / 10)));
    };
    EXPECT_EQ(at(35, 10.5), QColor(Qt::red));
    EXPECT_EQ(at(35, 11.5), QColor(Qt::white));
    EXPECT_EQ(at(41, 10.5), QColor(Qt::white));
}

TEST(PrintFrame, AWholeGridRepeatsItsTitlesNumbersItsPagesAndLosesNoRow)
{
    GrilleImprimee grille{{"Début", "caché", "Fin"}, {}};
    for (int i = 0; i < 130; ++i)
        grille.rangees << QStringList{QString::number(i) + "a", "x", QString::number(i) + "b"};
    const PrintedPdf pdf(drawing([&](Imprimante &imprimante) {
        Foncgen::msfgimpr(imprimante, grille, "Horaires Pratiqués", "Maison", u'P', {0, 2});
    }));
    EXPECT_EQ(pdf.pages(), 3);
    QStringList rows;
    for (const int page : {1, 2, 3}) {
        const QStringList lines = pdf.lines(page);
        EXPECT_TRUE(lines[0].endsWith(QStringLiteral("Page : %1 - 3").arg(page)));
        EXPECT_EQ(lines[1], "Horaires Pratiqués");
        EXPECT_EQ(lines[2], "Début Fin");
        rows << lines.mid(3);
    }
    ASSERT_EQ(rows.size(), 130);
    EXPECT_EQ(rows.first(), "0a 0b");
    EXPECT_EQ(rows.last(), "129a 129b");
    EXPECT_EQ(joined(badlyPlaced(pdf, portraitWidth, portraitHeight)), "");
}

TEST(PrintFrame, AnEmptyGridPrintsItsTitlesAndAWideOneFitsALyingPage)
{
    const auto print = [](const GrilleImprimee &grille, const QList<int> &colonnes) {
        return PrintedPdf(drawing([&](Imprimante &imprimante) {
            Foncgen::msfgimpr(imprimante, grille, "Titre", {}, u'L', colonnes);
        }));
    };
    EXPECT_EQ(print({{"Début", "Fin"}, {}}, {0, 1}).lines().mid(1), QStringList({"Titre", "Début Fin"}));
    const QStringList wide(12, QStringLiteral("une_cellule_bien_large"));
    QList<int> all;
    for (int i = 0; i < 12; ++i)
        all << i;
    const PrintedPdf pdf = print({wide, {wide}}, all);
    EXPECT_EQ(pdf.lines().filter(QChar(0x2026)), QStringList());
    EXPECT_EQ(joined(badlyPlaced(pdf, portraitHeight, portraitWidth)), "");
}

TEST(PrintFrame, APdfThatCannotBeWrittenLeavesTheOldOne)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("print.pdf");
    QFile old(file);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const Impression failing{"Essai", [](Imprimante &imprimante, const Progres &) {
                                 imprimante.nouvellePage();
                                 return store::Status{store::Status::Code::Io, "disk"};
                             }};
    EXPECT_FALSE(ecritPdf(file, failing, {}, {}));
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
    EXPECT_FALSE(ecritPdf(folder.filePath("absent/print.pdf"), heads({}, 1), {}, {}));
}

TEST(PeriodBars, StartOnTheLastFourWeeksAndNeverComeCloserThanAWeek)
{
    const struct {
        int days;
        int max1, vs1;
    } months[]{{28, 22, 1}, {30, 24, 3}, {31, 25, 4}};
    for (const auto &[days, max1, vs1] : months) {
        const QDate first(2026, 3, 1);
        BarresPeriode barres(first, first.addDays(days - 1));
        EXPECT_EQ(barres.maximum1(), max1);
        EXPECT_EQ(barres.vs1(), vs1);
        EXPECT_EQ(barres.vs2(), days);
        barres.deplaceVs1(2);
        barres.deplaceVs2(7);
        EXPECT_EQ(barres.premier(), QDate(2026, 3, 2));
        EXPECT_EQ(barres.dernier(), QDate(2026, 3, 8));
        // A first date past the last one would print nothing.
        barres.deplaceVs1(20);
        EXPECT_EQ(barres.dernier(), QDate(2026, 3, 26));
    }
}

} // namespace
} // namespace velmora::test
