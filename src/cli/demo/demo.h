#pragma once

#include "store/databases.h"

#include <cstdint>

namespace velmora::cli::demo
{

/// What the example planning holds. The same values give the same data.
struct Demo {
    static constexpr int lignesMaxi = 996; ///< as many as a month shows
    static constexpr int moisMaxi = 120;

    int lignes = 60;
    int mois = 15; ///< around the month of `aujourdhui`
    std::uint64_t graine = 1;
    QDate aujourdhui;

    [[nodiscard]] QDate debut() const;
    [[nodiscard]] QDate fin() const; ///< last date, included
};

/// Writes a care home's planning into an empty base: lines with their days, absences and their codes,
/// folders, a parameter set and holidays. The caller has a transaction open.
[[nodiscard]] store::Status remplit(store::MainDatabase &base, const Demo &demo);

} // namespace velmora::cli::demo
