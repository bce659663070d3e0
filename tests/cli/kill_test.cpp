#include "cli/program.h"

#include "support/raw_sqlite.h"

#include <QElapsedTimer>

#include <csignal>
#include <map>
#include <optional>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

using namespace velmora::test;

namespace
{

int setting(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

/// What a killed cut and paste of 31 days from line 1 to line 2 left: counts of rows and of the images of
/// each operation, in their order.
struct Left {
    int source = 0;
    int target = 0;
    QStringList images;

    [[nodiscard]] QString text() const
    {
        return QStringLiteral("rows %1+%2, images %3").arg(source).arg(target).arg(images.join(u'+'));
    }
};

/// A cut and a paste are each there whole or not at all, and no row has changed without its images. The
/// journal is committed first: an operation may be recorded whose rows have not changed, and undoing it is
/// harmless. The first state is that of before.
const QStringList wholeStates{
    QStringLiteral("rows 31+0, images "),      QStringLiteral("rows 31+0, images 31"),
    QStringLiteral("rows 0+0, images 31"),     QStringLiteral("rows 0+0, images 31+31"),
    QStringLiteral("rows 0+31, images 31+31"),
};

const QStringList cutAndPaste{"couper", "1", "01/06/2026", "01/07/2026", "--vers", "2", "01/06/2026"};

/// A command that writes, in one transaction over both files, or that reads.
struct Killed {
    QStringList words;
    bool planningFirst = false; ///< its planning is committed before its journal
    QStringList begun{};        ///< a command that leaves what this one writes before its question
};

const Killed killed[] = {
    {{"saisie", "1", "03/06/2026", "20/06/2026", "7h-15h"}},
    {{"copier", "1", "01/06/2026", "01/07/2026", "--vers", "3", "01/06/2026"}},
    {{"supprimer", "1", "02/06/2026", "25/06/2026", "--oui"},
     false,
     {"supprimer", "1", "02/06/2026", "25/06/2026", "--non"}},
    {{"annuler", "--oui"}, true},
    {{"refaire", "--oui"}},
    {{"absence", "1", "03/06/2026", "20/06/2026", "CA"}},
    {{"ligne", "nouvelle", "LÉA", "01/01/2026"}},
    {{"ligne", "fermer", "1", "05/06/2026", "--oui"}},
    {{"ligne", "supprimer", "1", "--oui"}},
    {{"ligne", "reouvrir", "5", "--oui"}},
    {{"ligne", "renommer", "1", "LÉON"}},
    {{"ligne", "controles", "1", "--jour", "9h00"}},
    {{"dossier", "ajouter", "Nouveau", "1", "2", "3"}},
    {{"dossier", "modifier", "AUTRE", "1", "2"}},
    {{"dossier", "supprimer", "AUTRE", "--oui"}},
    {{"code", "ajouter", "ZZ", "Essai"}},
    {{"code", "modifier", "YY", "Autre"}},
    {{"code", "supprimer", "YY", "--oui"}},
    {{"parametres", "ajouter", "01/09/2026", "3", "Foyer"}},
    {{"parametres", "modifier", "01/07/2026", "2", "Foyer"}},
    {{"parametres", "supprimer", "01/07/2026", "--oui"}},
    {{"feries", "ajouter", "15/07/2026", "Fermeture"}},
    {{"feries", "modifier", "16/07/2026", "Congés"}},
    {{"feries", "supprimer", "16/07/2026", "--oui"}},
    {{"feries", "generer"}},
    {{"sauvegarde", "copies"}},
    {{"mois", "6/2026"}},
    {{"verifie"}},
};

/// What some of them change.
const QStringList prepared[] = {
    {"ligne", "fermer", "5", "05/06/2026", "--oui"},
    {"dossier", "ajouter", "AUTRE", "4"},
    {"code", "ajouter", "YY", "Libre"},
    {"parametres", "ajouter", "01/07/2026", "9", "Annexe"},
    {"feries", "ajouter", "16/07/2026", "Pont"},
    {"saisie", "2", "01/06/2026", "10/06/2026", "6h-13h"},
    {"annuler", "--oui"},
};

class KillTest : public testing::Test
{
protected:
    Program program;
    QByteArray base;
    QByteArray journal;
    QString hours; ///< of the 31 days, as stored

    void SetUp() override
    {
        program.demo();
        {
            RawSqlite file(program.base());
            ASSERT_TRUE(file.run("DELETE FROM sitper"));
            ASSERT_TRUE(file.run("DELETE FROM absences"));
        }
        ASSERT_EQ(program({"saisie", "1", "01/06/2026", "01/07/2026", "8h-12h", "14h-18h"}).status, 0);
        hours = hoursIn(program.base(), "sitper WHERE nump = 1");
        base = content(program.base());
        journal = content(program.journal());
    }

    static QByteArray content(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    static QString hoursIn(const QString &file, const QString &from)
    {
        return RawSqlite(file)
            .rows("SELECT heurdeb, heurfin, hideb, hifin, heurtrav, hdeb1, hfin1, hdeb2, hfin2 FROM " + from)
            .join(u';');
    }
    void restore()
    {
        for (const QString &path : {program.base(), program.journal()})
            QFile::remove(path + QStringLiteral("-journal"));
        writeFile(program.base(), base);
        writeFile(program.journal(), journal);
    }
    /// From where the moment of the kill counts: the program's start, or its first write to the planning.
    enum class From { Start, FirstWrite };

    /// Runs a command and kills it so many microseconds after the start or the first write; nothing
    /// lets it end by itself. Returns the microseconds from there to its end.
    int runKilled(const QStringList &words, From from, std::optional<int> microseconds)
    {
        QProcess process;
        QElapsedTimer length;
        length.start();
        process.setWorkingDirectory(program.folder());
        process.start(QStringLiteral(VELMORA_PROGRAM), words + program.options());
        EXPECT_TRUE(process.waitForStarted());
        const auto pid = static_cast<pid_t>(process.processId());
        if (from == From::FirstWrite) {
            awaitWrite(pid);
            length.start();
        }
        if (microseconds) {
            usleep(static_cast<useconds_t>(*microseconds));
            ::kill(pid, SIGKILL);
        }
        EXPECT_TRUE(process.waitForFinished());
        if (!microseconds) {
            EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        }
        return static_cast<int>(length.nsecsElapsed() / 1000);
    }
    /// Returns as soon as the planning has an unfinished transaction, or the program has ended without one.
    void awaitWrite(pid_t pid) const
    {
        const QByteArray rollback = QFile::encodeName(program.base() + QStringLiteral("-journal"));
        siginfo_t ended{};
        while (access(rollback.constData(), F_OK) != 0 && ended.si_pid != pid)
            waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOHANG | WNOWAIT);
    }
    /// Both files open again by the program and are sound.
    void expectSound()
    {
        const Outcome ring = program({"journal"});
        EXPECT_EQ(ring.status, 0) << ring.err.toStdString();
        EXPECT_TRUE(ring.err.isEmpty()) << ring.err.toStdString();
        const Outcome check = program({"verifie"});
        EXPECT_EQ(check.status, 0) << check.out.toStdString();
        // A copy has its name only once it is complete.
        for (const QString &name : {velmora::store::fichierBase, velmora::store::fichierJournal}) {
            const QString copy = program.path(QStringLiteral("copies/") + name);
            if (!QFile::exists(copy)) continue;
            EXPECT_EQ(RawSqlite(copy).value("PRAGMA integrity_check"), QStringLiteral("ok"));
        }
    }
    Left left()
    {
        RawSqlite rows(program.base());
        RawSqlite log(program.journal());
        return {rows.value("SELECT count(*) FROM sitper WHERE nump = 1").toInt(),
                rows.value("SELECT count(*) FROM sitper WHERE nump = 2").toInt(),
                log.rows("SELECT (SELECT count(*) FROM sitlog WHERE sitlog.numop = logop.numop) FROM logop "
                         "WHERE valop AND libop NOT LIKE 'nouvel%' ORDER BY ordop DESC")};
    }
    static QString contentOf(const QString &file, const QStringList &tables)
    {
        QString text;
        RawSqlite raw(file);
        for (const QString &table : tables)
            text += raw.rows("SELECT * FROM " + table).join(u'\n') + QStringLiteral("\n\n");
        return text;
    }
    [[nodiscard]] QString planning() const
    {
        return contentOf(program.base(),
                         {"sitper", "absences", "ligmois", "groupe", "codabs", "ferie", "parcg"});
    }
    [[nodiscard]] QString ring() const { return contentOf(program.journal(), {"logop", "sitlog", "logabs"}); }
    /// A parameter set is stored before the holidays that follow from it, and storing it again makes them.
    static QString setAlone(const QString &before, const QString &after)
    {
        const QString between = QStringLiteral("\n\n");
        return before.section(between, 0, -3) + between + after.section(between, -2);
    }
    /// The command is there whole or not at all, and no row changed without its images.
    void expectWhole(const Killed &command, const QStringList &before, const QStringList &begun,
                     const QStringList &after)
    {
        const QStringList left{planning(), ring()};
        for (int file = 0; file < 2; ++file)
            EXPECT_TRUE(QStringList({before[file], begun[file], after[file]}).contains(left[file]));
        const int first = command.planningFirst ? 0 : 1;
        if (before[first] != after[first] && left[first] != after[first]) {
            EXPECT_EQ(left[1 - first], before[1 - first]);
        }
    }
    /// Takes back what was recorded: the rows are again as before the cut.
    void expectUndone(const Left &found)
    {
        for (qsizetype i = 0; i < found.images.size(); ++i)
            EXPECT_EQ(program({"annuler", "--oui"}).status, 0) << found.text().toStdString();
        EXPECT_EQ(left().text(), wholeStates.first()) << found.text().toStdString();
        EXPECT_EQ(hoursIn(program.base(), "sitper"), hours);
    }
    /// The rows and the images hold the hours that were there before.
    void expectSameHours(const Left &found)
    {
        if (found.source + found.target > 0) {
            EXPECT_EQ(hoursIn(program.base(), "sitper"), hours);
        }
        for (qsizetype i = 0; i < found.images.size(); ++i) {
            const QString one =
                QStringLiteral("sitlog WHERE numop = (SELECT numop FROM logop WHERE valop AND "
                               "ordop = %1) ORDER BY dat")
                    .arg(found.images.size() - i);
            EXPECT_EQ(hoursIn(program.journal(), one), hours);
        }
    }
};

} // namespace

// VELMORA_KILLS sets how many times, VELMORA_SEED the moments.
TEST_F(KillTest, LeavesEachOperationWholeOrNotThereAtAll)
{
    std::map<From, int> length;
    for (const From from : {From::Start, From::FirstWrite}) {
        restore();
        length[from] = runKilled(cutAndPaste, from, {});
        ASSERT_EQ(left().text(), wholeStates.last());
    }
    std::mt19937 random(static_cast<unsigned>(setting("VELMORA_SEED", 1)));
    std::map<QString, int> seen;
    const int kills = setting("VELMORA_KILLS", 30);
    for (int i = 0; i < kills && !HasFailure(); ++i) {
        restore();
        const From from = i % 2 == 0 ? From::Start : From::FirstWrite;
        runKilled(cutAndPaste, from, std::uniform_int_distribution<int>(0, length[from])(random));
        expectSound();
        const Left found = left();
        EXPECT_TRUE(wholeStates.contains(found.text())) << found.text().toStdString();
        expectSameHours(found);
        expectUndone(found);
        ++seen[found.text()];
    }
    for (const auto &[state, times] : seen)
        std::printf("%4d  %s\n", times, qPrintable(state));
}

// VELMORA_KILLS sets how many times in all, VELMORA_SEED the moments.
TEST_F(KillTest, LeavesEveryCommandWholeOrNotThereAtAll)
{
    for (const QStringList &words : prepared)
        ASSERT_EQ(program(words).status, 0) << words.join(u' ').toStdString();
    ASSERT_TRUE(QDir(program.folder()).mkdir("copies"));
    base = content(program.base());
    journal = content(program.journal());
    const QStringList before{planning(), ring()};
    std::mt19937 random(static_cast<unsigned>(setting("VELMORA_SEED", 1)));
    const int times = std::max(1, setting("VELMORA_KILLS", 60) / static_cast<int>(std::size(killed)));
    for (const Killed &command : killed) {
        SCOPED_TRACE(command.words.join(u' ').toStdString());
        restore();
        const int length = runKilled(command.words, From::Start, {});
        const QStringList after{planning(), ring()};
        restore();
        if (!command.begun.isEmpty()) program(command.begun);
        const QStringList begun{setAlone(before[0], after[0]), ring()};
        for (int i = 0; i < times && !HasFailure(); ++i) {
            restore();
            const From from = i % 2 == 0 ? From::FirstWrite : From::Start;
            const int latest = from == From::Start ? length : length / 2;
            runKilled(command.words, from, std::uniform_int_distribution<int>(0, latest)(random));
            expectSound();
            expectWhole(command, before, begun, after);
        }
    }
}

TEST_F(KillTest, LeavesAnInstallationThatCanBeFinished)
{
    std::mt19937 random(static_cast<unsigned>(setting("VELMORA_SEED", 1)));
    const int times = setting("VELMORA_KILLS", 30) / 5;
    const auto empty = [this] {
        QDir folder(program.folder());
        folder.removeRecursively();
        folder.mkpath(QStringLiteral("."));
    };
    for (int i = 0; i < times && !HasFailure(); ++i) {
        const QStringList words{i % 2 == 0 ? "init" : "demo"};
        empty();
        const int length = runKilled(words, From::Start, {});
        empty();
        runKilled(words, From::Start, std::uniform_int_distribution<int>(0, length)(random));
        const bool complete = QFile::exists(program.base()) && QFile::exists(program.journal());
        EXPECT_EQ(program({"init"}).status, complete ? 1 : 0);
        expectSound();
    }
}
