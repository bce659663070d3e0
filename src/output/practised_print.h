#pragma once

#include "output/practised.h"
#include "output/print_job.h"

namespace velmora
{

/// The report of the practised schedules of a period, in the order of the schedules given: a row for each.
[[nodiscard]] Impression impressionHoraires(const std::vector<HorairePratique> &horaires, const QDate &debut,
                                            const QDate &fin, const QString &nometab);

} // namespace velmora
