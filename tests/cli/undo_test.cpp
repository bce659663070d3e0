#include "cli/program.h"

using namespace velmora::test;

namespace
{

const QString rows = QStringLiteral("SELECT group_concat(dat || heurdeb || '-' || heurfin) FROM sitper "
                                    "WHERE nump = 3 AND dat BETWEEN '2026-06-01' AND '2026-06-05'");

} // namespace

TEST(UndoCommands, TakeBackAndPutBackAnEntryAcrossRuns)
{
    const Program program;
    program.demo();
    const QString before = queryOne(program.base(), rows);
    ASSERT_EQ(program({"saisie", "3", "01/06/2026", "05/06/2026", "4h00-5h00"}).status, 0);
    const QString entered = queryOne(program.base(), rows);
    ASSERT_NE(before, entered);
    const QString name = queryOne(program.base(), "SELECT nom FROM ligmois WHERE nump = 3");
    const QString entry = QStringLiteral("nouvel horaire: ") + name + QStringLiteral(" du 01 au 05/06/2026");

    struct Run {
        QStringList words;
        int status;
        QString said;
        QString rowsAfter;
    };
    const QString undo = QStringLiteral("invalider : ") + entry;
    const QString redo = QStringLiteral("revalider ") + entry;
    for (const Run &run : {
             Run{{"refaire", "--oui"}, 1, "Il n'y a aucune opération à refaire.", entered},
             Run{{"annuler"}, 1, undo, entered},
             Run{{"annuler", "--non"}, 1, undo, entered},
             Run{{"annuler", "--oui"}, 0, undo, before},
             Run{{"annuler", "--oui"}, 1, "Il n'y a aucune opération à annuler.", before},
             Run{{"refaire", "--non"}, 1, redo, before},
             Run{{"refaire", "--oui"}, 0, redo, entered},
         }) {
        const Outcome outcome = program(run.words);
        EXPECT_EQ(outcome.status, run.status) << run.words.join(u' ').toStdString();
        EXPECT_EQ(outcome.errorLines(), QStringList{run.said});
        EXPECT_TRUE(outcome.out.isEmpty());
        EXPECT_EQ(queryOne(program.base(), rows), run.rowsAfter) << run.words.join(u' ').toStdString();
    }
}
