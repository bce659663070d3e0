#include "month/loading.h"
#include "month/planning.h"

#include "support/prepared_files.h"
#include "support/raw_sqlite.h"

#include <random>

namespace velmora::test
{
namespace
{

class DamagedFilesTest : public testing::Test
{
protected:
    PreparedFiles files;
    std::mt19937 random{static_cast<unsigned>(setting("VELMORA_SEED", 1))};

    qsizetype below(qsizetype bound)
    {
        return std::uniform_int_distribution<qsizetype>(0, bound - 1)(random);
    }

    /// Bits turned, a length cut, a page of rubbish, a page in the place of another, or zeros.
    QByteArray damaged(QByteArray content)
    {
        constexpr qsizetype page = 4096;
        const qsizetype at = below(content.size());
        const qsizetype pageAt = at / page * page;
        switch (below(6)) {
        case 0:
            for (qsizetype bits = 1 + below(20); bits > 0; --bits)
                content[below(content.size())] ^= static_cast<char>(1 << below(8));
            break;
        case 1: content.truncate(at); break;
        case 2:
            for (qsizetype i = pageAt; i < pageAt + page; ++i)
                content[i] = static_cast<char>(random());
            break;
        case 3: content.replace(pageAt, page, content.mid(below(content.size()) / page * page, page)); break;
        case 4: content.replace(at, content.size() - at, QByteArray(content.size() - at, '\0')); break;
        default: content[below(100)] = static_cast<char>(random()); // the header
        }
        return content;
    }
    /// Does what a user does with files that open: shows a month, enters, takes back, closes.
    void use(Session &session)
    {
        Planning planning(session, 6, 2026);
        static_cast<void>(chargi(planning, {}));
        session.base.ligmois.setIndex("ligmois01");
        if (session.base.ligmois.seek(store::Cmp::Eq, {1}))
            enterHours(session, 1, {2026, 6, 15}, {2026, 6, 16}, {"7h", "15h"});
        annulop(session);
        annulop(session);
        refaitop(session);
    }
    /// Starts, and works when the start stands. What is said is one of the system's sentences.
    void startAndUse()
    {
        AnsweringHost host;
        host.whenAsked = [&host] { host.answer = host.said.size() < 10; };
        bool stands = false;
        {
            Session session(host);
            files.folder.give(session);
            try {
                stands = ouvrejournal(session) && ouvrebase(session);
                if (stands) use(session);
            } catch (const ProcessEnded &) {
                stands = true;
            }
            if (!stands && host.said.isEmpty()) {
                EXPECT_FALSE(session.echecBase.ok());
            }
        }
        if (stands) return;
        for (const QString &text : std::as_const(host.said)) {
            EXPECT_TRUE(text == journalInouvrable(files.folder.path()) ||
                        text.contains(u"n'est pas retouvée"))
                << text.toStdString();
        }
    }
};

// VELMORA_DAMAGES sets how many times, VELMORA_SEED which.
TEST_F(DamagedFilesTest, GiveAMessageOrWorkAndNeverCrash)
{
    const int damages = setting("VELMORA_DAMAGES", 120);
    for (int i = 0; i < damages && !HasFailure(); ++i) {
        SCOPED_TRACE(testing::Message() << "damage " << i);
        files.restore();
        const QString path = files.paths()[i % 2];
        const QByteArray content = damaged(contentAt(path));
        replaceContent(path, content);
        static_cast<void>(store::verifieFichiers(files.folder.path()));
        EXPECT_EQ(contentAt(path), content) << "a check wrote";
        startAndUse();
    }
}

TEST_F(DamagedFilesTest, ForeignFilesAreNeverWritten)
{
    const QTemporaryDir other;
    const QString database = other.filePath(QStringLiteral("recettes.db"));
    RawSqlite(database).run(QStringLiteral("CREATE TABLE recettes (nom TEXT); PRAGMA application_id = 4711"));
    QList<QByteArray> contents{{},
                               "Liste des courses\n",
                               QByteArray("PK\x03\x04", 4) + QByteArray(3000, '\x11'),
                               QByteArray("SQLite format 3\0", 16),
                               QByteArray(40960, '\0'),
                               contentAt(database)};
    for (const QString &path : files.paths()) {
        contents << contentAt(path); // each in the place of the other, too
        for (const QByteArray &content : std::as_const(contents)) {
            for (const QString &place : files.paths()) {
                files.restore();
                if (contentAt(place) == content) continue;
                replaceContent(place, content);
                AnsweringHost host;
                Session session(host);
                files.folder.give(session);
                EXPECT_FALSE(ouvrejournal(session) && ouvrebase(session));
                session.base.close();
                session.journal.close();
                EXPECT_NE(faultsIn(files.folder.path()), "");
                EXPECT_EQ(contentAt(place), content) << place.toStdString();
            }
        }
    }
}

} // namespace
} // namespace velmora::test
