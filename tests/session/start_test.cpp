#include "session/velmoral.h"

#include <QDir>

#include "support/data_folder.h"
#include "support/raw_sqlite.h"
#include "support/scripted_host.h"

#include <QCoreApplication>

namespace velmora::test
{
namespace
{

using Demarrage = Velmoral::Demarrage;

TEST(DateWindowTest, RunsFromJanuaryToDecemberOfTheYearsAYearAway)
{
    struct Case {
        QDate today;
        int first;
        int last;
    };
    const Case cases[] = {
        {{2027, 1, 1}, 2026, 2028},   {{2027, 12, 31}, 2026, 2028}, {{2024, 12, 31}, 2024, 2025},
        {{2024, 12, 30}, 2023, 2025}, {{2024, 2, 29}, 2023, 2025},  {{2023, 1, 1}, 2022, 2024},
        {{2024, 1, 1}, 2023, 2024},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(datemin(one.today), QDate(one.first, 1, 1)) << one.today.toString().toStdString();
        EXPECT_EQ(datemax(one.today), QDate(one.last, 12, 31)) << one.today.toString().toStdString();
    }
}

TEST(FolderTest, IsKeptWholeAndSeparated)
{
    const QString here = QDir::currentPath() + QLatin1Char('/');
    EXPECT_EQ(dossierAbsolu(QStringLiteral("./a/../b")), here + QStringLiteral("b/"));
    EXPECT_EQ(dossierAbsolu(QStringLiteral(".")), here);
    EXPECT_EQ(dossierAbsolu(QString()), QString());
}

TEST(LoginTest, MesIsTheNumberThatItsTextBeginsWith)
{
    const std::pair<QString, int> cases[] = {
        {QString(), 2},
        {QStringLiteral("3x"), 3},
        {QStringLiteral("-4"), -4},
        {QStringLiteral("+5"), 5},
        {QStringLiteral(" 6.9 "), 6},
        {QStringLiteral(""), 0},
        {QStringLiteral("x3"), 0},
        {QStringLiteral("70000"), 4464},
        {QStringLiteral("1e2x"), 100},
        {QStringLiteral("-.5"), 0},
        {QStringLiteral("2e"), 2},
        {QString(400, u'9'), 0},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(valeurMes(text), expected) << text.toStdString();
}

/// A component on a folder with two users, whose main window only counts its showings.
class StartTest : public testing::Test
{
protected:
    DataFolder folder;
    ScriptedHost host{QDate(2027, 1, 1)};
    int shown = 0;

    StartTest()
    {
        RawSqlite(folder.mainFile())
            .run(QStringLiteral("INSERT INTO agent (pseudo, nom, droit, mes) VALUES "
                                "('PAUL', 'Paul Roux', 1, '7'), ('MARIE', 'Marie Brun', 70000, NULL)"));
    }
    Velmoral component(Demarrage demarrage = Demarrage::ParLanceur)
    {
        return {host, demarrage, [this](Session &) { ++shown; }};
    }
};

TEST_F(StartTest, ReadsTheUserAndStaysOnTheUsersRow)
{
    Velmoral velmoral = component();
    velmoral.session().totcent = true;
    velmoral.session().dossiervue = QStringLiteral("ATELIER");
    velmoral.ini(QStringLiteral("MARIE"), folder.path(), folder.path());
    const Session &session = velmoral.session();
    EXPECT_TRUE(velmoral.demarree());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(session.nomUtilisateur, QStringLiteral("Marie Brun"));
    EXPECT_EQ(session.droitUtilisateur, 4464);
    EXPECT_EQ(session.mesUtilisateur, 2);
    EXPECT_EQ(session.base.agent.row().pseudo, QStringLiteral("MARIE"));
    EXPECT_FALSE(session.totcent);
    EXPECT_EQ(session.modecellule, 1);
    EXPECT_TRUE(session.dossiervue.isEmpty());
    EXPECT_NE(session.foncgen, nullptr);
    EXPECT_EQ(session.datemax, QDate(2028, 12, 31));
}

TEST_F(StartTest, RefusesAnUnknownUserAndOpensNothing)
{
    for (const char *pseudo : {"marie", "MARIE ", "", "qzx", "JEAN"}) {
        Velmoral velmoral = component();
        host.expectMessage(QStringLiteral("Mot de passe non accepté :"));
        velmoral.ini(QString::fromLatin1(pseudo), folder.path(), folder.path());
        EXPECT_FALSE(velmoral.demarree());
    }
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(host.titles.count(QStringLiteral("velmora")), 5);
}

TEST_F(StartTest, AcceptsTheBuiltInUserOnTheFirstRowWithoutReadingIt)
{
    Velmoral velmoral = component();
    velmoral.ini(pseudoIntegre, folder.path(), folder.path());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(velmoral.session().base.agent.row().pseudo, QStringLiteral("PAUL"));
    EXPECT_TRUE(velmoral.session().nomUtilisateur.isEmpty());
    EXPECT_EQ(velmoral.session().mesUtilisateur, 0);
}

TEST_F(StartTest, FoldersMayLackTheirTrailingSeparator)
{
    Velmoral velmoral = component();
    const QString bare = folder.path().chopped(1);
    velmoral.ini(QStringLiteral("PAUL"), bare, bare);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(velmoral.session().cheminjournal, folder.path());
    EXPECT_EQ(velmoral.session().cheminbase, folder.path());
}

TEST_F(StartTest, AloneTheBuiltInUserAndFolderReplaceWhatWasGiven)
{
    const QByteArray former = qgetenv("XDG_DATA_HOME");
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    const QString builtIn = home.path() + QStringLiteral("/velmora/");
    Velmoral velmoral = component(Demarrage::Seul);
    host.expectMessage(sansJournal(builtIn));
    EXPECT_THROW(velmoral.ini(QStringLiteral("PAUL"), folder.path(), folder.path()), ProcessEnded);
    EXPECT_EQ(velmoral.session().pseudo, QStringLiteral("QZX"));
    EXPECT_EQ(velmoral.session().cheminjournal, builtIn);
    EXPECT_EQ(velmoral.session().cheminbase, builtIn);
    former.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", former);
}

TEST_F(StartTest, WithBothFilesMissingOnlyTheJournalIsNamed)
{
    QFile::remove(folder.mainFile());
    QFile::remove(folder.journalFile());
    host.expectMessage(sansJournal(folder.path()));
    Velmoral velmoral = component();
    EXPECT_THROW(velmoral.ini(QStringLiteral("PAUL"), folder.path(), folder.path()), ProcessEnded);
}

TEST_F(StartTest, EndsWithoutAWordOnAMainFileThatIsNoBase)
{
    const QByteArray contents[] = {{}, "du texte, pas une base\n", QByteArray(8192, '\x5a')};
    for (const QByteArray &content : contents) {
        replaceContent(folder.mainFile(), content);
        const QByteArray before = digest(folder.mainFile());
        EXPECT_THROW(component().ini(QStringLiteral("PAUL"), folder.path(), folder.path()), ProcessEnded);
        EXPECT_EQ(digest(folder.mainFile()), before);
    }
    EXPECT_TRUE(host.titles.isEmpty());
}

TEST_F(StartTest, EndsWhenAnyTableOfTheMainFileIsMissing)
{
    for (const store::Schema *schema : store::MainDatabase::schemas()) {
        const DataFolder other;
        RawSqlite(other.mainFile()).run(QStringLiteral("DROP TABLE ") + schema->table);
        const QByteArray before = digest(other.mainFile());
        EXPECT_THROW(component().ini(pseudoIntegre, other.path(), other.path()), ProcessEnded)
            << schema->table.toStdString();
        EXPECT_EQ(digest(other.mainFile()), before);
    }
}

TEST_F(StartTest, InertCallsOfTheLauncherKeepFailingAndAnswering)
{
    const Velmoral velmoral = component();
    EXPECT_FALSE(velmoral.charg().ok());
    EXPECT_FALSE(velmoral.decharg().ok());
    EXPECT_EQ(velmoral.exam(), 0);
    EXPECT_EQ(velmoral.test(), -1);
}

} // namespace
} // namespace velmora::test
