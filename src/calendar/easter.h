#pragma once

#include <QDate>

namespace velmora
{

/// Easter Monday of a year, by the anonymous Gregorian computation (Meeus, Jones, Butcher) moved on one day.
[[nodiscard]] QDate paques(int annee);

} // namespace velmora
