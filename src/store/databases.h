#pragma once

#include "store/sqlite_engine.h"
#include "store/tables.h"

namespace velmora::store
{

/// Names of the two files.
inline const QString fichierBase = QStringLiteral("velmora.mdb");
inline const QString fichierJournal = QStringLiteral("velmoralog.mdb");
/// Passing work file of a journal's repair.
inline const QString fichierReparation = QStringLiteral("genvelmoralog.mdb");

/// A workstation's second session must hear soon that the journal is taken.
inline constexpr std::chrono::milliseconds journalWait{300};

/// The main database: the planning that all workstations share. Its tables stay open for the session.
struct MainDatabase {
    explicit MainDatabase(std::unique_ptr<Engine> theEngine = std::make_unique<SqliteEngine>())
        : held(std::move(theEngine))
    {
    }

    std::unique_ptr<Engine> held;
    Engine &engine = *held;
    Table<Agent> agent{engine};
    Table<Tnum> tnum{engine};
    Table<JourFerie> ferie{engine};
    Table<JeuParam> parcg{engine};
    Table<JourSit> sitper{engine};
    Table<Ligne> ligmois{engine};
    Table<AbsenceSaisie> absences{engine};
    Table<CodeAbsence> codabs{engine};
    Table<Dossier> groupe{engine};

    /// Opens the file and checks that every table is there with its columns. A file with another program's
    /// mark is refused.
    [[nodiscard]] Status open(const QString &path);
    void close();
    /// Drops whatever change is under way on a table but the kept ones, as before a command runs again.
    void cancelUpdates(const std::vector<TableBase *> &kept = {});
    /// The tables with a change under way.
    [[nodiscard]] std::vector<TableBase *> editing();
    /// Every table of the file, the one that is only required to exist included.
    [[nodiscard]] static std::vector<const Schema *> schemas();

private:
    [[nodiscard]] std::vector<TableBase *> tables();
};

/// The journal database: the workstation's own file, held exclusively.
struct JournalDatabase {
    explicit JournalDatabase(std::unique_ptr<Engine> theEngine = std::make_unique<SqliteEngine>())
        : held(std::move(theEngine))
    {
    }

    std::unique_ptr<Engine> held;
    Engine &engine = *held;
    Table<Chemin> chemin{engine};
    Table<ImageSit> sitlog{engine};
    Table<Operation> logop{engine};
    Table<ImageAbs> logabs{engine};
    Table<JourCopie> sitco{engine};

    /// Opens the file for this session alone and checks its structure and its tables.
    [[nodiscard]] Status open(const QString &path);
    void close();
    [[nodiscard]] static std::vector<const Schema *> schemas();
};

/// What marks a file as one of ours in its header.
enum class FileKind : int { Main = 0x56454c42, Journal = 0x56454c4a };

/// The mark in the header of an open file: a `FileKind`, 0 for none, -1 when it can't be read.
[[nodiscard]] std::int64_t fileMark(Engine &engine);

/// Makes a new, empty file with its tables and indexes. A file that is already there is left alone and is a
/// failure; a file that can't be finished is removed.
[[nodiscard]] Status createDatabase(const QString &path, FileKind kind);

/// Makes the tables in an open, empty database.
[[nodiscard]] Status createTables(Engine &engine, FileKind kind);

} // namespace velmora::store
