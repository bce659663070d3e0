#pragma once

#include "cli/demo/lines.h"

namespace velmora::cli::demo
{

/// The eight codes, with their colours and the three ways to count a day.
[[nodiscard]] std::vector<CodeAbsence> codesAbsence();

/// Spans of absence of a line in a period: in the order of the dates, none on another.
[[nodiscard]] std::vector<AbsenceSaisie> absencesDe(int nump, const Intervalle &intervalle, Hasard &hasard);

} // namespace velmora::cli::demo
