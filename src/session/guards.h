#pragma once

#include "session/session.h"

namespace velmora
{

/// Waits until no change is under way on the table. After 1000 rounds of `pause` it asks `question` and on
/// Yes goes round again, trying a failed update once more, unrecorded; on No the process ends at once with
/// what has been written. Rounds and not a time, on purpose. A command's transaction is committed while the
/// user is being asked, so no lock is held.
void attendlibre(Session &session, store::TableBase &table, const QString &question, void (*pause)());

/// The pause of the guards: an empty counted loop of 100 rounds, with no yielding to the event loop.
void pauseSeche();

/// The guards' question.
[[nodiscard]] QString questionBloquage();

/// `edit` on the current row once the table is free.
template <class Row> store::Status editgarde(Session &session, store::Table<Row> &table)
{
    attendlibre(session, table, questionBloquage(), pauseSeche);
    return table.edit();
}

/// `addNew` once the table is free.
template <class Row> store::Status ajoutgarde(Session &session, store::Table<Row> &table)
{
    attendlibre(session, table, questionBloquage(), pauseSeche);
    return table.addNew();
}

/// Deletion of the current row once the table is free.
template <class Row> store::Status supprgarde(Session &session, store::Table<Row> &table)
{
    attendlibre(session, table, questionBloquage(), pauseSeche);
    return table.erase();
}

} // namespace velmora
