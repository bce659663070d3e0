#include "foncgen/gestext.h"

#include <QList>

namespace velmora
{

namespace
{

/// How an hour or a date is made: runs of digits of at most `widths`, between separators.
struct Groups {
    QChar separator;
    QList<int> widths;
    bool automatic; ///< the separator comes by itself
};

Groups groupsOf(const FieldRules &rules)
{
    if (rules.type == FieldType::Date) return {u'/', {2, 2, 4}, true};
    return {u'h', {rules.format > 1 ? rules.format - 1 : 2, 2}, rules.format > 1};
}

bool isGrouped(FieldType type)
{
    return type == FieldType::Hour || type == FieldType::Date;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9'; // the digits of other scripts are no digits of an hour
}

/// A typed or pasted character as the type writes it.
QChar mapped(FieldType type, QChar c)
{
    switch (type) {
    case FieldType::Hour: return QStringView(u"H:.,").contains(c) ? QChar(u'h') : c;
    case FieldType::Date: return QStringView(u".-").contains(c) ? QChar(u'/') : c;
    case FieldType::Capitals: return c.toUpper();
    default: return c;
    }
}

bool isPlainText(QChar c)
{
    return c.category() != QChar::Other_Control && c.category() != QChar::Separator_Line &&
           c.category() != QChar::Separator_Paragraph && !c.isNonCharacter() && !c.isSurrogate();
}

bool allowed(FieldType type, QChar c)
{
    switch (type) {
    case FieldType::Hour: return isDigit(c) || c == u'h';
    case FieldType::Date: return isDigit(c) || c == u'/';
    case FieldType::Number: return isDigit(c);
    default: return isPlainText(c);
    }
}

int mostSeparators(FieldType type)
{
    return type == FieldType::Date ? 2 : 1;
}

bool isSeparator(FieldType type, QChar c)
{
    return isGrouped(type) && !isDigit(c);
}

/// A group of digits that can still become a value: a wrong one is refused at the digit that spoils it.
bool isReachable(FieldType type, qsizetype group, QStringView digits)
{
    if (type == FieldType::Hour) return group == 0 || digits.isEmpty() || digits.front() <= u'5';
    if (group > 1 || digits.size() < 2) return true;
    const int value = digits.toInt();
    return value >= 1 && value <= (group == 0 ? 31 : 12);
}

bool isReachable(const FieldRules &rules, const Groups &groups, const QString &text)
{
    const auto parts = QStringView(text).split(groups.separator);
    if (parts.size() > groups.widths.size() || text.size() > rules.length) return false;
    for (qsizetype i = 0; i < parts.size(); ++i)
        if (parts[i].size() > groups.widths[i] || !isReachable(rules.type, i, parts[i])) return false;
    return true;
}

QString replacingSelection(const FieldView &field, QStringView insertion)
{
    const bool selected = field.selectionLength > 0;
    const qsizetype from = qBound(0, selected ? field.selectionStart : field.cursor, int(field.text.size()));
    QString text = field.text;
    return text.replace(from, selected ? field.selectionLength : 0, insertion.toString());
}

bool insertsAtEnd(const FieldView &field)
{
    const int from = field.selectionLength > 0 ? field.selectionStart : field.cursor;
    return from + field.selectionLength >= field.text.size();
}

/// `digit` with the separator that goes before or after it when it is typed at the end of the text.
QString withSeparator(const FieldView &field, const Groups &groups, QChar digit)
{
    const QString result = replacingSelection(field, QStringView(&digit, 1));
    const qsizetype group = result.count(groups.separator);
    if (!groups.automatic || !insertsAtEnd(field) || group + 1 >= groups.widths.size()) return digit;

    const qsizetype size = result.size() - (result.lastIndexOf(groups.separator) + 1);
    if (size > groups.widths[group]) return QString(groups.separator) + digit;
    if (size == groups.widths[group]) return QString(digit) + groups.separator;
    return digit;
}

bool followsDigit(const FieldView &field)
{
    const int from = field.selectionLength > 0 ? field.selectionStart : field.cursor;
    return from > 0 && from <= field.text.size() && isDigit(field.text[from - 1]);
}

FieldOutcome groupedKeyPress(const FieldView &field, const FieldRules &rules, QChar c)
{
    const Groups groups = groupsOf(rules);
    const bool separator = isSeparator(rules.type, c);
    if (separator && !followsDigit(field)) return {};

    const QString insertion = separator ? QString(c) : withSeparator(field, groups, c);
    if (!isReachable(rules, groups, replacingSelection(field, insertion))) return {};
    if (insertion.size() == 1) return {.key = c.unicode()};
    return {.insertion = insertion};
}

FieldOutcome keyPress(const FieldView &field, const FieldRules &rules, quint16 key)
{
    constexpr quint16 firstPrintable = u' ';
    constexpr quint16 delCharacter = 127;
    if (key == fieldkey::enter && field.next) return {};
    if (key < firstPrintable || key == delCharacter) return {.key = key};

    const QChar c = mapped(rules.type, QChar(key));
    if (!allowed(rules.type, c)) return {};
    if (isGrouped(rules.type)) return groupedKeyPress(field, rules, c);
    const bool room = field.text.size() - field.selectionLength < rules.length;
    if (!room) return {};
    return {.key = c.unicode()};
}

FieldMove moveFor(const FieldView &field, FieldType type, quint16 key)
{
    const bool shortField = isGrouped(type) || type == FieldType::Number;
    const bool leavesByCaret = shortField && field.selectionLength == 0;
    switch (key) {
    case fieldkey::enter:
    case fieldkey::down: return FieldMove::Next;
    case fieldkey::up: return FieldMove::Previous;
    case fieldkey::left: return leavesByCaret && field.cursor == 0 ? FieldMove::Previous : FieldMove::Stay;
    case fieldkey::right:
        return leavesByCaret && field.cursor >= field.text.size() ? FieldMove::Next : FieldMove::Stay;
    default: return FieldMove::Stay;
    }
}

FieldOutcome keyDown(const FieldView &field, FieldType type, quint16 key)
{
    const FieldMove move = moveFor(field, type, key);
    const bool possible =
        (move == FieldMove::Next && field.next) || (move == FieldMove::Previous && field.previous);
    if (!possible) return {.key = key};
    return {.move = move};
}

/// Length of the character at `i`: 2 for a surrogate pair, 0 for a lone half.
qsizetype characterLength(QStringView text, qsizetype i)
{
    if (!text[i].isSurrogate()) return 1;
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    return pair ? 2 : 0;
}

} // namespace

FieldOutcome gestext(const FieldView &field, const FieldRules &rules, QStringView event, quint16 key)
{
    if (event == u"GF") return {.key = key, .selectAll = true};
    if (event == u"CK") return {.key = key, .selectAll = field.justFocused && field.selectionLength == 0};
    if (event == u"KD") return keyDown(field, rules.type, key);
    if (event == u"KP") return keyPress(field, rules, key);
    return {.key = key};
}

QString admissible(FieldType type, int length, QStringView text)
{
    QString result;
    int separators = 0;
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype units = characterLength(text, i);
        const QStringView character = text.sliced(i, units);
        i += qMax<qsizetype>(units, 1);
        if (result.size() + units > length) break;
        if (units == 2 && (type == FieldType::Free || type == FieldType::Capitals)) result += character;
        if (units != 1) continue;
        const QChar c = mapped(type, character.front());
        if (!allowed(type, c) || (isSeparator(type, c) && ++separators > mostSeparators(type))) continue;
        result += c;
    }
    return result;
}

} // namespace velmora
