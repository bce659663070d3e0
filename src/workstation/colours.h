#pragma once

#include "session/session.h"

#include <QRgb>

namespace velmora
{

/// The display settings that a user has before any of his own. `texteFenetre` is the window text colour
/// in use, `fontSession` the session's name of the first font.
[[nodiscard]] Affichage affichageParDefaut(QRgb texteFenetre, const QString &fontSession);

/// Whether a row holds its settings. One missing value of the few that are looked at means that none counts.
[[nodiscard]] bool affichageComplet(const Affichage &affichage);

/// Takes the display settings of the current row of `agent` into the session, after giving the row all the
/// defaults when they aren't complete. Failures are passed over.
void gescolor(Session &session, QRgb texteFenetre);

/// Writes the session's display settings back to the current row of `agent`. Failures are passed over.
void ecritAffichage(Session &session);

} // namespace velmora
