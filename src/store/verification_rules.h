#pragma once

#include "store/verification.h"

namespace velmora::store
{

/// What rows must be to one another, as a query for those that are not.
struct Regle {
    Constat::Gravite gravite;
    const char *sql;    ///< one row for each breach
    const char *phrase; ///< %1 and so on are the row's columns; dates are shown as the user reads them
};

[[nodiscard]] const std::vector<Regle> &reglesBase();
[[nodiscard]] const std::vector<Regle> &reglesJournal();

} // namespace velmora::store
