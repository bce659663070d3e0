#pragma once

#include "session/session.h"

namespace velmora
{

/// What the calendar lacks when the system has started.
enum class StartCheck {
    Nothing,
    NeedParametres, ///< there is no parameter set
    NeedFeries      ///< the last holiday is not later than this year
};

/// Looks at the parameter sets and the holidays. A table of holidays with no row lacks nothing.
[[nodiscard]] StartCheck startCheck(Session &session);

} // namespace velmora
