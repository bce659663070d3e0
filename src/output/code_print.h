#pragma once

#include "output/print_job.h"
#include "session/session.h"

namespace velmora
{

/// The list of absence codes, a line for each, archived ones included. With no code there is one page with
/// its head alone.
[[nodiscard]] Impression impressionCodes(Session &session);

} // namespace velmora
