#include "store/column_types.h"

#include <array>

namespace velmora::store
{

namespace
{

constexpr std::size_t isoDateLength = 10;
constexpr std::size_t isoMomentLength = 19;

/// The digits of `text` from `first` on as a number, or -1.
int digits(std::string_view text, std::size_t first, std::size_t count)
{
    int value = 0;
    for (std::size_t i = first; i < first + count; ++i) {
        if (text[i] < '0' || text[i] > '9') return -1;
        value = value * 10 + (text[i] - '0');
    }
    return value;
}

void putDigits(char *target, int value, int count)
{
    for (int i = count - 1; i >= 0; --i, value /= 10)
        target[i] = static_cast<char>('0' + value % 10);
}

void putDate(char *target, const QDate &value)
{
    int year = 0;
    int month = 0;
    int day = 0;
    value.getDate(&year, &month, &day);
    putDigits(target, year, 4);
    target[4] = '-';
    putDigits(target + 5, month, 2);
    target[7] = '-';
    putDigits(target + 8, day, 2);
}

/// "08:15:00" within `text`, from `first` on; an invalid time for anything else.
QTime readTime(std::string_view text, std::size_t first)
{
    if (text[first + 2] != ':' || text[first + 5] != ':') return {};
    return {digits(text, first, 2), digits(text, first + 3, 2), digits(text, first + 6, 2)};
}

} // namespace

void ColumnType<QDate>::bind(Statement &statement, int position, const QDate &value)
{
    if (!value.isValid() || value.year() < 0 || value.year() > 9999) return statement.bindNull(position);
    std::array<char, isoDateLength> text{};
    putDate(text.data(), value);
    statement.bindText(position, {text.data(), text.size()});
}

QDate ColumnType<QDate>::read(const Statement &statement, int column)
{
    const auto text = statement.columnText(column);
    if (text.size() < isoDateLength || text[4] != '-' || text[7] != '-') return {};
    const int year = digits(text, 0, 4);
    // Years below 0 are dates too, so what is no number has to be told apart.
    if (year < 0) return {};
    return {year, digits(text, 5, 2), digits(text, 8, 2)};
}

// Moments are taken apart by hand: Qt's text forms ask the machine for its time zone at each of them.
void ColumnType<QDateTime>::bind(Statement &statement, int position, const QDateTime &value)
{
    const QDate date = value.date();
    const QTime time = value.time();
    if (!value.isValid() || date.year() < 0 || date.year() > 9999) return statement.bindNull(position);
    std::array<char, isoMomentLength> text{};
    putDate(text.data(), date);
    text[10] = 'T';
    putDigits(text.data() + 11, time.hour(), 2);
    text[13] = ':';
    putDigits(text.data() + 14, time.minute(), 2);
    text[16] = ':';
    putDigits(text.data() + 17, time.second(), 2);
    statement.bindText(position, {text.data(), text.size()});
}

QDateTime ColumnType<QDateTime>::read(const Statement &statement, int column)
{
    const auto text = statement.columnText(column);
    if (text.empty()) return {};
    if (text.size() == isoMomentLength && text[10] == 'T') {
        const QDate date = ColumnType<QDate>::read(statement, column);
        const QTime time = readTime(text, 11);
        return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
    }
    return QDateTime::fromString(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                                 Qt::ISODate);
}

} // namespace velmora::store
