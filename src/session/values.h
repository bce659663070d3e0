#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace velmora
{

/// Minutes as text, by the session option `totcent`: hours and minutes ("7h05", "-0h15", "152h30"), or
/// hours and hundredths of an hour with the locale's mark ("7.58"), half a hundredth going up.
///
/// With `totcent` false the argument is changed too: a null becomes 0 and a fraction is dropped towards minus
/// infinity; the sign stays. A value that is not finite counts as null, and the text stops at the range of
/// int. With `totcent` true the argument is left alone, and a null or a value that is not finite gives an
/// empty text.
[[nodiscard]] QString hdeci(std::optional<double> &minutes, bool totcent);

/// The same for whole minutes: what a cell calls, with no allocation beyond the result.
[[nodiscard]] QString hdeci(int minutes, bool totcent);

/// Letter of the weekday and the day of the month on two digits: "L05". Tuesday and Wednesday share "M".
/// Empty for an invalid date.
[[nodiscard]] QString lettrejour(const QDate &date);

/// A run of dates in words, with the leading blank that labels are built on: " le 03/06/2026",
/// " du 03 au 17/06/2026", " du 28/02 au 04/03/2026", " du 28/12/2025 au 02/01/2026".
[[nodiscard]] QString periodetexte(const QDate &first, const QDate &last);

} // namespace velmora
