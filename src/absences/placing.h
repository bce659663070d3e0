#pragma once

#include "absences/absence_entry.h"

namespace velmora
{

/// Places the absence of the fields on the line of the session: it cuts, shortens or removes the absences
/// that it meets and hides the hours under it, as one operation in one transaction. `dlgvalide` tells whether
/// the month is to show it. False when it was refused or given up, after a message: then neither absences nor
/// hours are changed; one given up may leave its operation, empty, in the journal.
[[nodiscard]] bool saisieabs(Session &session, const ChampsAbsence &champs);

} // namespace velmora
