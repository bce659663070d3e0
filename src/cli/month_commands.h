#pragma once

#include <QString>

namespace velmora
{
struct Session;
}

namespace velmora::cli
{

struct Appel;

/// Why a month as typed ("6/2026") can't be opened; empty when the session has taken it.
[[nodiscard]] QString refusMois(Session &session, const QString &texte);

/// Prints the grid of a month and may draw its window.
int commandeMois(const Appel &appel);
/// Prints the status text of a line's day.
int commandeStatut(const Appel &appel);

} // namespace velmora::cli
