#include "output/export.h"

#include "output/export_text.h"
#include "output/windows1252.h"
#include "support/workstation.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace velmora::test
{
namespace
{

const QDate february1(2026, 2, 1);
const QDate february28(2026, 2, 28);

TEST(ExportText, HoursHaveACommaTwoDecimalsAndNoZeroBeforeTheComma)
{
    const std::pair<int, const char *> hours[]{
        {450, "7,50"}, {0, "0,00"}, {30, ",50"},   {1470, ",50"},  {1440, "0,00"}, {1439, "23,98"},
        {57, ",95"},   {5, ",08"},  {455, "7,58"}, {600, "10,00"}, {1500, "1,00"}, {-30, "-,50"}};
    for (const auto &[minutes, text] : hours)
        EXPECT_EQ(heurexport(minutes), text) << minutes;
    EXPECT_EQ(arrondit(2.5, 0), "3");
    EXPECT_EQ(arrondit(12.3449, 3), "12,345");
    EXPECT_EQ(arrondit(0.999, 2), "1,00");
}

TEST(ExportText, EncodingHasAccentsAndTheEuroAndAQuestionMarkForTheRest)
{
    EXPECT_EQ(enWindows1252(QStringLiteral("Déb. œ€ Ωx")), QByteArray("D\xe9"
                                                                      "b. \x9c\x80 ?x"));
    EXPECT_EQ(enWindows1252(QStringLiteral("De\u0301b\r\n\t")), QByteArray("D\xe9"
                                                                           "b\r\n\t"));
}

/// A month of 28 days on a real workstation.
class ExportTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void exportFebruary() { faite = exporte(session, february1, february28); }
    static QByteArray content(const QString &name)
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    /// A member of the workbook's archive.
    [[nodiscard]] QString member(const QString &name) const
    {
        QProcess unzip;
        unzip.start(QStringLiteral("unzip"), {QStringLiteral("-p"), faite.classeur, name});
        EXPECT_TRUE(unzip.waitForFinished(30000));
        return QString::fromUtf8(unzip.readAllStandardOutput());
    }
    /// Type and value of each cell, "s" for a text, by its place.
    [[nodiscard]] QMap<QString, QString> cells() const
    {
        static const QRegularExpression cell(
            QStringLiteral("<c r=\"([A-Z]+\\d+)\"[^>]*?(t=\"inlineStr\")?>(?:<is><t[^>]*>|<v>)([^<]*)<"));
        QMap<QString, QString> found;
        const QString sheet = member(QStringLiteral("xl/worksheets/sheet1.xml"));
        for (auto match = cell.globalMatch(sheet); match.hasNext();) {
            const auto one = match.next();
            found.insert(one.captured(1), (one.captured(2).isEmpty() ? "n " : "s ") + one.captured(3));
        }
        return found;
    }

    Exportation faite;
};

TEST_F(ExportTest, TheWorkFileIsByteForByteTheOneThatSpreadsheetsAreBuiltOn)
{
    station.addLine(2, QStringLiteral("Élodie"), {2020, 1, 1}, {2026, 2, 3});
    station.addLine(3, QStringLiteral("PARTIE"), {2020, 1, 1}, {2026, 1, 31});
    station.addDay(2, {2026, 2, 1}, 480, 1050, 720, 765);
    station.addDay(2, {2026, 2, 2}, 1320, 360); // a night
    station.addDay(2, {2026, 2, 3}, 480, 960, 0, 0, false);
    exportFebruary();
    QString days;
    for (int day = 1; day <= 28; ++day)
        days += Foncgen::strz(day, 2) + "/02/2026\t";
    const auto row = [](const QString &title, const QString &first, const QString &rest) {
        return QString('\t' + title + '\t' + first + QString(rest + '\t').repeated(26) + "\r\n");
    };
    const QString head = "\t\r\n\t\tPLANNING Du 01/02/2026 au 28/02/2026\t\r\n\t\r\n\t\t\t\r\n\t\r\n\t\r\n"
                         "NOM \t\t" +
                         days + "\t\r\n\t\r\n";
    const QString block = "Élodie" + row("Heures F.", "8,75\t8,00\t", "0") +
                          row("H.Début", "8,00\t22,00\t", " - ") + row("H.Fin", "17,50\t6,00\t", "") +
                          row("Coupe1 Déb.", "12,00\t\t", "") + row("Coupe1 Fin", "12,75\t\t", "") +
                          row("Coupe2 Déb.", "\t\t", "") + row("Coupe2 Fin", "\t\t", "") +
                          "***************\t*********\t" + QString(28, '\t') + "\r\n";
    EXPECT_EQ(faite.fichier, station.folder() + "Velexc.txt");
    EXPECT_EQ(content(faite.fichier), QString(head + "\r\n" + block + "\r\n").toLatin1());
    EXPECT_EQ(faite.texte, head + block);
    EXPECT_EQ(defautExport(faite), QString());
}

TEST_F(ExportTest, WithoutALineThereIsTheHeadAloneAndAnOldFileIsGone)
{
    station.addLine(1, QStringLiteral("PARTIE"), {2020, 1, 1}, {2026, 1, 31});
    QFile old(station.folder() + "Velexc.txt");
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(10000, 'x'));
    old.close();
    exportFebruary();
    EXPECT_EQ(content(faite.fichier), texteEntete(february1, february28).toLatin1() + "\r\n");
}

TEST_F(ExportTest, TheWorkbookHoldsTextsAsTextsHoursAsNumbersAndDaysAsDates)
{
    station.addLine(1, QStringLiteral("ANNE & <B>"));
    station.addDay(1, {2026, 2, 1}, 480, 1050, 720, 765);
    exportFebruary();
    const auto found = cells();
    const std::pair<const char *, const char *> expected[]{{"C2", "s PLANNING Du 01/02/2026 au 28/02/2026"},
                                                           {"A7", "s NOM "},
                                                           {"C7", "n 46054"}, // 1 February 2026
                                                           {"AD7", "n 46081"},
                                                           {"A9", "s ANNE &amp; &lt;B&gt;"},
                                                           {"B15", "s Coupe2 Fin"},
                                                           {"C9", "n 8.75"},
                                                           {"C11", "n 17.5"},
                                                           {"D9", "n 0"},
                                                           {"D10", "s  - "},
                                                           {"A16", "s ***************"},
                                                           {"B16", "s *********"}};
    for (const auto &[place, value] : expected)
        EXPECT_EQ(found.value(place), value) << place;
    EXPECT_FALSE(found.contains("D11"));
    const QString sheet = member("xl/worksheets/sheet1.xml");
    EXPECT_TRUE(sheet.contains("xSplit=\"2\" ySplit=\"8\" topLeftCell=\"C9\""));
    EXPECT_TRUE(member("xl/styles.xml").contains("formatCode=\"dd/mm/yyyy\""));
    EXPECT_TRUE(member("xl/workbook.xml").contains("name=\"Feuil1\""));
}

TEST_F(ExportTest, ANameIsNeverAFormulaAndNeverMoreThanOneCell)
{
    const QStringList names{"=1+1", "+33 6", "-A", "@SUM(A1)", "\"BOB", "a\tb\r\nc"};
    for (int i = 0; i < names.size(); ++i)
        station.addLine(i + 1, names[i]);
    exportFebruary();
    const QString sheet = member("xl/worksheets/sheet1.xml");
    EXPECT_FALSE(sheet.contains("<f>"));
    const QStringList values = cells().values();
    for (const QString name : {"=1+1", "+33 6", "-A", "@SUM(A1)", "a b  c"})
        EXPECT_TRUE(values.contains("s " + name)) << name.toStdString();
    const QString file = QString::fromLatin1(content(faite.fichier));
    for (const QString name : {"=1+1", "+33 6", "-A", "@SUM(A1)"}) {
        EXPECT_TRUE(faite.texte.contains("\n " + name + "\tHeures F.")) << name.toStdString();
        EXPECT_TRUE(file.contains("\n" + name + "\tHeures F.")) << name.toStdString();
    }
    EXPECT_TRUE(faite.texte.contains("\na b  c\tHeures F."));
}

TEST_F(ExportTest, TheHandOverOpensTheWorkbookAndSaysWhatFailed)
{
    station.addLine(1, QStringLiteral("ANNE"));
    exportFebruary();
    QStringList copied;
    const auto handOver = [&] { remet(session, faite, [&](const QString &text) { copied << text; }); };
    handOver();
    EXPECT_EQ(station.host.opened, QStringList{station.folder() + "Planning-Velmora.xls"});
    EXPECT_EQ(copied, QStringList{faite.texte});
    station.host.opens = false;
    station.host.expectMessage("Pb lancement EXCEL ! Le résultat se trouve dans le fichier : " +
                               faite.fichier);
    handOver();
    // Nothing can be written into a folder that isn't there; the work file is written all the same.
    session.cheminjournal = station.folder() + "absent/";
    exportFebruary();
    EXPECT_TRUE(faite.fichierEcrit);
    station.host.expectMessage("Pb EXCEL non retrouvé");
    handOver();
    EXPECT_EQ(station.host.titles, QStringList({"velmora", "velmora"}));
    EXPECT_EQ(copied.size(), 1);
    EXPECT_EQ(station.host.opened.size(), 2);
    EXPECT_TRUE(defautExport(faite).contains("absent"));
}

} // namespace
} // namespace velmora::test
