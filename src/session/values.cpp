#include "session/values.h"

#include "foncgen/foncgen.h"

#include <cmath>
#include <limits>

namespace velmora
{

namespace
{

constexpr int durationWidth = 7;

QString hundredths(double minutes)
{
    constexpr double perHour = 100;
    return Foncgen::strn(std::floor(minutes * perHour / 60 + 0.5) / perHour, 2);
}

int clampedToInt(double whole)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(least, whole, most));
}

} // namespace

QString hdeci(std::optional<double> &minutes, bool totcent)
{
    const bool finite = minutes && std::isfinite(*minutes);
    if (totcent) return finite ? hundredths(*minutes) : QString();
    minutes = finite ? std::floor(*minutes) : 0;
    return hdeci(clampedToInt(*minutes), false);
}

QString hdeci(int minutes, bool totcent)
{
    return totcent ? hundredths(minutes) : Foncgen::fwhl(minutes, durationWidth);
}

QString lettrejour(const QDate &date)
{
    constexpr char16_t letters[] = u"LMMJVSD"; // QDate counts from Monday
    if (!date.isValid()) return {};
    return QChar(letters[date.dayOfWeek() - 1]) + Foncgen::strz(date.day(), 2);
}

QString periodetexte(const QDate &first, const QDate &last)
{
    if (first == last) return QStringLiteral(" le ") + Foncgen::dtoc(first);

    QString start = Foncgen::dtoc(first);
    const bool sameYear = first.year() == last.year();
    if (sameYear && first.month() == last.month())
        start.truncate(2);
    else if (sameYear)
        start.truncate(5);
    return QStringLiteral(" du ") + start + QStringLiteral(" au ") + Foncgen::dtoc(last);
}

} // namespace velmora
