#include "cli/program.h"

using namespace velmora::test;

namespace
{

/// Texts that a user, or another program, might give where a name is asked.
const QStringList hostile{
    QStringLiteral("L'été \"d'Anne\""),
    QStringLiteral("'); DROP TABLE ligmois; --"),
    QStringLiteral("%1 %2 %n %s 100%"),
    QStringLiteral("a\tb\nc\r\u001b[31md\u007f"),
    QStringLiteral("\u202Eécrit à l'envers\u202C\u200F"),
    QStringLiteral("e\u0301\u200D👩‍🔧\uFEFF"),
    QStringLiteral("   "),
    QStringLiteral("-x --oui"),
    QStringLiteral("*?[a-z]\\%_"),
    QStringLiteral("x").repeated(10000),
};

} // namespace

TEST(HostileInput, IsStoredAsItIsTypedOrRefusedAndNeverBreaksARow)
{
    const Program program;
    program.demo();
    const auto base = [&](const QString &sql) { return queryOne(program.base(), sql); };
    for (const QString &text : hostile) {
        SCOPED_TRACE(text.left(40).toStdString());
        const QList<QStringList> commands{
            {"ligne", "nouvelle", text, "01/01/2026"},
            {"ligne", "renommer", "2", text},
            {"dossier", "ajouter", text, "1"},
            {"code", "ajouter", text, text},
            {"code", "ajouter", "QZ", text},
            {"code", "supprimer", "QZ"},
            {"absence", "1", "01/06/2026", text, "CP"},
            {"absence", "1", "01/06/2026", "02/06/2026", text},
            {"saisie", "1", text, "8h-9h"},
            {"saisie", "2", "02/06/2026", text},
            {"saisie", "2", "02/06/2026", "8h-9h"},
            {"supprimer", text, text},
            {"feries", "ajouter", "16/07/2026", text},
            {"feries", "supprimer", "16/07/2026"},
            {"parametres", "ajouter", "01/02/2025", "0", text},
            {"parametres", "supprimer", "01/02/2025"},
            {"mois", text},
            {"mois", "6/2026", "--dossier=" + text},
            {"annuler"},
            {text},
        };
        for (QStringList words : commands) {
            // Words after "--" are no options.
            const bool question = words.first() != QStringLiteral("annuler");
            words = (question ? QStringList{"--oui"} : QStringList{"--non"}) + program.options() +
                    (words.last().startsWith(u"--dossier") ? words : QStringList{"--"} + words);
            const Outcome run = program.run(words, {});
            EXPECT_TRUE(run.status >= 0 && run.status <= 2) << words.join(u' ').left(80).toStdString();
            EXPECT_TRUE(run.status == 0 || !run.err.isEmpty()) << words.join(u' ').left(200).toStdString();
        }
        program.run({"mois", "6/2026"}, {"--journal", program.folder(), "--pseudo", text});
    }
    EXPECT_EQ(program({"verifie"}).status, 0) << program({"verifie"}).out.toStdString();
    const QString lines = base("SELECT count(*) FROM ligmois");
    EXPECT_GT(lines.toInt(), 16);
    EXPECT_EQ(QString::number(program({"ligne", "liste"}).lines().size()), lines);
    EXPECT_EQ(QString::number(program({"dossier", "liste"}).lines().size()),
              base("SELECT count(*) FROM groupe WHERE nump = 0"));
    EXPECT_EQ(base("SELECT count(*) FROM ligmois WHERE nom LIKE '%DROP TABLE%'").toInt() +
                  base("SELECT count(*) FROM ligmois WHERE nom LIKE '%\"d''Anne\"%'").toInt(),
              1);
    EXPECT_EQ(program({"journal"}).lines().size(), 31);
}
