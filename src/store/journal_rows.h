#pragma once

#include "store/rows.h"

// The rows of the journal database's tables.
namespace velmora
{

/// Format version that a new `chemin` row is given; nothing reads it.
inline constexpr int versionJournal = 2;

/// `chemin`: the workstation's tie to the main database. One row.
struct Chemin {
    int nor = 0; ///< always 1
    int Version = 0;
    QString chemin; ///< folder of the main database, with its trailing separator
};

/// `logop`: the head row of the ring (`numop` 0) or one of its 30 slots.
struct Operation {
    int numop = 0;
    int ordop = 0; ///< head: operations undone; slot: age, 1 is the latest, above 30 is free
    int nivop = 0; ///< head: levels still free
    QString ficop; ///< "S": images of `sitper` alone; anything else: of `absences` too
    QString libop; ///< the operation's wording for the user
    bool valop = false;
};

/// Where an image belongs and what it shows.
struct Rang {
    int numop = 0;
    int nivop = 0;  ///< rank within the operation, from 1
    QString avap;   ///< "A" before, "P" after
    QString foncop; ///< "E" changed, "A" added, "D" deleted
};

/// `sitlog`: an image of a `sitper` row.
struct ImageSit {
    Rang rang;
    JourSit jour;
};

/// `logabs`: an image of an `absences` row.
struct ImageAbs {
    Rang rang;
    AbsenceSaisie absence;
};

/// `sitco`: a day held by cut and copy.
struct JourCopie {
    JourSit jour;
};

} // namespace velmora
