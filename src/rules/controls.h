#pragma once

#include "rules/report.h"
#include "rules/verdict.h"

namespace velmora
{

/// A line's days for the rules between two dates, read from the table. A row that can't be read counts as
/// missing.
[[nodiscard]] SuiteJours joursControles(Session &session, const Ligne &ligne, const QDate &debut,
                                        const QDate &fin);

/// Shows the report of a line between two dates, if there is something to report. True when the line has
/// controls. `parcg` is left on the set in force today.
bool rapportcontrole(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin);

} // namespace velmora
