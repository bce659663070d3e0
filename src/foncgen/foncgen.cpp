#include "foncgen/foncgen.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>

namespace velmora
{

namespace
{

constexpr qint64 minutesPerHour = 60;

/// Writes `value` in decimal so that its last digit stands just before `end`. Returns its first digit.
QChar *writeBackwards(QChar *end, quint64 value)
{
    do {
        *--end = QChar(u'0' + static_cast<char16_t>(value % 10));
        value /= 10;
    } while (value != 0);
    return end;
}

void writeTwoDigits(QChar *at, int value)
{
    at[0] = QChar(u'0' + static_cast<char16_t>(value / 10));
    at[1] = QChar(u'0' + static_cast<char16_t>(value % 10));
}

using HourBuffer = std::array<QChar, 16>;

/// Writes minutes as hour text at the end of a buffer.
QStringView writeHour(HourBuffer &buffer, int minutes)
{
    const qint64 magnitude = qAbs(qint64{minutes});
    QChar *const end = buffer.data() + buffer.size();
    writeTwoDigits(end - 2, static_cast<int>(magnitude % minutesPerHour));
    *(end - 3) = u'h';
    QChar *first = writeBackwards(end - 3, static_cast<quint64>(magnitude / minutesPerHour));
    if (minutes < 0) *--first = u'-';
    return {first, end};
}

/// Value of 1 to `maxDigits` ASCII digits; QChar::isDigit would let the digits of other scripts through.
std::optional<qint64> digits(QStringView text, qsizetype maxDigits)
{
    if (text.isEmpty() || text.size() > maxDigits) return std::nullopt;
    qint64 value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9') return std::nullopt;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

bool separatesHours(QChar c)
{
    return c == u'h' || c == u'H' || c == u':' || c == u'.' || c == u',';
}

qsizetype separatorAt(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i)
        if (separatesHours(text[i])) return i;
    return -1;
}

struct HourParts {
    QStringView hours;
    QStringView minutes;
};

HourParts splitHours(QStringView text)
{
    if (const qsizetype at = separatorAt(text); at >= 0) return {text.first(at), text.sliced(at + 1)};
    // A run of three or four digits is the hour as it is written on a time clock.
    if (text.size() == 3 || text.size() == 4) return {text.chopped(2), text.last(2)};
    if (text.size() <= 2) return {text, {}};
    return {};
}

/// Minutes of an hour text without a sign.
std::optional<qint64> unsignedHours(QStringView text)
{
    constexpr qsizetype widestHours = 8; // of the largest int of minutes
    const HourParts parts = splitHours(text);
    const auto hours = digits(parts.hours, widestHours);
    const auto minutes = parts.minutes.isEmpty() ? std::optional<qint64>(0) : digits(parts.minutes, 2);
    if (!hours || !minutes || *minutes >= minutesPerHour) return std::nullopt;
    return *hours * minutesPerHour + *minutes;
}

} // namespace

QString Foncgen::strz(int number, int width)
{
    std::array<QChar, 12> buffer;
    QChar *const end = buffer.data() + buffer.size();
    QChar *const first = writeBackwards(end, static_cast<quint64>(qAbs(qint64{number})));
    const qsizetype sign = number < 0 ? 1 : 0;
    const qsizetype count = end - first;

    QString text(qMax(qsizetype{width}, count + sign), u'0');
    if (sign != 0) text[0] = u'-';
    std::copy(first, end, text.end() - count);
    return text;
}

QString Foncgen::strn(double number, int decimals)
{
    constexpr int mostDecimals = 15;
    constexpr int widestInteger = std::numeric_limits<double>::max_exponent10 + 3;
    std::array<char, widestInteger + mostDecimals> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed, qBound(0, decimals, mostDecimals));
    QString text = QString::fromLatin1(buffer.data(), end - buffer.data());
    if (const qsizetype mark = text.indexOf(u'.'); mark >= 0) text.replace(mark, 1, QLocale().decimalPoint());
    return text;
}

QString Foncgen::dtoc(const QDate &date)
{
    constexpr int lastYear = 9999;
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < 1 || year > lastYear) return {};

    QString text(10, u'/');
    QChar *const at = text.data();
    writeTwoDigits(at, day);
    writeTwoDigits(at + 3, month);
    writeTwoDigits(at + 6, year / 100);
    writeTwoDigits(at + 8, year % 100);
    return text;
}

QDate Foncgen::ctod(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const qsizetype first = trimmed.indexOf(u'/');
    const qsizetype second = first < 0 ? -1 : trimmed.indexOf(u'/', first + 1);
    if (second < 0 || trimmed.size() - second != 5) return {};

    const auto day = digits(trimmed.first(first), 2);
    const auto month = digits(trimmed.sliced(first + 1, second - first - 1), 2);
    const auto year = digits(trimmed.sliced(second + 1), 4);
    if (!day || !month || !year) return {};
    return QDate(static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day));
}

QString Foncgen::fwhl(int minutes, int /*width*/)
{
    HourBuffer buffer;
    const QStringView text = writeHour(buffer, minutes);
    return text.toString();
}

void Foncgen::appendHour(QString &text, int minutes)
{
    HourBuffer buffer;
    text.append(writeHour(buffer, minutes));
}

int Foncgen::valhor(const QString &text)
{
    QStringView rest = QStringView(text).trimmed();
    const bool negative = rest.startsWith(u'-');
    if (negative) rest = rest.sliced(1);

    const auto magnitude = unsignedHours(rest);
    if (!magnitude) return horsPlage;
    const qint64 minutes = negative ? -*magnitude : *magnitude;
    const bool fits =
        minutes >= std::numeric_limits<int>::min() && minutes <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(minutes) : horsPlage;
}

int Foncgen::nosem(const QDate &date)
{
    return date.weekNumber();
}

QString Foncgen::nomjour(int weekday)
{
    switch (weekday) {
    case 1: return QStringLiteral("dimanche");
    case 2: return QStringLiteral("lundi");
    case 3: return QStringLiteral("mardi");
    case 4: return QStringLiteral("mercredi");
    case 5: return QStringLiteral("jeudi");
    case 6: return QStringLiteral("vendredi");
    case 7: return QStringLiteral("samedi");
    default: return {};
    }
}

} // namespace velmora
