#pragma once

#include "month/planning.h"

#include <optional>

namespace velmora
{

/// What a command acts on: the line of the current row and the dates of the selection, or of the current
/// column alone.
struct Cible {
    Ligne ligne; ///< with the row's heading as its name
    int rangee = 0;
    QDate debut;
    QDate fin;
};

/// Nothing when the current row is no line's, or when its line is gone from the table.
[[nodiscard]] std::optional<Cible> cibleCourante(Planning &planning);

} // namespace velmora
