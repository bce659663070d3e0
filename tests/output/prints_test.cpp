#include "output/code_print.h"
#include "output/line_print.h"
#include "output/week_print.h"
#include "support/pdf.h"
#include "support/workstation.h"

#include <QImage>

namespace velmora::test
{
namespace
{

constexpr double shortSide = 11906;
constexpr double longSide = 16838;

class Prints : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void addFolder(const QString &name, const QList<int> &numbers)
    {
        for (const int nump : QList<int>{0} + numbers) {
            ASSERT_TRUE(session.base.groupe.addNew().ok());
            session.base.groupe.values() = {name, nump, nump != 0};
            ASSERT_TRUE(session.base.groupe.update().ok());
        }
    }
    void addCode(const QString &code, const QString &brief, const QString &label, int modabs = 0,
                 void (*more)(CodeAbsence &) = {})
    {
        auto &codabs = session.base.codabs;
        EXPECT_TRUE(codabs.addNew().ok());
        CodeAbsence &row = codabs.values();
        row.codabs = code;
        row.libecour = brief;
        row.libelong = label;
        row.modabs = modabs;
        if (more) more(row);
        EXPECT_TRUE(codabs.update().ok());
    }
    void addTwoCuts(int nump, const QDate &dat)
    {
        station.addDay(nump, dat, 420, 1260, 600, 630);
        auto &sitper = session.base.sitper;
        sitper.setIndex("sitper01");
        ASSERT_TRUE(sitper.seek(store::Cmp::Eq, {nump, dat}));
        ASSERT_TRUE(sitper.edit().ok());
        sitper.values().hideb2 = 780;
        sitper.values().hifin2 = 1020;
        ASSERT_TRUE(sitper.update().ok());
    }
};

/// The text of the lines that begin so, without that beginning.
QString after(const QStringList &lines, const QString &start)
{
    for (const QString &line : lines)
        if (line.startsWith(start)) return line.mid(start.size()).trimmed();
    return QStringLiteral("(no line)");
}

using LinePrint = Prints;

TEST_F(LinePrint, ShowsEachDayItsWeeksAndTheTotalWithAbsencesIncluded)
{
    station.addLine(1, "Zoé");
    addCode(" C", "Cg", "Congé payé", 420);
    addCode("HP", "Hp", "Comme prévu", 0);
    addCode("JA", "Ja", "Sans valeur", -1);
    const auto june = [](int day) { return QDate(2026, 6, day); };
    station.addDay(1, june(4), 480, 1020, 720, 780);   // Thursday, 8h00
    addTwoCuts(1, june(5));                            // Friday, 9h30
    station.addDay(1, june(6), 1320, 360);             // over midnight, 8h00
    station.addDay(1, june(8), 480, 960, 0, 0, false); // covered, 8h00
    station.addAbsence(1, "HP", june(8), june(8));
    station.addAbsence(1, "C", june(9), june(9)); // one letter, 7h00
    station.addDay(1, june(10), 480, 540);        // hours and an absence: 1h00 and 7h00
    station.addAbsence(1, "C", june(10), june(10));
    station.addDay(1, june(11), 480, 540, 0, 0, false); // covered, worth nothing
    station.addAbsence(1, "JA", june(11), june(11));
    station.addAbsence(1, "XX", june(12), june(12)); // a code that nobody knows
    session.nometab = "Maison Énée";
    const PrintedPdf pdf(impressionLigne(session, {1, "Zoé"}, june(4), june(15)));
    EXPECT_EQ(pdf.pages(), 1);
    const QStringList expected{"Maison Énée [imprimé le 15/06/2026 à 8h15] Page : 1",
                               "PLANNING DU 04/06/2026 AU 15/06/2026",
                               "Zoé",
                               "Jeu 04/06/2026 8h00 - 12h00 et 13h00 - 17h00",
                               "Ven 05/06/2026 7h00 - 10h00 et 10h30 - 13h00 et 17h00 - 21h00",
                               "Sam 06/06/2026 22h00 - 6h00",
                               "Dim 07/06/2026 -",
                               "( 25h30 )",
                               "Lun 08/06/2026 - HP - Comme prévu",
                               "Mar 09/06/2026 - C - Congé payé",
                               "Mer 10/06/2026 8h00 - 9h00 C - Congé payé",
                               "Jeu 11/06/2026 - JA - Sans valeur",
                               "Ven 12/06/2026 - XX - ?",
                               "Sam 13/06/2026 -",
                               "Dim 14/06/2026 -",
                               "( 23h00 )",
                               "Lun 15/06/2026 -",
                               "( 0h00 )",
                               "Total des heures: 48h30 ( dont 22h00 d'absence)"};
    EXPECT_EQ(joined(pdf.lines()), joined(expected));
}

TEST_F(LinePrint, StandsOnItsColumnsWithALineFreeBeforeSaturday)
{
    station.addLine(1, "Zoé");
    station.addDay(1, {2026, 6, 5}, 480, 1020);
    const PrintedPdf pdf(impressionLigne(session, {1, "Zoé"}, {2026, 6, 5}, {2026, 6, 7}));
    std::map<QString, PdfWord> words;
    for (const PdfWord &word : pdf.words())
        words.emplace(word.text, word);
    const auto column = [](int number) { return 340 + (number - 1) * 144.0; };
    EXPECT_NEAR(words["Ven"].left, column(12), 12);
    EXPECT_NEAR(words["8h00"].left, column(27), 12);
    EXPECT_NEAR(words["("].left, column(57), 12);
    EXPECT_NEAR(words["Total"].left, column(10), 12);
    EXPECT_NEAR(words["Sam"].top - words["Ven"].top, 2 * 240, 3);
    EXPECT_NEAR(words["Dim"].top - words["Sam"].top, 240, 3);
}

TEST_F(LinePrint, ALongPeriodKeepsWeeksWholeRepeatsTheHeadAndCutsNothingInAWideFont)
{
    const QString name = QStringLiteral("Équipe de nuit de la Résidence des Trois Ormeaux ").repeated(3);
    station.addLine(1, name);
    addCode("CA", "Ca", QStringLiteral("Congé pour convenances tout à fait personnelles ").repeated(2), 1440);
    station.addAbsence(1, "CA", {2026, 1, 1}, {2026, 12, 31});
    for (QDate date(2026, 1, 1); date <= QDate(2026, 5, 31); date = date.addDays(1))
        addTwoCuts(1, date);
    const PrintedPdf pdf(impressionLigne(session, {1, name}, {2026, 1, 1}, {2026, 5, 31}),
                         "DejaVu Sans Mono");
    EXPECT_EQ(pdf.pages(), 4);
    EXPECT_EQ(joined(badlyPlaced(pdf, shortSide, longSide)), "");
    int days = 0;
    for (int page = 1; page <= pdf.pages(); ++page) {
        const QStringList lines = pdf.lines(page);
        EXPECT_TRUE(lines[0].endsWith(QStringLiteral("Page : %1 - 4").arg(page))) << lines[0].toStdString();
        EXPECT_EQ(lines[1], "PLANNING DU 01/01/2026 AU 31/05/2026");
        EXPECT_TRUE(lines[2].startsWith("Équipe de nuit") && lines[2].endsWith(QChar(0x2026)));
        EXPECT_TRUE(page == 1 || lines[3].startsWith("Lun ")) << lines[3].toStdString();
        EXPECT_TRUE(lines.last().startsWith(page == 4 ? "Total des heures:" : "( ")) << page;
        days += static_cast<int>(lines.filter(QRegularExpression("^(Lun|Mar|Mer|Jeu|Ven|Sam|Dim) ")).size());
    }
    EXPECT_EQ(days, 151);
    EXPECT_TRUE(pdf.lines().last().contains("5058h30")) << pdf.lines().last().toStdString();
}

TEST_F(LinePrint, ASetGivesEachLineOfTheFolderAPageOfItsOwnInOrderOfNames)
{
    station.addLine(1, "Zoé");
    station.addLine(2, "Émile");
    station.addLine(3, "Fermée", {2020, 1, 1}, {2026, 5, 31});
    station.addLine(4, "Denis", {2026, 6, 30});
    station.addLine(5, "Future", {2026, 7, 1});
    addFolder("Nuit", {1, 4});
    const auto names = [&](const QString &folder) {
        const PrintedPdf pdf(impressionEnsemble(session, {2026, 6, 1}, {2026, 6, 30}, folder));
        QStringList found;
        for (int page = 1; page <= pdf.pages(); ++page) {
            found << pdf.lines(page).value(2);
            EXPECT_TRUE(pdf.lines(page).value(0).endsWith(
                QStringLiteral("Page : %1 - %2").arg(page).arg(pdf.pages())));
        }
        return found;
    };
    EXPECT_EQ(joined(names({})), joined(QStringList({"Denis", "Émile", "Zoé"})));
    EXPECT_EQ(joined(names("Nuit")), joined(QStringList({"Denis", "Zoé"})));
}

TEST_F(LinePrint, AnEmptySetHasOneHeadAndFailedReadingIsTold)
{
    const PrintedPdf pdf(impressionEnsemble(session, {2026, 6, 1}, {2026, 6, 30}, {}));
    EXPECT_EQ(pdf.lines().mid(1),
              QStringList({"PLANNING DU 01/06/2026 AU 30/06/2026", "Ensemble de lignes"}));
    ASSERT_TRUE(session.base.engine.execute("DROP TABLE absences").ok());
    const QTemporaryDir folder;
    EXPECT_FALSE(ecritPdf(folder.filePath("line.pdf"),
                          impressionLigne(session, {1, "Zoé"}, {2026, 6, 1}, {2026, 6, 30}), {}, {}));
}

using WeekPrint = Prints;

TEST_F(WeekPrint, ShowsHoursShortLabelsAndTotalsOfTheLines)
{
    station.addLine(1, "Zoé");
    station.addLine(2, "Émile");
    addCode("CA", "Congé", "Congés annuels", 420);
    addTwoCuts(1, {2026, 6, 3});
    station.addDay(1, {2026, 6, 4}, 1320, 360);
    station.addAbsence(2, "CA", {2026, 6, 8}, {2026, 6, 12});
    station.addAbsence(2, "XX", {2026, 6, 4}, {2026, 6, 4});
    const auto print = [&](bool valued) {
        return PrintedPdf(impressionSemaine(session, {{2026, 6, 3}, {}, valued, false})).lines().mid(1);
    };
    const QStringList expected{
        "Planning hebdomadaire",
        "Nom Mer 03/06/2026 Jeu 04/06/2026 Ven 05/06/2026 Sam 06/06/2026 Dim 07/06/2026 Lun 08/06/2026 "
        "Mar 09/06/2026 Tot. H. Eff. Tot. abs.",
        "Émile ? Congé Congé 0h00 14h00",
        "Zoé 7h00 - 10h00 22h00 - 6h00 17h30 0h00",
        "10h30 - 13h00",
        "17h00 - 21h00",
        "H. EFF. TOTAL : 17h30",
        "ABS. TOTAL : 14h00"};
    EXPECT_EQ(joined(print(true)), joined(expected));
    const QStringList unvalued = print(false);
    EXPECT_EQ(unvalued[2], "Émile ? Congé Congé 0h00 0h00");
    EXPECT_EQ(unvalued.last(), "ABS. TOTAL : 0h00");
}

TEST_F(WeekPrint, StandsOnItsColumns)
{
    station.addLine(1, "Zoé");
    station.addDay(1, {2026, 6, 7}, 480, 1020);
    const PrintedPdf pdf(impressionSemaine(session, {{2026, 6, 1}, {}, true, false}));
    EXPECT_EQ(joined(badlyPlaced(pdf, longSide, shortSide)), "");
    std::map<QString, PdfWord> words;
    for (const PdfWord &word : pdf.words())
        words.emplace(word.text, word);
    const auto column = [](int number) { return 340 + (number - 1) * 144.0; };
    EXPECT_NEAR(words["Zoé"].left, column(2), 12);
    EXPECT_NEAR(words["Lun"].left, column(18), 12);
    EXPECT_NEAR(words["Dim"].left, column(90), 12);
    EXPECT_NEAR(words["8h00"].left, column(90), 12);
    EXPECT_NEAR(words["9h00"].right, column(107) - 40, 12);
    EXPECT_NEAR(words["abs."].right, column(113) - 40, 12);
}

TEST_F(WeekPrint, AbsencesTakeTheColoursOfTheirCodeOnlyWhenAsked)
{
    station.addLine(1, "Zoé");
    addCode("CA", "Congé", "Congés", 0, [](CodeAbsence &code) {
        code.bcouleur = true;
        code.backc = 0xFF0000;
        code.forec = 0x0000FF;
    });
    station.addAbsence(1, "CA", {2026, 6, 1}, {2026, 6, 1});
    for (const bool colour : {true, false}) {
        const QTemporaryDir folder;
        const QString file = folder.filePath("week.pdf");
        ASSERT_TRUE(ecritPdf(file, impressionSemaine(session, {{2026, 6, 1}, {}, false, colour}), {}, {}));
        QProcess process;
        process.start("pdftoppm", {"-r", "72", "-png", "-singlefile", file, folder.filePath("week")});
        ASSERT_TRUE(process.waitForFinished(30000));
        const QImage page(folder.filePath("week.png"));
        int red = 0;
        int blue = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                const QColor pixel = page.pixelColor(x, y);
                red += pixel == QColor(Qt::red);
                blue += pixel.blue() > 128 && pixel.red() < 128;
            }
        }
        // The cell is twelve columns by one line.
        EXPECT_NEAR(red, colour ? 86 * 12 : 0, colour ? 300 : 0);
        EXPECT_EQ(blue > 0, colour);
    }
}

TEST_F(WeekPrint, ManyLinesKeepRowsWholeRepeatTheTitlesAndEndWithTheTotals)
{
    for (int nump = 1; nump <= 70; ++nump) {
        station.addLine(nump, QStringLiteral("Agent de nuit de la Résidence des Ormeaux %1").arg(nump));
        for (int day = 1; day <= 7; ++day)
            if (nump % 3 == 0) addTwoCuts(nump, {2026, 6, day});
    }
    const PrintedPdf pdf(impressionSemaine(session, {{2026, 6, 1}, {}, false, false}), "DejaVu Sans");
    EXPECT_EQ(joined(badlyPlaced(pdf, longSide, shortSide)), "");
    int names = 0;
    for (int page = 1; page <= pdf.pages(); ++page) {
        const QStringList lines = pdf.lines(page);
        EXPECT_TRUE(lines[0].endsWith(QStringLiteral("Page : %1 - %2").arg(page).arg(pdf.pages())));
        EXPECT_TRUE(lines[2].startsWith("Nom Lun 01/06/2026")) << lines[2].toStdString();
        EXPECT_TRUE(lines[3].startsWith("Agent")) << lines[3].toStdString();
        names += static_cast<int>(lines.filter(QChar(0x2026)).size());
        EXPECT_EQ(lines.filter("TOTAL").size(), page == pdf.pages() ? 2 : 0);
    }
    EXPECT_EQ(names, 70);
    // 23 lines of 66h30.
    EXPECT_EQ(after(pdf.lines(), "H. EFF. TOTAL :"), "1529h30");
}

using CodePrint = Prints;

void archived(CodeAbsence &code)
{
    code.barc = true;
}

TEST_F(CodePrint, ListsEveryCodeInOrderAndSaysWhichAreArchived)
{
    addCode("MA", "Maladie", "Arrêt maladie", 0, archived);
    addCode(" C", "Congé", "Congés payés");
    const PrintedPdf pdf(impressionCodes(session));
    EXPECT_EQ(joined(pdf.lines()), joined({"[imprimé le 15/06/2026 à 8h15] Page : 1", "Codes absence",
                                           "C Congé Congés payés", "MA Maladie Arrêt maladie archivé"}));
}

TEST_F(CodePrint, AnEmptyTablePrintsTheHeadingAloneAndALongOneStopsAtLine63)
{
    EXPECT_EQ(PrintedPdf(impressionCodes(session)).lines().size(), 2);
    for (int i = 0; i < 120; ++i)
        addCode(QStringLiteral("%1").arg(i, 3), "Libellé court vraiment très long",
                QStringLiteral("Libellé long ").repeated(6), 0, archived);
    const PrintedPdf pdf(impressionCodes(session), "DejaVu Sans");
    EXPECT_EQ(joined(badlyPlaced(pdf, shortSide, longSide)), "");
    EXPECT_EQ(pdf.pages(), 3);
    // From line 6 to line 61.
    EXPECT_EQ(pdf.lines(1).size(), 2 + 56);
    EXPECT_EQ(pdf.lines().filter("archivé").size(), 120);
}

} // namespace
} // namespace velmora::test
