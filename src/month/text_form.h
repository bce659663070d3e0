#pragma once

#include "month/planning.h"

#include <QStringList>

namespace velmora
{

/// The grid as text, one entry for each grid row from the header to the totals: the cells' texts as they
/// show, separated by a tabulation, a line break in a cell written as " | ".
[[nodiscard]] QStringList texteGrille(const Planning &planning);

} // namespace velmora
