#pragma once

#include "session/session.h"

namespace velmora
{

/// Draws the window of the month that the session holds, as it stands on a 1366 x 768 screen, into a picture
/// file. False when the month doesn't open or the file can't be written.
[[nodiscard]] bool peintMois(Session &session, const QString &fichier);

} // namespace velmora
