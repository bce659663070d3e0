#pragma once

#include "output/print_job.h"
#include "session/session.h"

namespace velmora
{

/// What a week print is asked for.
struct ChoixSemaine {
    QDate premier;           ///< first of the seven days
    QString dossier;         ///< empty for all lines
    bool valorisees = false; ///< absences count in the totals
    bool couleur = false;    ///< absences are drawn in the colours of their codes
};

/// Seven days of the lines of a folder: a row for each line, a column for each day, the totals of the line
/// and of all lines. Pages lie; a row isn't cut in two, and the totals stay with the last one.
[[nodiscard]] Impression impressionSemaine(Session &session, const ChoixSemaine &choix);

} // namespace velmora
