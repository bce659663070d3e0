#include "cli/program.h"

using namespace velmora::test;

namespace
{

struct AbsenceCommands : testing::Test {
    AbsenceCommands()
    {
        program.demo();
        EXPECT_EQ(program({"journal"}).status, 0);
    }
    Program program;

    QString row(const QString &code)
    {
        for (const QString &line : program({"code", "liste"}).lines())
            if (line.startsWith(code + '\t')) return line;
        return {};
    }
};

} // namespace

TEST_F(AbsenceCommands, DefineChangeListAndDeleteCodes)
{
    EXPECT_EQ(program({"code", "liste"}).lines().size(), 8);
    EXPECT_EQ(program({"code", "liste"}).lines().value(0),
              QStringLiteral(" R\tRTT\tRéduction du temps de travail\t420\t-1\t16773811\t6047488\t0\t\t"));
    ASSERT_EQ(program({"code", "ajouter", "x", "Exam"}).status, 0);
    EXPECT_EQ(row(" X"), QStringLiteral(" X\tExam\t\t0\t0\t0\t0\t0\t\t"));
    ASSERT_EQ(program({"code", "ajouter", "DE", "Délég.", "--long", "Délégation", "--valeur", "3h30",
                       "--fond", "0000ff", "--texte", "FFFFFF", "--archive"})
                  .status,
              0);
    EXPECT_EQ(row("DE"), QStringLiteral("DE\tDélég.\tDélégation\t210\t-1\t255\t16777215\t-1\t\t"));
    EXPECT_EQ(program({"code", "liste"}).lines().last(), row("DE")) << "archived codes come last";
    ASSERT_EQ(program({"code", "modifier", "DE", "--jamais", "--sans-couleur", "--actif"}).status, 0);
    EXPECT_EQ(row("DE"), QStringLiteral("DE\tDélég.\tDélégation\t-1\t0\t255\t16777215\t0\t\t"));
    ASSERT_EQ(program({"code", "modifier", "x", "Examen", "--prevus"}).status, 0);
    EXPECT_EQ(row(" X"), QStringLiteral(" X\tExamen\t\t0\t0\t0\t0\t0\t\t"));
    EXPECT_EQ(program({"code", "supprimer", "X"}).status, 1);
    EXPECT_EQ(program({"code", "supprimer", "X", "--oui"}).status, 0);
    EXPECT_EQ(row(" X"), QString());
    const Outcome used = program({"code", "supprimer", "CA", "--oui"});
    EXPECT_EQ(used.status, 1);
    EXPECT_TRUE(used.err.contains(
        QStringLiteral("des absences ont été passées avec ce code! Archivez ce code absence!")));
}

TEST_F(AbsenceCommands, PlaceAnAbsenceThatSplitsAnotherAndUndoIt)
{
    ASSERT_EQ(program({"absence", "3", "01/06/2026", "01/07/2026", "CA"}).status, 0);
    ASSERT_EQ(program({"absence", "3", "08/06/2026", "10/06/2026", "r"}).status, 0);
    const QStringList spans = program({"absences", "3"}).lines();
    EXPECT_EQ(spans.mid(spans.indexOf(QStringLiteral("01/06/2026\t07/06/2026\tCA")), 3),
              (QStringList{"01/06/2026\t07/06/2026\tCA", "08/06/2026\t09/06/2026\tR",
                           "10/06/2026\t30/06/2026\tCA"}));
    EXPECT_EQ(program({"statut", "3", "09/06/2026"}).out.trimmed(),
              QStringLiteral("ABS: R Réduction du temps de travail [7h00]"));
    ASSERT_EQ(program({"annuler", "--oui"}).status, 0);
    EXPECT_TRUE(program({"absences", "3"}).lines().contains(QStringLiteral("01/06/2026\t30/06/2026\tCA")));
    EXPECT_TRUE(program({"journal"}).out.contains(QStringLiteral("absence saisie pour ")));
}

TEST_F(AbsenceCommands, RefuseBadInputWithTheReasonAndChangeNothing)
{
    const QList<std::pair<QStringList, QString>> refusals{
        {{"absence", "999", "01/06/2026", "02/06/2026", "CA"}, "La ligne 999 n'existe pas."},
        {{"absence", "3", "31/02/2026", "02/06/2026", "CA"}, "Date illisible : 31/02/2026"},
        {{"absence", "3", "01/06/2026", "demain", "CA"}, "Date illisible : demain"},
        {{"absence", "3", "01/06/2026", "02/06/2026", "ZZ"}, "code Absence non autorisé ou erroné!"},
        {{"absence", "3", "01/06/2026", "02/06/2026", "CAX"}, "code Absence non autorisé ou erroné!"},
        {{"absence", "3", "01/06/2026", "01/06/2026", "CA"}, "Date fin < date de début !"},
        {{"absence", "3", "01/06/2020", "02/06/2020", "CA"}, "Les dates vont du"},
        {{"absences", "0"}, "La ligne 0 n'existe pas."},
        {{"code", "ajouter", "RS", "Repos"}, "CODE ABSENCE INTERDIT !"},
        {{"code", "ajouter", "ca", "Congé"}, "CODE ABSENCE INTERDIT:  code absence déjà utilisé"},
        {{"code", "ajouter", "R", "RTT"}, "CODE ABSENCE INTERDIT:  code absence déjà utilisé"},
        {{"code", "ajouter", "ABC", "Congé"}, "Un code absence a un ou deux caractères : ABC"},
        {{"code", "ajouter", "AB", ""}, "libellé (court) non saisi"},
        {{"code", "ajouter", "AB", QString(26, 'x')}, "dépasse 25 caractères"},
        {{"code", "ajouter", "AB", "Congé", "--valeur", "0h00"}, "Valeur de la journée: ne peut être zéro !"},
        {{"code", "ajouter", "AB", "Congé", "--fond", "rouge"}, "Couleur illisible : rouge"},
        {{"code", "ajouter", "AB", "Congé", "--fond", "0x12ab"}, "Couleur illisible : 0x12ab"},
        {{"code", "ajouter", "AB", "Congé", "--texte", "-12345"}, "Couleur illisible : -12345"},
        {{"code", "modifier", "ZZ", "Congé"}, "Le code absence ZZ n'existe pas."},
        {{"code", "supprimer", "ZZ", "--oui"}, "Le code absence ZZ n'existe pas."},
    };
    const QByteArray before = program.fingerprint();
    for (const auto &[words, reason] : refusals) {
        const Outcome run = program(words);
        EXPECT_EQ(run.status, 1) << words.join(u' ').toStdString();
        EXPECT_TRUE(run.err.contains(reason)) << run.err.toStdString();
        EXPECT_EQ(run.errorLines().size(), 1) << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
    EXPECT_EQ(program.fingerprint(), before);
    for (const QStringList &words :
         {QStringList{"code", "ajouter", "AB", "Congé", "--valeur", "1h", "--jamais"},
          QStringList{"code", "modifier", "CA", "--archive", "--actif"},
          QStringList{"code", "liste", "--fond", "000000"}, QStringList{"code"}})
        EXPECT_EQ(program(words).status, 2) << words.join(u' ').toStdString();
}
