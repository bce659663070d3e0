#include "cli/program.h"
#include "cli/start.h"

using namespace velmora;
using namespace velmora::test;

namespace
{

struct Fault {
    const char *name;
    std::function<void(const Program &)> make;
    QString words; ///< part of what is said; the rest is the folder's name
};

QByteArray damaged(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray content = file.readAll();
    return content.replace(0, 100, QByteArray(100, 'x'));
}

void makeForeign(const Program &program)
{
    QFile::remove(program.base());
    store::SqliteEngine engine;
    ASSERT_TRUE(engine.open(program.base(), {.create = true}).ok());
    ASSERT_TRUE(engine.execute(QStringLiteral("CREATE TABLE autre (x)")).ok());
}

void mark(const Program &program)
{
    store::SqliteEngine engine;
    ASSERT_TRUE(engine.open(program.base(), {}).ok());
    ASSERT_TRUE(engine.execute(QStringLiteral("PRAGMA application_id = 7")).ok());
}

const QList<Fault> &faults()
{
    static const QList<Fault> all{
        {"journal gone", [](const Program &p) { QFile::remove(p.journal()); },
         QStringLiteral("velmoralog.mdb non retrouvée ! relancer Velmora")},
        {"base gone", [](const Program &p) { QFile::remove(p.base()); },
         QStringLiteral("velmora.mdb n'est pas retouvée, relancer Velmora")},
        {"base damaged", [](const Program &p) { writeFile(p.base(), damaged(p.base())); },
         QStringLiteral("n'est pas une base de données de Velmora")},
        {"base empty", [](const Program &p) { writeFile(p.base(), {}); },
         QStringLiteral("n'est pas une base de données de Velmora")},
        {"base marked by another program", mark, QStringLiteral("n'est pas une base de données de Velmora")},
        {"base foreign", makeForeign, QStringLiteral("n'est pas une base de données de Velmora")},
    };
    return all;
}

} // namespace

TEST(CommandStart, TellsWhyNothingOpensAndChangesNothing)
{
    for (const Fault &fault : faults()) {
        const Program program;
        ASSERT_EQ(program({"init"}).status, 0);
        ASSERT_EQ(program({"journal"}).status, 0);
        fault.make(program);
        const QByteArray before = program.fingerprint();
        const Outcome run = program({"mois", "6/2026"});
        EXPECT_EQ(run.status, 1) << fault.name;
        EXPECT_TRUE(run.out.isEmpty()) << fault.name;
        EXPECT_EQ(run.errorLines().size(), 1) << fault.name << run.err.toStdString();
        EXPECT_TRUE(run.err.contains(fault.words)) << fault.name << run.err.toStdString();
        EXPECT_EQ(program.fingerprint(), before) << fault.name;
    }
}

TEST(CommandStart, NamesTheOtherWorkstationThatHoldsTheBase)
{
    const Program program;
    ASSERT_EQ(program({"init"}).status, 0);
    cli::CliHost host({}, {});
    Session session(host);
    session.cheminjournal = program.folder() + QLatin1Char('/');
    session.echecBase = {store::Status::Code::Busy, {}};
    EXPECT_EQ(cli::causeArret(session),
              QStringLiteral("Le fichier %1 est tenu par un autre poste.").arg(program.base()));
}

TEST(CommandStart, RefusesAUserWhoseCaseDiffers)
{
    const Program program;
    ASSERT_EQ(program({"init", "--utilisateur", "Marie:Marie"}).status, 0);
    const Outcome run = program({"journal"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.trimmed(), QStringLiteral("Mot de passe non accepté :"));
}
