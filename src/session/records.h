#pragma once

#include "session/guards.h"
#include "session/session.h"

#include <vector>

namespace velmora
{

/// Whether a holiday row has the date as `datedeb`. The `ferie` table stays on the found row.
[[nodiscard]] bool jourferie(Session &session, const QDate &date);

/// Puts `parcg` on the set in force at the date, or failing that on the oldest set.
void jeuaudate(store::MainDatabase &base, const QDate &date);
inline void jeuaudate(Session &session, const QDate &date)
{
    jeuaudate(session.base, date);
}

/// Deletes every row of a table, from the first to the end. A row that can't be deleted is passed.
/// A walk that fails to step on ends.
template <class Row> void videtable(Session &session, store::Table<Row> &table)
{
    for (bool found = table.first(); found; found = table.next())
        supprgarde(session, table).ignore();
}

/// The absence of a line that covers a date, or null: the last span that begins on or before the date, else
/// the first one that begins on it. `source` is the table or a line's spans in memory; it gives the last span
/// before a key (line, first date) and the first one from a key on, or null.
template <class Source>
[[nodiscard]] const AbsenceSaisie *absencesur(const Source &source, int nump, const QDate &date)
{
    const auto couvre = [&](const AbsenceSaisie *absence) {
        return absence && absence->nump == nump && absence->datedeb <= date && absence->datefin >= date;
    };
    const AbsenceSaisie *absence = source.derniereAvant(nump, date.addDays(1));
    if (!couvre(absence)) absence = source.premiereDes(nump, date);
    return couvre(absence) ? absence : nullptr;
}

/// Whether a line has an absence on a date; leaves `absences` on it.
[[nodiscard]] bool absjour(Session &session, int nump, const QDate &date);

/// Puts `absences` where a walk of the line's absences from a date starts: on the last span that begins
/// before it, else on the first one after. False when the line has none there.
[[nodiscard]] bool absproche(Session &session, int nump, const QDate &date);

/// A code as `codabs` holds it: two characters, a single letter after a blank. An absence entered with one
/// letter is stored without the blank and must still find its code.
[[nodiscard]] QString codeAligne(const QString &code);

/// Puts `codabs` on a code. False when there is none.
[[nodiscard]] bool cherchecode(Session &session, const QString &code);

} // namespace velmora
