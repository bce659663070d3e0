#include "cli/program.h"

using namespace velmora::test;

namespace
{

/// The example planning, opened once so that its journal has its ring.
struct Commands : testing::Test {
    Commands()
    {
        program.demo();
        EXPECT_EQ(program({"journal"}).status, 0);
    }
    Program program;
};

/// The text of a cell by the row's first column and the column's header.
QString cell(const Outcome &month, const QString &name, const QString &label, const QString &header)
{
    const QStringList lines = month.lines();
    const QStringList months = lines.value(0).split(QLatin1Char('\t'));
    const QStringList days = lines.value(2).split(QLatin1Char('\t'));
    for (const QString &line : lines) {
        const QStringList cells = line.split(QLatin1Char('\t'));
        if (cells.value(0) != name) continue;
        for (qsizetype i = 0; i < days.size(); ++i)
            if (days[i] == header && months.value(i).startsWith(label)) return cells.value(i);
    }
    return QStringLiteral("absent");
}

} // namespace

TEST_F(Commands, ShowAnEntryInTheMonthTheStatusAndTheRing)
{
    const QString name = queryOne(program.base(), "SELECT nom FROM ligmois WHERE nump = 3");
    ASSERT_EQ(program({"saisie", "3", "01/06/2026", "05/06/2026", "8h00-12h00", "14h00-18h00"}).status, 0);
    const Outcome month = program({"mois", "6/2026"});
    ASSERT_EQ(month.status, 0) << month.err.toStdString();
    EXPECT_EQ(month.lines().size(), 3 + 16 + 1);
    for (const char *day : {"L01", "M02", "M03", "J04", "V05"})
        EXPECT_EQ(cell(month, name, "Juin", day), QStringLiteral("8h00 - 18h00 | [12h00 _ 14h00]")) << day;
    EXPECT_EQ(program({"statut", "3", "01/06/2026"}).out.trimmed(),
              QStringLiteral("[Fait: 8h00 ] de 8h00 à 18h00 [Coupe: 12h00 _ 14h00]"));
    const QStringList ring = program({"journal"}).lines();
    EXPECT_EQ(ring.value(0), QStringLiteral("0\t0\t29\t\t0\t"));
    EXPECT_EQ(ring.value(1), QStringLiteral("1\t1\t0\tS\t-1\tnouvel horaire: ") + name +
                                 QStringLiteral(" du 01 au 05/06/2026"));
}

TEST_F(Commands, ReadHoursAsAPersonTypesThem)
{
    ASSERT_EQ(program({"saisie", "1", "02/06/2026", "8-12", "1330-17:15"}).status, 0);
    EXPECT_EQ(queryOne(program.base(), "SELECT heurtrav FROM sitper WHERE nump = 1 AND dat = '2026-06-02'"),
              QString::number(4 * 60 + 3 * 60 + 45));
}

TEST_F(Commands, RefuseBadInputWithTheReasonAndChangeNothing)
{
    const QString anomaly = QStringLiteral("horaire en anomalie !");
    const QList<std::pair<QStringList, QString>> refusals{
        {{"saisie", "999", "01/06/2026", "8h-9h"}, "La ligne 999 n'existe pas."},
        {{"saisie", "-1", "01/06/2026", "8h-9h"}, "La ligne -1 n'existe pas."},
        {{"saisie", "3' OR 1", "01/06/2026", "8h-9h"}, "n'existe pas."},
        {{"saisie", "3", "31/02/2026", "8h-9h"}, "Date illisible : 31/02/2026"},
        {{"saisie", "3", "01/06/2026", "05/13/2026", "8h-9h"}, "Date illisible : 05/13/2026"},
        {{"saisie", "3", "05/06/2026", "01/06/2026", "8h-9h"}, "La date de fin est avant la date de début."},
        {{"saisie", "3", "01/06/2020", "8h-9h"}, "Les dates vont du"},
        {{"saisie", "3", "01/06/2026", "01/06/2098", "8h-9h"}, "Les dates vont du"},
        {{"saisie", "3", "01/06/2026", "huit-neuf"}, "Horaire illisible : huit-neuf"},
        {{"saisie", "3", "01/06/2026", "8h00"}, "Horaire illisible : 8h00"},
        {{"saisie", "3", "01/06/2026", "8h00-24h01"}, anomaly},
        {{"saisie", "3", "01/06/2026", "-8h00-12h00"}, "Horaire illisible"},
        {{"saisie", "3", "01/06/2026", "8h00-8h00"}, anomaly},
        {{"statut", "0", "01/06/2026"}, "La ligne 0 n'existe pas."},
        {{"statut", "1", "hier"}, "Date illisible : hier"},
        {{"mois", "13/2026"}, "Mois illisible : 13/2026"},
        {{"mois", "juin"}, "Mois illisible : juin"},
        {{"mois", "1/2020"}, "Les mois vont du"},
        {{"mois", "6/2026", "--dossier", "%1' \u202E"}, "n'existe pas."},
        {{"mois", QString(10000, QLatin1Char('9'))}, "Mois illisible"},
    };
    const QByteArray before = program.fingerprint();
    for (const auto &[words, reason] : refusals) {
        const Outcome run = program(words);
        EXPECT_EQ(run.status, 1) << words.join(u' ').left(100).toStdString();
        EXPECT_TRUE(run.err.contains(reason)) << run.err.left(200).toStdString();
        EXPECT_EQ(run.errorLines().size(), 1) << run.err.left(200).toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
    EXPECT_EQ(program.fingerprint(), before);
}

TEST_F(Commands, RefuseADateOutsideTheLinesPeriod)
{
    // Line 12 ends within the months of the example.
    const QString last = queryOne(program.base(), "SELECT datefin FROM ligmois WHERE nump = 12");
    const QDate after = QDate::fromString(last, Qt::ISODate).addDays(1);
    const Outcome run = program({"saisie", "12", after.toString("dd/MM/yyyy"), "8h-9h"});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.err.contains(QStringLiteral("La ligne n'est ouverte que du"))) << run.err.toStdString();
}

TEST_F(Commands, FilterTheMonthByFolderAndShowHundredths)
{
    const int members = queryOne(program.base(), "SELECT count(*) FROM groupe JOIN ligmois USING (nump) "
                                                 "WHERE groupe = 'NUIT'")
                            .toInt();
    const Outcome night = program({"mois", "6/2026", "--dossier", "NUIT", "--cellules", "0", "--centiemes"});
    EXPECT_EQ(night.status, 0) << night.err.toStdString();
    EXPECT_EQ(night.lines().size(), 3 + members + 1);
    const QString total = night.lines().last().split(QLatin1Char('\t')).last();
    EXPECT_TRUE(total.contains(QLatin1Char('.')) || total.contains(QLatin1Char(','))) << total.toStdString();
}

TEST_F(Commands, KeepALineBreakOfANameInOneRow)
{
    {
        velmora::store::SqliteEngine engine;
        ASSERT_TRUE(engine.open(program.base(), {}).ok());
        ASSERT_TRUE(engine
                        .execute("UPDATE ligmois SET nom = 'A' || char(10) || 'B' || char(9) || 'C' "
                                 "WHERE nump = 1")
                        .ok());
    }
    ASSERT_EQ(program({"saisie", "1", "02/06/2026", "8h-12h"}).status, 0);
    EXPECT_EQ(program({"mois", "6/2026"}).lines().size(), 3 + 16 + 1);
    EXPECT_EQ(program({"journal"}).lines().size(), 31);
}
