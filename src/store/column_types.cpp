#include "store/column_types.h"

#include <array>

namespace velmora::store
{

namespace
{

constexpr std::size_t isoDateLength = 10;

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

} // namespace

void ColumnType<QDate>::bind(Statement &statement, int position, const QDate &value)
{
    if (!value.isValid() || value.year() < 0 || value.year() > 9999) return statement.bindNull(position);
    int year = 0;
    int month = 0;
    int day = 0;
    value.getDate(&year, &month, &day);
    std::array<char, isoDateLength> text{};
    putDigits(text.data(), year, 4);
    text[4] = '-';
    putDigits(text.data() + 5, month, 2);
    text[7] = '-';
    putDigits(text.data() + 8, day, 2);
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

void ColumnType<QDateTime>::bind(Statement &statement, int position, const QDateTime &value)
{
    if (!value.isValid()) return statement.bindNull(position);
    const QByteArray text = value.toString(Qt::ISODate).toLatin1();
    statement.bindText(position, {text.constData(), static_cast<std::size_t>(text.size())});
}

QDateTime ColumnType<QDateTime>::read(const Statement &statement, int column)
{
    const auto text = statement.columnText(column);
    if (text.empty()) return {};
    return QDateTime::fromString(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                                 Qt::ISODate);
}

} // namespace velmora::store
