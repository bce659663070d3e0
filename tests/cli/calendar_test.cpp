#include "cli/program.h"

#include <gmock/gmock.h>

using namespace velmora::test;

namespace
{

/// One run of the program and what it must give.
struct Run {
    QStringList words;
    int status;
    QStringList out;
    QStringList err;
};

void check(const Program &program, const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        const Outcome outcome = program(run.words);
        SCOPED_TRACE(run.words.join(' ').toStdString());
        EXPECT_EQ(outcome.status, run.status);
        EXPECT_EQ(outcome.lines(), run.out);
        EXPECT_EQ(outcome.errorLines().value(0), run.err.value(0));
    }
}

} // namespace

TEST(ParameterCommands, KeepTheSetsAndBeginTheHolidaysAnew)
{
    const Program program;
    ASSERT_EQ(program({"init"}).status, 0);
    const QString none = "Il n'y a pas de jeu de paramètres au 02/01/2026.";
    check(program,
          {
              {{"feries", "generer"}, 1, {}, {"Il n'y a aucun jeu de paramètres."}},
              {{"parametres", "ajouter", "01/01/2026", "6", "Foyer"}, 0, {}, {}},
              {{"parametres", "ajouter", "01/01/2026", "6", "Foyer"},
               1,
               {},
               {"Date incorrecte: jeu de paramères déjà existant au 01/01/2026"}},
              {{"parametres", "ajouter", "32/01/2026", "6", "Foyer"}, 1, {}, {"Date illisible : 32/01/2026"}},
              {{"parametres", "ajouter", "02/01/2026", "10", "Foyer"}, 1, {}, {"La région va de 0 à 9."}},
              {{"parametres", "ajouter", "02/01/2026", "1", "Un nom de vingt-six lettres"},
               1,
               {},
               {"Le texte « Un nom de vingt-six lettres » dépasse 25 caractères."}},
              {{"parametres", "modifier", "02/01/2026", "6", "Foyer"}, 1, {}, {none}},
              {{"parametres", "supprimer", "02/01/2026", "--oui"}, 1, {}, {none}},
              {{"feries", "2026"},
               0,
               {"01/01/2026\tNouvel An\t0", "03/04/2026\tVendredi Saint\t0", "26/12/2026\tSt Etienne\t0"},
               {}},
              {{"parametres", "ajouter", "1/7/2026", "9", "Home"}, 0, {}, {}},
              {{"parametres", "modifier", "01/01/2026", "8", "Maison"}, 0, {}, {}},
              {{"parametres", "liste"}, 0, {"01/01/2026\t8\tMaison", "01/07/2026\t9\tHome"}, {}},
              {{"parametres", "supprimer", "01/01/2026", "--oui"},
               1,
               {},
               {"Le premier jeu de paramètres ne peut pas être supprimé."}},
              {{"parametres", "supprimer", "01/07/2026"},
               1,
               {},
               {"êtes vous sur de voumoir supprimer cet enregistrement ?"}},
              {{"parametres", "supprimer", "01/07/2026", "--oui"},
               0,
               {},
               {"êtes vous sur de voumoir supprimer cet enregistrement ?"}},
              {{"parametres", "liste"}, 0, {"01/01/2026\t8\tMaison"}, {}},
          });
    EXPECT_EQ(query(program.base(), "SELECT lib FROM ferie WHERE datedeb BETWEEN '2026-07' AND '2026-12-01'"),
              (QStringList{"Fête du Canada", "Fête du Travail", "Actions de grâces", "Jour du Souvenir"}))
        << "deleting a set leaves its holidays";
}

TEST(HolidayCommands, ListChangeAndGenerate)
{
    const Program program;
    program.demo();
    const QString question = "confirmer la suppression !";
    check(
        program,
        {
            {{"feries", "ajouter", "14/07/2026", "x"}, 1, {}, {"JOUR FERIE DEJA PREVU"}},
            {{"feries", "ajouter", "31/12/1989", "x"}, 1, {}, {"DATE INCORRECTE"}},
            {{"feries", "ajouter", "01/01/1990", "Ancien"}, 0, {}, {}},
            {{"feries", "ajouter", "13/07/2026", "Pont"}, 0, {}, {}},
            {{"feries", "modifier", "14/07/2026", "14 juillet"}, 0, {}, {}},
            {{"feries", "modifier", "15/07/2026", "x"}, 1, {}, {"Il n'y a pas de jour férié au 15/07/2026."}},
            {{"feries", "supprimer", "13/07/2026", "--non"}, 1, {}, {question}},
            {{"feries", "supprimer", "01/01/1990", "--oui"}, 0, {}, {question}},
            {{"feries", "1990"}, 0, {}, {}},
            {{"feries", "an"}, 2, {}, {"année illisible : an"}},
        });
    const QStringList list = program({"feries"}).lines();
    EXPECT_EQ(list.size(), 23);
    EXPECT_THAT(list, testing::IsSupersetOf({QStringLiteral("13/07/2026\tPont\t1"),
                                             QStringLiteral("14/07/2026\t14 juillet\t0")}));
    const Outcome later = program.run({"feries", "generer", "--aujourdhui", "01/01/2027"},
                                      {"--journal", program.folder(), "--pseudo", "MARIE"});
    EXPECT_EQ(later.status, 0);
    EXPECT_EQ(program({"feries", "2028"}).lines().size(), 11);
    const QStringList month = program({"mois", "7/2026"}).lines();
    EXPECT_TRUE(month.value(2).split('\t').contains("F13")) << month.value(2).toStdString();
    EXPECT_TRUE(month.value(2).split('\t').contains("F14"));
}

TEST(FolderCommands, MakeChangeAndDeleteFolders)
{
    const Program program;
    program.demo();
    const QStringList before = program({"dossier", "liste"}).lines();
    ASSERT_EQ(before.size(), 3);
    const QString empty = " aucune ligne n'est sélectée : continuer ?";
    const QString question = "Supprimer le dossier A B ?";
    check(program,
          {
              {{"dossier", "ajouter", "A B", "3", "99"}, 1, {}, {"La ligne 99 n'existe pas."}},
              {{"dossier", "ajouter", "A B", "3", "1", "3"}, 0, {}, {}},
              {{"dossier", "ajouter", "A B", "3"}, 1, {}, {"dossier déjà défini - changez la désignation !"}},
              {{"dossier", "ajouter", " ", "3"}, 1, {}, {"donner une appellation au dossier !"}},
              {{"dossier", "ajouter", "Seize caractères", "3"},
               1,
               {},
               {"Le texte « Seize caractères » dépasse 15 caractères."}},
              {{"dossier", "liste"}, 0, QStringList{"A B\t1 3"} + before, {}},
              {{"dossier", "modifier", "A B"}, 1, {}, {empty}},
              {{"dossier", "modifier", "A B", "2"}, 0, {}, {}},
              {{"dossier", "modifier", "A C", "2"}, 1, {}, {"Le dossier « A C » n'existe pas."}},
              {{"dossier", "liste"}, 0, QStringList{"A B\t2"} + before, {}},
              {{"dossier", "modifier", "A B", "--oui"}, 0, {}, {empty}},
              {{"dossier", "liste"}, 0, QStringList{"A B\t"} + before, {}},
              {{"dossier", "supprimer", "A B", "--non"}, 1, {}, {question}},
              {{"dossier", "supprimer", "A B", "--oui"}, 0, {}, {question}},
              {{"dossier", "supprimer", "A B", "--oui"}, 1, {}, {"Le dossier « A B » n'existe pas."}},
              {{"dossier", "liste"}, 0, before, {}},
          });
}
