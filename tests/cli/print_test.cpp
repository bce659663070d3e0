#include "cli/program.h"
#include "support/pdf.h"

using namespace velmora::test;

TEST(PrintCommands, WriteTheirPdfWithoutADisplayAndChangeNothing)
{
    const Program program;
    program.demo();
    // The first session of all writes the tie of the journal to its base.
    ASSERT_EQ(program({"mois", "6/2026"}).status, 0);
    const QByteArray before = program.fingerprint();
    const QTemporaryDir folder;
    const QString name = queryOne(program.base(), "SELECT nom FROM ligmois WHERE nump = 1");
    const QString team = queryOne(program.base(), "SELECT groupe FROM groupe WHERE nump > 0");
    const struct {
        QStringList words;
        QString title;
        QString then;
    } prints[]{
        {{"ligne", "1", "01/06/2026", "30/06/2026"}, "PLANNING DU 01/06/2026 AU 30/06/2026", name},
        {{"ensemble", "01/06/2026", "30/06/2026"}, "PLANNING DU 01/06/2026 AU 30/06/2026", ""},
        {{"ensemble", "01/06/2026", "30/06/2026", "--dossier", team},
         "PLANNING DU 01/06/2026 AU 30/06/2026",
         ""},
        {{"semaine", "08/06/2026", "--valorisees", "--couleur", "--dossier", team},
         "Planning hebdomadaire",
         "Dossier : " + team},
        {{"codes"}, "Codes absence", ""},
        {{"horaires", "01/06/2026", "30/06/2026"},
         "Horaires Pratiqués du 01/06/2026 au 30/06/2026",
         "Début Fin D.Coup.1 F.Coup.1 D.Coup.2 F.Coup.2 Durée Nb Occur."},
    };
    for (const auto &[words, title, then] : prints) {
        const QString file = folder.filePath(words.join('_').replace('/', '-') + " é.pdf");
        const Outcome run = program(QStringList{"imprimer"} + words + QStringList{"--pdf", file});
        EXPECT_EQ(run.status, 0) << run.err.toStdString();
        EXPECT_EQ((run.out + run.err).toStdString(), "");
        const QStringList lines = PdfFile(file).lines();
        // The demo has a parameter set, but no dialog has taken its name into the session: none is printed.
        EXPECT_TRUE(lines.value(0).trimmed().startsWith("[imprimé le 15/06/2026 à 8h00] Page : 1"))
            << lines.value(0).toStdString();
        EXPECT_EQ(lines.value(1), title);
        if (!then.isEmpty()) {
            EXPECT_EQ(lines.value(2), then);
        }
    }
    EXPECT_EQ(program.fingerprint(), before);
}

TEST(PrintCommands, RefuseWhatCannotBePrintedAndWriteNoFile)
{
    const Program program;
    program.demo();
    const QTemporaryDir folder;
    const QString file = folder.filePath("print.pdf");
    const struct {
        QStringList words;
        const char *reason;
    } refused[]{
        {{"ligne", "999", "01/06/2026", "30/06/2026"}, "La ligne 999 n'existe pas."},
        {{"ligne", "1", "31/06/2026", "30/06/2026"}, "Date illisible : 31/06/2026"},
        {{"ligne", "1", "30/06/2026", "01/06/2026"}, "La date de fin est avant la date de début."},
        {{"ensemble", "01/06/1999", "30/06/1999"}, "Les dates vont du"},
        {{"ensemble", "01/06/2026", "30/06/2026", "--dossier", "ABSENT"},
         "Le dossier « ABSENT » n'existe pas."},
        {{"semaine", "8/6"}, "Date illisible : 8/6"},
        {{"horaires", "01/06/2026", "8/6"}, "Date illisible : 8/6"},
        {{"horaires", "01/12/2027", "31/12/2027"}, "planning non généré"},
        {{"semaine", "08/06/2026", "--dossier", "ABSENT"}, "Le dossier « ABSENT » n'existe pas."},
    };
    for (const auto &[words, reason] : refused) {
        const Outcome run = program(QStringList{"imprimer"} + words + QStringList{"--pdf", file});
        EXPECT_EQ(run.status, 1) << words.join(' ').toStdString();
        EXPECT_TRUE(run.err.startsWith(reason)) << run.err.toStdString();
        EXPECT_FALSE(QFile::exists(file));
    }
    const Outcome unwritable = program({"imprimer", "codes", "--pdf", folder.filePath("absent/print.pdf")});
    EXPECT_EQ(unwritable.status, 1);
    EXPECT_TRUE(unwritable.err.contains("ne peut pas être écrit")) << unwritable.err.toStdString();
    EXPECT_EQ(program({"imprimer", "codes"}).status, 2);
    EXPECT_EQ(program({"imprimer", "semaine", "--pdf", file}).status, 2);
}
