#pragma once

#include "entry/derivation.h"
#include "entry/request.h"
#include "entry/storing.h"
#include "entry/typed_entry.h"
#include "journal/replay.h"
#include "month/clipboard.h"
#include "month/deletion.h"
#include "store/verification.h"
#include "support/scripted_host.h"

namespace velmora::test
{

/// A host that gives every question the same answer and keeps what is said.
class AnsweringHost : public Host
{
public:
    bool answer = true;
    std::function<void()> whenAsked;
    QStringList said;

    void message(const QString &text, const QString &) override { said << text; }
    bool question(const QString &text, const QString &) override
    {
        said << text;
        if (whenAsked) whenAsked();
        return answer;
    }
    QDate today() const override { return {2026, 6, 15}; }
    QDateTime now() const override { return {today(), QTime(8, 15)}; }
    bool open(const QString &) override { return true; }
    [[noreturn]] void endProcess() override { throw ProcessEnded{}; }
};

inline Ligne lineOf(Session &session, int nump)
{
    session.base.ligmois.setIndex("ligmois01");
    EXPECT_TRUE(session.base.ligmois.seek(store::Cmp::Eq, {nump})) << nump;
    return session.base.ligmois.row();
}

// The commands of the month, called as the windows and the command line call them.

inline bool enterHours(Session &session, int nump, const QDate &from, const QDate &to,
                       const QStringList &hours)
{
    const Ligne line = lineOf(session, nump);
    if (!prepareSaisie(session, line.nom, nump, from, to)) return false;
    const auto typed = normaliseTranches(hours);
    return typed && ecrihor(session, journeeSaisie(session), jourDeSaisie(typed->textes(), typed->total()));
}

inline bool deleteDays(Session &session, int nump, const QDate &from, const QDate &to)
{
    return supprimeJours(session, lineOf(session, nump), from, to) == Suppression::Faite;
}

/// Holds days of one line, taking them out when `cut`, and writes them on another.
inline void moveDays(Session &session, int source, const QDate &from, const QDate &to, int target,
                     const QDate &onto, bool cut)
{
    Pressepapiers held;
    held.clipcoupe = cut;
    retientJours(session, held, lineOf(session, source), from, to);
    colleJours(session, held, lineOf(session, target), onto);
}

/// Every row of the tables, to be compared as a whole.
inline QString contentOf(store::Engine &engine, const std::vector<const store::Schema *> &schemas)
{
    QString text;
    for (const store::Schema *schema : schemas) {
        QStringList values;
        for (const store::Column &column : schema->columns)
            values << QStringLiteral("quote(%1)").arg(column.name);
        const auto rows = engine.prepare(QStringLiteral("SELECT %1 AS rangee FROM %2 ORDER BY rangee")
                                             .arg(values.join(QStringLiteral("||'|'||")), schema->table));
        EXPECT_TRUE(rows);
        text += schema->table + QLatin1Char('\n');
        while (rows && rows->step() == store::Statement::Step::Row)
            text += QString::fromUtf8(rows->columnText(0).data()) + QLatin1Char('\n');
    }
    return text;
}

inline QString planningOf(Session &session)
{
    return contentOf(session.base.engine, store::MainDatabase::schemas());
}
/// The ring and its images.
inline QString ringOf(Session &session)
{
    return contentOf(session.journal.engine, {&store::schemaOf<Operation>(), &store::schemaOf<ImageSit>(),
                                              &store::schemaOf<ImageAbs>()});
}

/// The faults that a check of a folder's files finds, one in a line; remarks are left out.
inline std::string faultsIn(const QString &folder)
{
    QStringList faults;
    for (const store::Constat &constat : store::verifieFichiers(folder))
        if (constat.gravite == store::Constat::Gravite::Faute) faults << constat.phrase;
    return faults.join(QLatin1Char('\n')).toStdString();
}

/// A number that the environment may set, for longer runs than the suite's.
inline int setting(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

} // namespace velmora::test
