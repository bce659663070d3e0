#pragma once

#include "cli/commands.h"
#include "workstation/mdivel.h"

#include <memory>

namespace velmora
{

/// The main window with everything that it opens.
[[nodiscard]] std::unique_ptr<Mdivel> fenetrePrincipale(Session &session);

/// Starts the session, shows the main window and runs until it closes. Returns the exit status.
[[nodiscard]] int ouvreFenetre(const cli::Poste &poste);

} // namespace velmora
