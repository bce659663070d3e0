#include "cli/program.h"

using namespace velmora::test;

namespace
{

/// The example planning, with known days of line 1 alone in June 2026.
struct Reports : testing::Test {
    Reports()
    {
        program.demo();
        velmora::store::SqliteEngine engine;
        EXPECT_TRUE(engine.open(program.base(), {}).ok());
        for (const char *sql : {"DELETE FROM absences", "DELETE FROM sitper"})
            EXPECT_TRUE(engine.execute(QLatin1String(sql)).ok());
        EXPECT_EQ(program({"saisie", "1", "01/06/2026", "03/06/2026", "8h-12h", "14h-18h"}).status, 0);
        EXPECT_EQ(program({"saisie", "1", "04/06/2026", "22h-6h"}).status, 0);
    }
    Program program;
};

} // namespace

TEST_F(Reports, TheExportWritesBothFilesAndPrintsTheirNames)
{
    const Outcome done = program({"export", "6/2026"});
    EXPECT_EQ(done.status, 0) << done.err.toStdString();
    EXPECT_EQ(done.lines(), QStringList({program.path("Velexc.txt"), program.path("Planning-Velmora.xls")}));
    QFile text(program.path("Velexc.txt"));
    ASSERT_TRUE(text.open(QIODevice::ReadOnly));
    const QByteArray content = text.readAll();
    EXPECT_TRUE(content.contains("PLANNING Du 01/06/2026 au 30/06/2026"));
    EXPECT_TRUE(content.contains("H.D\xe9"
                                 "but\t8,00\t8,00\t8,00\t22,00\t - \t"));
    QFile book(program.path("Planning-Velmora.xls"));
    ASSERT_TRUE(book.open(QIODevice::ReadOnly));
    EXPECT_EQ(book.read(2), "PK");
}

TEST_F(Reports, TheSchedulesAreATableWithTabs)
{
    const Outcome done = program({"horaires", "01/06/2026", "30/06/2026"});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.lines(),
              QStringList({"Début\tFin\tD.Coup.1\tF.Coup.1\tD.Coup.2\tF.Coup.2\tDurée\tNb Occur.",
                           "8h00\t18h00\t12h00\t14h00\t\t\t8h00\t3", "22h00\t6h00\t\t\t\t\t8h00\t1"}));
}

TEST_F(Reports, SayWhyTheyCannotBeMade)
{
    ASSERT_TRUE(QDir(program.folder()).mkdir("Velexc.txt"));
    const QList<std::pair<QStringList, QString>> refusals{
        {{"export", "13/2026"}, "Mois illisible : 13/2026"},
        {{"export", "6/2098"}, "Les mois vont du"},
        {{"export", "6/2026"}, "Velexc.txt ne peut pas être écrit."},
        {{"horaires", "hier", "30/06/2026"}, "Date illisible : hier"},
        {{"horaires", "01/06/2026", "31/06/2026"}, "Date illisible : 31/06/2026"},
        {{"horaires", "02/06/2026", "01/06/2026"}, "La date de fin est avant"},
        {{"horaires", "01/07/2026", "31/07/2026"}, "planning non généré"},
    };
    for (const auto &[words, reason] : refusals) {
        const Outcome refused = program(words);
        EXPECT_EQ(refused.status, 1) << words.join(u' ').toStdString();
        EXPECT_TRUE(refused.err.contains(reason)) << refused.err.toStdString();
        EXPECT_EQ(refused.errorLines().size(), 1) << refused.err.toStdString();
    }
}
