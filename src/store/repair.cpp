#include "store/repair.h"

#include "store/databases.h"
#include "store/file_replacement.h"

#include <QFile>
#include <QFileInfo>

namespace velmora::store
{

namespace
{

/// A file whose header carries the journal's mark, however damaged the rest is. The engine reads it: opening
/// the file beside the engine would let go of the locks that a session of this process may hold on it.
Status checkMark(Engine &engine)
{
    if (fileMark(engine) == static_cast<std::int64_t>(FileKind::Journal)) return {};
    return {Status::Code::NotADatabase, QStringLiteral("the file is no journal")};
}

/// Opens the damaged file while no other session has it, and keeps it to this one. A repair would put a file
/// that can be written in the place of one that can't, so that one is refused.
Status openDamaged(SqliteEngine &engine, const QString &path)
{
    if (QFileInfo(path).isFile() && !QFileInfo(path).isWritable())
        return {Status::Code::ReadOnly, QStringLiteral("the file can't be written")};
    Status status = engine.open(path, {.damaged = true, .busyWait = journalWait});
    if (status.ok()) status = checkMark(engine);
    if (!status.ok()) return status;
    // Damage that shows here is no obstacle, a lock is. Only a connection with the right to write gets a lock
    // that keeps others out; that it writes nothing is said once it has it.
    status = engine.execute(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE"));
    if (status.code() == Status::Code::Busy) return status;
    return engine.execute(QStringLiteral("PRAGMA query_only = ON"));
}

void copyRow(const Statement &from, Statement &to, int columns)
{
    for (int column = 0; column < columns; ++column) {
        if (from.columnIsNull(column))
            to.bindNull(column + 1);
        else
            to.bindText(column + 1, from.columnText(column));
    }
}

/// The columns as they are copied: the row's own identity keeps a row read both ways from doubling.
QString copiedColumns(const Schema &schema)
{
    QStringList names;
    if (!schema.clustered) names << QStringLiteral("rowid");
    for (const Column &column : schema.columns)
        names << column.name;
    return names.join(QLatin1Char(','));
}

QString readOrder(const Schema &schema, const QString &direction)
{
    QStringList names;
    if (!schema.clustered) names << QStringLiteral("rowid");
    for (const int column : schema.clustered ? schema.indexes.front().columns : std::vector<int>{})
        names << schema.columns[static_cast<std::size_t>(column)].name;
    return names.join(direction + QLatin1Char(',')) + direction;
}

Status salvageTable(Engine &damaged, Engine &target, const Schema &schema)
{
    const QString columns = copiedColumns(schema);
    const int count = static_cast<int>(columns.count(QLatin1Char(','))) + 1;
    const auto insert = target.prepare(
        QStringLiteral("INSERT OR IGNORE INTO %1 (%2) VALUES (%3)")
            .arg(schema.table, columns, QStringList(count, QStringLiteral("?")).join(QLatin1Char(','))));
    if (!insert) return target.status();
    for (const auto &direction : {QStringLiteral(" ASC"), QStringLiteral(" DESC")}) {
        const auto read = damaged.prepare(QStringLiteral("SELECT %1 FROM %2 ORDER BY %3")
                                              .arg(columns, schema.table, readOrder(schema, direction)));
        while (read && read->step() == Statement::Step::Row) {
            copyRow(*read, *insert, count);
            if (insert->step() == Statement::Step::Failed) return insert->status();
            insert->reset();
        }
    }
    return {};
}

// Slots are told by their head row's counts: without it, or with rows that no ring has, there is no telling,
// and the opening makes a new ring.
constexpr const char *dropUntoldRing = R"(
    DELETE FROM logop WHERE (SELECT count(*) FILTER (WHERE numop = 0) <> 1 OR count(DISTINCT numop) <> count(*)
        OR min(numop) < 0 OR max(numop) > 30 FROM logop))";

constexpr const char *dropImages = R"(
    DELETE FROM %1 WHERE numop NOT IN (SELECT numop FROM logop WHERE numop > 0))";

// A slot that is added has no age yet.
constexpr const char *addLostSlots = R"(
    INSERT INTO logop (numop, nivop, ficop, libop, valop)
    WITH RECURSIVE toutes (numop) AS (SELECT 1 UNION ALL SELECT numop + 1 FROM toutes WHERE numop < 30)
    SELECT numop, 0, '', '', 0 FROM toutes
    WHERE EXISTS (SELECT 1 FROM logop) AND numop NOT IN (SELECT numop FROM logop))";

// An undone slot has an age up to the head's count of them; one neither undone nor in force is free.
constexpr const char *slotsSeen = R"(
    vues AS (SELECT numop, ordop, ifnull(valop, 0) <> 0 AS vaut,
        ifnull(ordop BETWEEN 1 AND (SELECT min(ordop, 30) FROM logop WHERE numop = 0), 0) AS recente
        FROM logop WHERE numop > 0),
    cases AS (SELECT numop, ordop, vaut, NOT vaut AND NOT recente AS libre FROM vues))";

// The ages of a whole ring stay. In one with a gap they close up, each operation in its turn, so that all
// those that are left can be undone and redone.
constexpr const char *closeAges = R"(
    WITH %1, rangs AS (SELECT numop, ordop, libre, 30 * libre + row_number()
        OVER (PARTITION BY libre ORDER BY vaut, ordop, numop) AS age FROM cases)
    UPDATE logop SET ordop = rangs.age FROM rangs WHERE rangs.numop = logop.numop
    AND EXISTS (SELECT 1 FROM rangs WHERE ordop IS NULL OR (NOT libre AND ordop <> age)))";

constexpr const char *countInHead = R"(
    WITH %1 UPDATE logop SET ordop = (SELECT count(*) FROM cases WHERE NOT libre AND NOT vaut),
    nivop = min(nivop, (SELECT count(*) FROM cases WHERE libre)) WHERE numop = 0)";

// Lost operations leave free levels, so that the last one that is left shows as the last.
constexpr const char *countFreeInHead = R"(
    UPDATE logop SET nivop = 30 - ordop - (SELECT count(*) FROM logop WHERE numop > 0 AND valop)
    WHERE numop = 0)";

/// Makes a ring with losses whole again. The lost slots are free, their images go.
Status completeRing(Engine &target)
{
    const auto run = [&target](const char *sql, const char *what) {
        return target.execute(QString::fromLatin1(sql).replace(QStringLiteral("%1"), QLatin1String(what)));
    };
    Status status = run(dropUntoldRing, "");
    for (const char *images : {"sitlog", "logabs"})
        if (status.ok()) status = run(dropImages, images);
    if (status.ok()) status = run(addLostSlots, "");
    const bool lost = target.changedRows() > 0;
    for (const char *step : {closeAges, countInHead})
        if (status.ok()) status = run(step, slotsSeen);
    return status.ok() && lost ? run(countFreeInHead, "") : status;
}

Status salvageInto(Engine &damaged, const QString &target)
{
    SqliteEngine engine;
    Status status = engine.open(target, {});
    if (status.ok()) status = engine.begin(Engine::Transaction::Write);
    for (const Schema *schema : JournalDatabase::schemas())
        if (status.ok()) status = salvageTable(damaged, engine, *schema);
    if (status.ok()) status = completeRing(engine);
    if (status.ok()) status = engine.commit();
    return status;
}

} // namespace

Status repairJournal(const QString &damaged, const QString &work)
{
    SqliteEngine engine;
    Status status = openDamaged(engine, damaged);
    if (!status.ok()) return status;
    QFile::remove(work);
    status = createDatabase(work, FileKind::Journal);
    if (status.ok()) status = salvageInto(engine, work);
    if (status.ok()) status = replaceFile(work, damaged);
    engine.rollback();
    if (!status.ok()) QFile::remove(work);
    return status;
}

} // namespace velmora::store
