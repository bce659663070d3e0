#pragma once

#include "session/session.h"

namespace velmora
{

/// What the window of the holidays is asked for as it opens.
struct DemandeFeries {
    bool reinitferie = false; ///< begin anew from `dateappli`; else only add the years that lack
    QDate dateappli;
};

/// Whether the last holiday lies in the year after today's or later. False for a table without rows.
[[nodiscard]] bool feriesAJour(store::MainDatabase &base, const QDate &aujourdhui);

/// Adds the holidays of a year, each for the region in force on its own date; `parcg` moves with them. Dates
/// before `depuis` are passed over, none when it is null. A date that has a row keeps it.
[[nodiscard]] store::Status genannee(store::MainDatabase &base, const QDate &depuis, int annee);

/// Brings the holidays up to date, asking and telling nothing. Begun anew, or when there is no row at all,
/// the generated rows from `dateappli` on go, and exactly the year of that date and the next one are
/// generated, whatever the years of the rows that went: the years between them and this one stay empty, which
/// is wanted. Else this year and the next are added as far as they
/// lie after the year of the last row, however little of that year there is.
[[nodiscard]] store::Status genereferies(store::MainDatabase &base, const QDate &aujourdhui,
                                         const DemandeFeries &demande);

/// The same whole or not at all, as the window does it before it shows. A file that lacks nothing isn't
/// written to.
[[nodiscard]] store::Status chargeferies(Session &session, const DemandeFeries &demande);

} // namespace velmora
