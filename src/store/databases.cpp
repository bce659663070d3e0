#include "store/databases.h"

#include "store/integrity.h"

#include <QFile>

#include <algorithm>

namespace velmora::store
{

namespace
{

/// Reads each table's columns once, so that a missing one is known at the opening.
Status checkTables(Engine &engine, const std::vector<const Schema *> &schemas)
{
    for (const Schema *schema : schemas) {
        QStringList names;
        for (const Column &column : schema->columns)
            names << column.name;
        const Status status = engine.execute(
            QStringLiteral("SELECT %1 FROM %2 LIMIT 1").arg(names.join(QLatin1Char(',')), schema->table));
        if (!status.ok()) return status;
    }
    return {};
}

/// An index may be missing from a file that is sound in itself. A clustered table's is its primary key.
Status checkIndexes(Engine &engine, const std::vector<const Schema *> &schemas)
{
    for (const Schema *schema : schemas) {
        const auto found = engine.prepare(
            QStringLiteral(
                "SELECT 1 FROM pragma_index_list('%1') WHERE name = '%2' OR (origin = 'pk' AND %3)")
                .arg(schema->table, schema->indexes.front().name)
                .arg(schema->clustered ? 1 : 0));
        if (!found) return engine.status();
        const auto step = found->step();
        if (step == Statement::Step::Failed) return found->status();
        if (step != Statement::Step::Row)
            return {Status::Code::Damaged,
                    QStringLiteral("the index %1 is missing").arg(schema->indexes.front().name)};
    }
    return {};
}

Status checkNotForeign(Engine &engine)
{
    const std::int64_t mark = fileMark(engine);
    if (mark == 0 || mark == static_cast<std::int64_t>(FileKind::Main)) return {};
    return {Status::Code::NotADatabase, QStringLiteral("the file belongs to another program")};
}

} // namespace

std::int64_t fileMark(Engine &engine)
{
    const auto mark = engine.prepare(QStringLiteral("PRAGMA application_id"));
    return mark && mark->step() == Statement::Step::Row ? mark->columnInt(0) : -1;
}

std::vector<const Schema *> MainDatabase::schemas()
{
    return {&schemaOf<Agent>(),     &schemaOf<Tnum>(),          &schemaOf<Veloption>(),
            &schemaOf<JourFerie>(), &schemaOf<JeuParam>(),      &schemaOf<JourSit>(),
            &schemaOf<Ligne>(),     &schemaOf<AbsenceSaisie>(), &schemaOf<CodeAbsence>(),
            &schemaOf<Dossier>()};
}

Status MainDatabase::open(const QString &path)
{
    close();
    Status status = engine.open(path, {});
    if (status.ok()) status = checkNotForeign(engine);
    if (status.ok()) status = checkTables(engine, schemas());
    if (status.ok()) status = engine.adopt();
    if (!status.ok()) close();
    return status;
}

std::vector<TableBase *> MainDatabase::tables()
{
    return {&agent, &tnum, &ferie, &parcg, &sitper, &ligmois, &absences, &codabs, &groupe};
}

void MainDatabase::close()
{
    for (TableBase *table : tables())
        table->release();
    engine.close();
}

void MainDatabase::cancelUpdates(const std::vector<TableBase *> &kept)
{
    for (TableBase *table : tables())
        if (std::find(kept.begin(), kept.end(), table) == kept.end()) table->cancelUpdate();
}

std::vector<TableBase *> MainDatabase::editing()
{
    std::vector<TableBase *> found = tables();
    std::erase_if(found, [](const TableBase *table) { return table->editMode() == EditMode::None; });
    return found;
}

std::vector<const Schema *> JournalDatabase::schemas()
{
    return {&schemaOf<Chemin>(), &schemaOf<ImageSit>(), &schemaOf<Operation>(), &schemaOf<ImageAbs>(),
            &schemaOf<JourCopie>()};
}

Status JournalDatabase::open(const QString &path)
{
    close();
    Status status = engine.open(path, {.exclusive = true, .busyWait = journalWait});
    // The indexes are compared with their tables too: a walk by an index that says other than its rows may
    // never end. The journal is small enough for that.
    if (status.ok()) status = checkIntegrity(engine);
    if (status.ok()) status = checkTables(engine, schemas());
    if (status.ok()) status = checkIndexes(engine, schemas());
    if (status.ok()) status = engine.adopt();
    if (!status.ok()) close();
    return status;
}

void JournalDatabase::close()
{
    for (TableBase *table : std::initializer_list<TableBase *>{&chemin, &sitlog, &logop, &logabs, &sitco})
        table->release();
    engine.close();
}

Status createTables(Engine &engine, FileKind kind)
{
    QStringList sql{QStringLiteral("BEGIN IMMEDIATE"),
                    QStringLiteral("PRAGMA application_id = %1").arg(static_cast<int>(kind))};
    const auto schemas = kind == FileKind::Main ? MainDatabase::schemas() : JournalDatabase::schemas();
    for (const Schema *schema : schemas)
        sql << schema->creation();
    sql << QStringLiteral("COMMIT");
    return engine.execute(sql.join(QLatin1Char(';')));
}

Status createDatabase(const QString &path, FileKind kind)
{
    if (QFile::exists(path)) return {Status::Code::CantOpen, QStringLiteral("the file is already there")};
    SqliteEngine engine;
    Status status = engine.open(path, {.create = true});
    if (status.ok()) status = createTables(engine, kind);
    engine.close();
    if (!status.ok()) QFile::remove(path);
    return status;
}

} // namespace velmora::store
