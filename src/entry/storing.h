#pragma once

#include "entry/request.h"

namespace velmora
{

/// Writes the hours on each date of the entry, as one operation of the journal. A row that is there goes,
/// whatever its type and validity, and a new one is written; absences and the line's dates are not looked
/// at. All dates are written in one transaction. When the disk fails or another workstation holds the file,
/// the dates before the failure stand, and the user is asked whether to try again; when the engine gave the
/// transaction up, none stands. Leaves `dlgvalide` true when the entry is written. False when the entry was
/// given up, after a message.
bool ecrihor(Session &session, const JourneeSaisie &journee, const JourSit &horaire);

} // namespace velmora
