#pragma once

#include "cli/commands.h"
#include "workstation/mdivel.h"

#include <memory>

namespace velmora
{

/// Makes the form of the session's month.
[[nodiscard]] MonthView *nouveauMois(Session &session, QWidget *parent);

/// The main window with everything that it opens.
[[nodiscard]] std::unique_ptr<Mdivel> fenetrePrincipale(Session &session);

/// Starts the session, shows the main window and runs until it closes. Returns the exit status.
[[nodiscard]] int ouvreFenetre(const cli::Poste &poste);

} // namespace velmora
