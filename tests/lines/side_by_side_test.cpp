#include "lines/lifecycle.h"

#include "support/data_folder.h"
#include "support/other_process.h"
#include "support/raw_sqlite.h"
#include "support/scripted_host.h"

#include <QFile>

namespace velmora::test
{
namespace
{

/// A user who tries again for long and reads nothing: a name that the other one has is passed over.
class PatientHost : public ScriptedHost
{
public:
    void message(const QString &, const QString &) override {}
    bool question(const QString &, const QString &) override { return true; }
    bool retry(const QString &, const QString &, int attempt) override { return attempt < 20; }
};

/// Opens lines on a workstation: each round one under a name of its own and one under a name that the other
/// workstation wants too. Returns 0 when no own name was refused.
int openLines(const DataFolder &folder, QLatin1Char station, int rounds)
{
    PatientHost host;
    Session session(host);
    folder.give(session);
    if (!ouvrejournal(session) || !ouvrebase(session)) return 1;
    // The locks are what is tried, and a test's files needn't outlive the machine's power.
    for (store::Engine *engine : {&session.base.engine, &session.journal.engine})
        if (!engine->execute(QStringLiteral("PRAGMA synchronous = OFF")).ok()) return 1;
    bool refused = false;
    for (int round = 0; round < rounds; ++round) {
        const QString number = QString::number(round);
        refused |= !nouvelleLigne(session, QString(station) + number, host.today(), {}).faite;
        static_cast<void>(nouvelleLigne(session, QLatin1Char('C') + number, host.today(), {}));
    }
    return refused ? 2 : 0;
}

TEST(LinesSideBySide, NoNumberOrNameIsGivenTwiceAndNoLineIsLost)
{
    const int asked = qEnvironmentVariableIntValue("VELMORA_LINES");
    const int rounds = asked > 0 ? asked / 4 : 500;
    DataFolder folders[2];
    QFile::remove(folders[1].mainFile());
    ASSERT_TRUE(QFile::link(folders[0].mainFile(), folders[1].mainFile()));
    OtherProcess first([&] { return openLines(folders[0], QLatin1Char('A'), rounds); });
    OtherProcess second([&] { return openLines(folders[1], QLatin1Char('B'), rounds); });
    ASSERT_TRUE(first.start() && second.start());
    EXPECT_EQ(first.wait(), 0);
    EXPECT_EQ(second.wait(), 0);
    RawSqlite base(folders[0].mainFile());
    const QString lines = QString::number(3 * rounds);
    EXPECT_EQ(base.value(QStringLiteral("SELECT count(*), count(DISTINCT nump), min(nump), max(nump), "
                                        "count(DISTINCT nom) FROM ligmois")),
              QStringLiteral("%1|%1|1|%1|%1").arg(lines));
}

} // namespace
} // namespace velmora::test
