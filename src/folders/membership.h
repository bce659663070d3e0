#pragma once

#include "session/session.h"

namespace velmora
{

/// Whether a folder holds a line; an empty name stands for all lines. Leaves `groupe` on the row.
[[nodiscard]] bool dansDossier(Session &session, int nump, const QString &dossier);

} // namespace velmora
