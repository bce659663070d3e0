#pragma once

#include "rules/day_reading.h"
#include "rules/weeks.h"

namespace velmora
{

/// Judges a worked day by the line's pauses, hours of a day and span, and marks its week. True when one of
/// them fails. `jour` is the day's row.
[[nodiscard]] bool jugeJour(const Ligne &ligne, const JourSit &jour, const JourLu &lu, Semaine &semaine);

/// The days worked in a row, which run on across weeks.
class JoursDeSuite
{
public:
    explicit JoursDeSuite(int dejaFaits) : m_nombre(dejaFaits) {}

    /// Counts a day; true when it is one more than six.
    [[nodiscard]] bool passe(bool travaille)
    {
        m_nombre = travaille ? m_nombre + 1 : 0;
        return m_nombre > maximum;
    }

private:
    static constexpr int maximum = 6;
    int m_nombre;
};

} // namespace velmora
