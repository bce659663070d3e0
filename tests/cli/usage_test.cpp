#include "cli/program.h"

using namespace velmora::test;

TEST(CommandLine, RefusesWrongUsageWithStatus2AndMakesNothing)
{
    const Program program;
    const QList<QStringList> lines{
        {"inconnue"},
        {"init", "mot"},
        {"init", "--inconnue"},
        {"init", "--utilisateur"},
        {"init", "--utilisateur", "SANSNOM"},
        {"init", "--utilisateur", ":Sans pseudo"},
        {"init", "--utilisateur", "A:Un", "--utilisateur", "A:Deux"},
        {"init", "--oui", "--non"},
        {"init", "--base", ""},
        {"init", "--png", "a.png"},
        {"demo", "--lignes", "0"},
        {"demo", "--lignes", "997"},
        {"demo", "--mois", "1.5"},
        {"demo", "--graine", "abc"},
        {"demo", "--oui=1"},
        {"mois"},
        {"mois", "6/2026", "7/2026"},
        {"mois", "6/2026", "--cellules", "3"},
        {"statut", "1"},
        {"saisie", "1", "01/06/2026"},
        {"saisie", "1", "01/06/2026", "8h-9h", "9h-10h", "10h-11h", "11h-12h"},
        {"init", "--aujourdhui", "31/02/2026"},
        {"copier", "1", "01/06/2026", "02/06/2026"},
        {"copier", "1", "01/06/2026", "02/06/2026", "--vers", "2"},
        {"couper", "1", "01/06/2026", "--vers", "2", "10/06/2026"},
        {"supprimer", "1", "01/06/2026", "--vers", "2", "10/06/2026"},
        {"verifie", "velmora.mdb"},
        {"ligne"},
        {"ligne", "nouvelle", "X"},
        {"ligne", "controles", "1", "--semaine", "48h99"},
        {"ligne", "controles", "1", "--repos", "-1h00"},
        {"ligne", "controles", "1", "--quinzaine", "4"},
        {"ligne", "controles", "1", "--pause", "100"},
        {"ligne", "fermer", "1", "01/06/2026", "--6jours"},
    };
    const QByteArray before = program.fingerprint();
    for (const QStringList &words : lines) {
        const QStringList folder{"--journal", program.folder()};
        const Outcome run = program.run(words, folder);
        EXPECT_EQ(run.status, 2) << words.join(u' ').toStdString();
        EXPECT_FALSE(run.err.isEmpty()) << words.join(u' ').toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << words.join(u' ').toStdString();
    }
    EXPECT_EQ(program.fingerprint(), before);
}

TEST(CommandLine, TakesOptionsBeforeAndAfterTheCommand)
{
    const Program program;
    program.demo();
    const QString folder = program.folder();
    const Outcome before = program.run(
        {"--pseudo", "MARIE", "--journal=" + folder, "mois", "6/2026", "--aujourdhui", "15/06/2026"}, {});
    const Outcome after = program({"mois", "6/2026"});
    EXPECT_EQ(before.status, 0) << before.err.toStdString();
    EXPECT_EQ(before.out, after.out);
}

TEST(CommandLine, TellsEveryCommandInTheHelp)
{
    const Program program;
    const Outcome run = program.run({"--aide"}, {});
    EXPECT_EQ(run.status, 0);
    for (const char *command : {"init",
                                "demo",
                                "mois",
                                "statut",
                                "saisie",
                                "copier",
                                "couper",
                                "supprimer",
                                "annuler",
                                "refaire",
                                "journal",
                                "verifie",
                                "ligne nouvelle",
                                "ligne liste",
                                "absence",
                                "absences",
                                "code liste",
                                "code ajouter",
                                "code modifier",
                                "code supprimer",
                                "imprimer ligne",
                                "imprimer ensemble",
                                "imprimer semaine",
                                "imprimer codes",
                                "sauvegarde"})
        EXPECT_TRUE(run.out.contains(QStringLiteral("velmora ") + QLatin1String(command))) << command;
}

TEST(CommandLine, SpeaksUtf8InAnyLocale)
{
    qputenv("LC_ALL", "C");
    const Program program;
    const Outcome run = program.run({"mois", "été"}, {"--journal", program.path(QStringLiteral("été"))});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errorLines().size(), 1) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(QStringLiteral("/été/"))) << run.err.toStdString();
}
