#include "cli/program.h"

using namespace velmora::test;

namespace
{

const QStringList allLimits{"--semaine", "48h00",   "--jour", "10h00",    "--amplitude",
                            "13h00",     "--repos", "11h00",  "--6jours", "--quinzaine",
                            "4,1",       "--pause", "20"};

QStringList line(const Program &program, const QString &nump)
{
    for (const QString &row : program({"ligne", "liste"}).lines())
        if (row.startsWith(nump + QLatin1Char('\t'))) return row.split(QLatin1Char('\t'));
    return {};
}

} // namespace

TEST(LineCommands, TakeALineFromItsOpeningToItsDeletion)
{
    const Program program;
    program.demo();
    const Outcome opened = program(QStringList{"ligne", "nouvelle", " ZOÉ ", "01/06/2026"} + allLimits);
    EXPECT_EQ(opened.status, 0) << opened.err.toStdString();
    EXPECT_EQ(opened.lines(), QStringList{"17"});
    EXPECT_EQ(line(program, "17").join(u' '),
              "17 ZOÉ 01/06/2026 01/01/2099 -1 2880 600 780 660 -1 -1 4 1 -1 20");
    EXPECT_EQ(program({"ligne", "controles", "17", "--jour", "9h30"}).status, 0);
    EXPECT_EQ(line(program, "17").mid(4).join(u' '), "-1 0 570 0 0 0 0 0 0 0 0") << "what isn't named is off";
    EXPECT_EQ(program({"ligne", "controles", "17"}).status, 0);
    EXPECT_EQ(line(program, "17").mid(4).count("0"), 11);
    EXPECT_EQ(program({"saisie", "17", "10/06/2026", "8h00-12h00"}).status, 0);
    EXPECT_EQ(program({"ligne", "fermer", "17", "08/06/2026"}).status, 1) << "a question without an answer";
    EXPECT_EQ(line(program, "17").value(3), "01/01/2099");
    EXPECT_EQ(program({"ligne", "fermer", "17", "08/06/2026", "--oui"}).status, 0);
    EXPECT_EQ(line(program, "17").value(3), "07/06/2026");
    EXPECT_EQ(program({"ligne", "reouvrir", "17", "--non"}).errorLines(),
              QStringList{"Réouvrir la ligne fermée au07/06/2026 ?"});
    EXPECT_EQ(program({"ligne", "reouvrir", "17", "--oui"}).status, 0);
    EXPECT_EQ(line(program, "17").value(3), "01/01/2099");
    EXPECT_EQ(program({"ligne", "renommer", "17", "ZÉLIE"}).status, 0);
    EXPECT_EQ(line(program, "17").value(1), "ZÉLIE");
    EXPECT_EQ(program({"ligne", "supprimer", "17"}).status, 0);
    EXPECT_TRUE(line(program, "17").isEmpty());
}

TEST(LineCommands, RefuseInTheWordsOfTheWindowAndChangeNothing)
{
    const Program program;
    program.demo();
    ASSERT_EQ(program({"ligne", "fermer", "2", "10/06/2026", "--oui"}).status, 0);
    const QString name = line(program, "2").value(1);
    struct Refusal {
        QStringList words;
        const char *said;
    };
    const QString before = program({"ligne", "liste"}).out;
    for (const Refusal &one : std::initializer_list<Refusal>{
             {{"nouvelle", "X", "31/12/2009"}, "la date semble incorrecte (an<2010) !"},
             {{"nouvelle", "X", "01/01/2051"}, "la date semble incorrecte (an<2050) !"},
             {{"nouvelle", "X", "31/06/2026"}, "31/06/2026"},
             {{"nouvelle", name, "05/06/2026"}, "Nom déjà attribué pour cette période !"},
             {{"nouvelle", "X", "01/06/2026", "--semaine", "50h01"},
              "Valeur maxi semaine anormalement basse! Continuer ?"},
             {{"nouvelle", "X", "01/06/2026", "--quinzaine", "3,2"},
              "Plus de repos contigüs que de repos totaux !"},
             {{"renommer", "1", name}, "Nom déjà attribué pour cette période !"},
             {{"fermer", "2", "01/06/2026"}, "La ligne 2 est déjà fermée."},
             {{"reouvrir", "1"}, "La ligne 1 n'est pas fermée."},
             {{"supprimer", "99"}, "La ligne 99 n'existe pas."},
             {{"controles", "1", "--amplitude", "24h01"}, "Amplitude de travail > 24h / jour !"},
         }) {
        const Outcome run = program(QStringList{"ligne"} + one.words);
        EXPECT_EQ(run.status, 1) << one.words.join(u' ').toStdString();
        EXPECT_TRUE(run.err.contains(QString::fromUtf8(one.said))) << run.err.toStdString();
    }
    EXPECT_EQ(program({"ligne", "liste"}).out, before);
}
