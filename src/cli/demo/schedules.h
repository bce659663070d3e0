#pragma once

#include "cli/demo/lines.h"

#include <map>
#include <set>

namespace velmora::cli::demo
{

/// The days of hours of the example's lines. Every row is what the day entry stores for the hours typed.
class Horaires
{
public:
    /// `datj` is the moment of writing of every row; offices are closed on `feriees`.
    Horaires(const QDateTime &datj, std::set<QDate> feriees);

    /// The worked days of a line in a period, in the order of the dates.
    [[nodiscard]] std::vector<JourSit> jours(const LigneDemo &ligne, const Intervalle &intervalle,
                                             Hasard &hasard) const;

private:
    /// The variants of a schedule: as it is, then later or longer by a quarter or half an hour.
    using Variantes = std::vector<JourSit>;

    QDateTime m_datj;
    std::set<QDate> m_feriees;
    std::map<std::pair<Genre, int>, Variantes> m_variantes;
};

} // namespace velmora::cli::demo
