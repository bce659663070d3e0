#include "cli/program.h"

using namespace velmora::test;

namespace
{

/// The example planning with known days of lines 1 and 3 in June 2026.
struct Days : testing::Test {
    Days()
    {
        program.demo();
        run("DELETE FROM absences");
        run("DELETE FROM sitper");
        EXPECT_EQ(program({"saisie", "1", "01/06/2026", "03/06/2026", "8h-12h"}).status, 0);
        EXPECT_EQ(program({"saisie", "3", "10/06/2026", "14/06/2026", "9h-10h"}).status, 0);
    }
    void run(const QString &sql) const
    {
        velmora::store::SqliteEngine engine;
        ASSERT_TRUE(engine.open(program.base(), {}).ok());
        ASSERT_TRUE(engine.execute(sql).ok());
    }
    /// Line, day of June and hour of each row.
    [[nodiscard]] std::string stored() const
    {
        return query(program.base(),
                     "SELECT nump || ':' || substr(dat, 9) || '=' || (heurdeb / 60) FROM sitper "
                     "ORDER BY nump, dat")
            .join(u' ')
            .toStdString();
    }
    [[nodiscard]] QStringList wordings() const
    {
        return query(program.journal(), "SELECT trim(libop) FROM logop WHERE valop ORDER BY ordop DESC");
    }
    Program program;
};

constexpr const char *before = "1:01=8 1:02=8 1:03=8 3:10=9 3:11=9 3:12=9 3:13=9 3:14=9";

} // namespace

TEST_F(Days, AreCopiedAndEmptyOnesEmptyTheirDate)
{
    ASSERT_EQ(program({"copier", "1", "02/06/2026", "04/06/2026", "--vers", "3", "11/06/2026"}).status, 0);
    EXPECT_EQ(stored(), "1:01=8 1:02=8 1:03=8 3:10=9 3:11=8 3:12=8 3:14=9");
}

TEST_F(Days, AreCutAndPastedAsTwoOperationsWhereverTheOptionStands)
{
    ASSERT_EQ(program({"couper", "--vers=1", "05/06/2026", "1", "02/06/2026", "03/06/2026"}).status, 0);
    EXPECT_EQ(stored(), "1:01=8 1:05=8 1:06=8 3:10=9 3:11=9 3:12=9 3:13=9 3:14=9");
    const QStringList last = wordings().mid(2);
    ASSERT_EQ(last.size(), 2);
    EXPECT_TRUE(last[0].startsWith(QStringLiteral("coupé: "))) << last[0].toStdString();
    EXPECT_TRUE(last[1].startsWith(QStringLiteral("- collé: horaires pour "))) << last[1].toStdString();
}

TEST_F(Days, AreDeletedOnlyAfterAYes)
{
    const QString question = QStringLiteral("Suppression horaire(s) ?");
    const Outcome no = program({"supprimer", "3", "11/06/2026", "13/06/2026", "--non"});
    EXPECT_EQ(no.status, 1);
    EXPECT_EQ(no.err.trimmed(), question);
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(wordings().size(), 3);
    EXPECT_EQ(program({"supprimer", "3", "11/06/2026", "13/06/2026", "--oui"}).status, 0);
    EXPECT_EQ(program({"supprimer", "1", "01/06/2026", "--oui"}).status, 0);
    EXPECT_EQ(stored(), "1:02=8 1:03=8 3:10=9 3:14=9");
}

TEST_F(Days, AreLeftAloneByARefusalWithItsReason)
{
    run("INSERT INTO absences (nump, numi, codabs, datedeb, datefin) "
        "VALUES (3, 0, 'CP', '2026-06-20', '2026-06-21')");
    run("UPDATE ligmois SET datefin = '2026-06-25' WHERE nump = 3");
    const QList<std::pair<QStringList, QString>> refusals{
        {{"copier", "999", "01/06/2026", "02/06/2026", "--vers", "3", "10/06/2026"}, "La ligne 999"},
        {{"copier", "1", "01/06/2026", "02/06/2026", "--vers", "x", "10/06/2026"}, "La ligne x"},
        {{"copier", "1", "01/06/2026", "hier", "--vers", "3", "10/06/2026"}, "Date illisible : hier"},
        {{"couper", "1", "01/06/2026", "02/06/2026", "--vers", "3", "31/06/2026"}, "Date illisible : 31/06"},
        {{"couper", "1", "02/06/2026", "01/06/2026", "--vers", "3", "10/06/2026"},
         "La date de fin est avant"},
        {{"couper", "1", "01/06/2026", "01/06/2098", "--vers", "3", "10/06/2026"}, "Les dates vont du"},
        {{"couper", "1", "01/06/2026", "02/06/2026", "--vers", "3", "26/06/2026"}, "n'est ouverte que du"},
        {{"couper", "1", "01/06/2026", "02/06/2026", "--vers", "3", "20/06/2026"},
         "La ligne 3 est absente le 20/06/2026."},
        {{"couper", "3", "21/06/2026", "22/06/2026", "--vers", "1", "10/06/2026"}, "La ligne 3 est absente"},
        {{"couper", "1", "04/06/2026", "09/06/2026", "--vers", "3", "10/06/2026"},
         "Attention: pas d'horaire pour la sélection"},
        {{"supprimer", "1", "04/06/2026", "--oui"}, "Il n'y a ni absence ni horaire à supprimer."},
        {{"supprimer", "3", "26/06/2026", "--oui"}, "n'est ouverte que du"},
    };
    for (const auto &[words, reason] : refusals) {
        const Outcome refused = program(words);
        EXPECT_EQ(refused.status, 1) << words.join(u' ').toStdString();
        EXPECT_TRUE(refused.err.contains(reason)) << refused.err.toStdString();
        EXPECT_EQ(refused.errorLines().size(), 1) << refused.err.toStdString();
    }
    EXPECT_EQ(stored(), before);
    EXPECT_EQ(wordings().size(), 2);
}
