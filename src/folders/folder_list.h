#pragma once

#include "session/session.h"

#include <QStringList>

namespace velmora
{

/// The names of the folders, in order.
[[nodiscard]] QStringList nomsDossiers(Session &session);

/// Puts `groupe` on the head row of a folder. False when there is none; names compare exactly.
[[nodiscard]] bool placedossier(Session &session, const QString &nom);

/// Puts `groupe` on the row of a line in a folder.
[[nodiscard]] bool placemembre(Session &session, const QString &nom, int nump);

/// The lines of a folder by number. A member whose line is gone is left out; its row stays.
[[nodiscard]] std::vector<Ligne> membres(Session &session, const QString &nom);

/// A member as the window shows it: name and first date of the line.
[[nodiscard]] QString textemembre(const Ligne &ligne);

/// Deletes a folder with its members once the user confirms. False when it is still there.
[[nodiscard]] bool supprdossier(Session &session, const QString &nom);

} // namespace velmora
