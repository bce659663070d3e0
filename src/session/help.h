#pragma once

#include "session/session.h"

namespace velmora
{

/// Opens a help page: the local page of the process's current folder, else that of the data folder, else the
/// page on the help site. An empty name keeps the session's current page, "sommaire.htm" at first.
void ouvreaide(Session &session, const QString &page);

/// Asks the desktop to open a document or an address. False when it has no program for it.
bool lanceassocie(Session &session, const QString &cible);

} // namespace velmora
