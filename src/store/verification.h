#pragma once

#include "store/databases.h"

namespace velmora::store
{

/// What a check of the files found, told in one French sentence.
struct Constat {
    /// A remark is on a state that the system itself can leave, such as spans of absence that overlap after
    /// an undo.
    enum class Gravite { Faute, Remarque };

    Gravite gravite = Gravite::Faute;
    QString phrase;
};

/// Checks an open main database or journal: its structure, every table, column and index, every value's type,
/// and what the rows must be to one another. It only reads, in one read transaction, so that it sees one
/// state while other workstations write.
[[nodiscard]] std::vector<Constat> verifieBase(Engine &engine);
[[nodiscard]] std::vector<Constat> verifieJournal(Engine &engine);

/// Opens and checks the two files that a session would take from a journal's folder, given with its
/// separator, and the journal's tie to the main database. Nothing is repaired or written, but for an
/// unfinished transaction, which the engine undoes as at any opening. A file that can't be opened is a
/// finding.
[[nodiscard]] std::vector<Constat> verifieFichiers(const QString &dossierJournal);

} // namespace velmora::store
