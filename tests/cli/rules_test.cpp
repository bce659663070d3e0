#include "cli/program.h"

using namespace velmora::test;

namespace
{

const QString oneDayTooLong = QStringLiteral("2\tANNE\t17/06/2026\tPb\n");

/// Lines 1 without controls, 2 and 3 with, and one long day of line 2.
struct Controls : testing::Test {
    Controls()
    {
        EXPECT_EQ(program({"init"}).status, 0);
        velmora::store::SqliteEngine engine;
        EXPECT_TRUE(engine.open(program.base(), {}).ok());
        const QString line = QStringLiteral("INSERT INTO ligmois (nump, nom, datedeb, datefin, b6j, maxj) "
                                            "VALUES (%1, '%2', '2020-01-01', '2099-01-01', %3, 480)");
        EXPECT_TRUE(engine.execute(line.arg(1).arg("AAA").arg(0)).ok());
        EXPECT_TRUE(engine.execute(line.arg(2).arg("ANNE").arg(-1)).ok());
        EXPECT_TRUE(engine.execute(line.arg(3).arg("ALAIN").arg(-1)).ok());
        EXPECT_EQ(program({"saisie", "2", "17/06/2026", "8h-17h"}).status, 0);
    }
    Program program;
};

} // namespace

TEST_F(Controls, PrintARowForEachLineThatHasSomeByNameOrAsAsked)
{
    const QString good = QStringLiteral("3\tALAIN\t01/01/1900\tOk\n");
    EXPECT_EQ(program({"controle", "01/06/2026", "29/06/2026"}).out, good + oneDayTooLong);
    EXPECT_EQ(program({"controle", "01/06/2026", "29/06/2026", "2", "1", "3"}).out, oneDayTooLong + good);
}

TEST_F(Controls, PrintTheExactReportBehindTheRow)
{
    const QStringList words{"controle", "01/06/2026", "29/06/2026", "--rapport"};
    EXPECT_EQ(program(words + QStringList{"3"}).lines().size(), 1);
    const Outcome failing = program(words + QStringList{"2"});
    EXPECT_EQ(failing.status, 0);
    EXPECT_EQ(failing.out, oneDayTooLong + "        ANNE\n\n Heures max / jour (8h00) dépassées\n"
                                           " 2026 semaine :  25 => Journées > heures max\n");
}

TEST_F(Controls, RefuseLinesAndDatesThatCannotBeRead)
{
    for (const QStringList &words : {QStringList{"01/06/2026", "hier"},
                                     {"31/06/2026", "29/06/2026"},
                                     {"29/06/2026", "01/06/2026"},
                                     {"01/06/2026", "29/06/2026", "9"},
                                     {"01/06/2026", "29/06/2026", "2", "x"}}) {
        const Outcome refused = program(QStringList{"controle"} + words);
        EXPECT_EQ(refused.status, 1) << words.join(u' ').toStdString();
        EXPECT_EQ(refused.out, QString());
        EXPECT_EQ(refused.errorLines().size(), 1) << refused.err.toStdString();
    }
}
