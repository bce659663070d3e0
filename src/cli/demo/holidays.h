#pragma once

#include "store/rows.h"

#include <vector>

namespace velmora::cli::demo
{

/// The public holidays of metropolitan France in a year, as generated rows. Of two on one date the later one
/// of the rules stands.
[[nodiscard]] std::vector<JourFerie> feriesMetropole(int annee);

} // namespace velmora::cli::demo
