#pragma once

#include "month/planning.h"

#include <functional>

namespace velmora
{

/// The commands as they stand when a month has just been loaded or a row refilled: undo and redo as the
/// journal says, the rest as it was.
void majcommandes(Planning &planning);

/// The refresh cycle around the current cell: reads its line, writes the status text, moves the highlight and
/// decides which commands are open; then shows the line's report if it was asked for. `montreStatut` shows
/// the status text, before anything is said.
/// `montreCommandes` shows the commands, before a report that was asked for.
void cycle(Planning &planning, const std::function<void()> &montreStatut = {},
           const std::function<void()> &montreCommandes = {});

/// Tells that the tables can't be read.
void ditErreurBase(const Planning &planning);

/// Whether a line is open: the year of its last date is above 2090.
[[nodiscard]] bool ligneOuverte(const Ligne &ligne);

} // namespace velmora
