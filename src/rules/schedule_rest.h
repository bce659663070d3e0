#pragma once

#include "rules/day_reading.h"

namespace velmora
{

/// The rest between two schedules that follow each other.
class ReposHoraires
{
public:
    /// `finprec` is the end of the schedule of the day before the first, on that day's scale; at or below 0
    /// there is none.
    ReposHoraires(int reposmin, int finprec) : m_reposmin(reposmin), m_finprec(finprec) {}

    /// Takes the next day; true when the rest before it is too short. A day that is judged against no end
    /// leaves its own end with `reprend`, 0 on a day off; without it the end that is kept moves a day back.
    [[nodiscard]] bool passe(const JourLu &lu, bool reprend);

private:
    int m_reposmin;
    int m_finprec; ///< end of the last schedule, on the scale of the day before
};

} // namespace velmora
