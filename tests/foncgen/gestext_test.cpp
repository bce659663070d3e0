#include "foncgen/gestext.h"

#include <gtest/gtest.h>

namespace velmora
{
namespace
{

constexpr FieldRules hour{FieldType::Hour, 5, 3};
constexpr FieldRules date{FieldType::Date, 10, 0};
constexpr FieldRules capitals{FieldType::Capitals, 15, 0};
constexpr FieldRules freeText{FieldType::Free, 30, 0};
constexpr FieldRules number{FieldType::Number, 2, 0};

FieldView at(const QString &text, int cursor)
{
    return {.text = text, .cursor = cursor, .previous = true, .next = true};
}

/// The field after one key, as a text control would show it.
FieldView pressed(FieldView field, const FieldRules &rules, QChar c)
{
    const FieldOutcome outcome = gestext(field, rules, u"KP", c.unicode());
    const QString insertion =
        outcome.insertion.isEmpty() && outcome.key != 0 ? QString(QChar(outcome.key)) : outcome.insertion;
    if (insertion.isEmpty()) return field;
    const int from = field.selectionLength > 0 ? field.selectionStart : field.cursor;
    field.text.replace(from, field.selectionLength, insertion);
    field.cursor = from + int(insertion.size());
    field.selectionLength = 0;
    return field;
}

QString typed(const FieldRules &rules, const QString &keys, FieldView field = {})
{
    for (const QChar c : keys)
        field = pressed(field, rules, c);
    return field.text;
}

/// The text unit by unit: a conversion would mend lone surrogates.
QString verbatim(const char16_t *units)
{
    return QStringView(units).toString();
}

struct Typing {
    const FieldRules *rules;
    const char16_t *keys;
    const char16_t *text;
};

void PrintTo(const Typing &one, std::ostream *out)
{
    *out << testing::PrintToString(std::u16string(one.keys));
}

class TypedText : public testing::TestWithParam<Typing>
{
};

TEST_P(TypedText, DiffersFromWhatTheTypeAllows)
{
    const QString keys = verbatim(GetParam().keys);
    EXPECT_EQ(typed(*GetParam().rules, keys), verbatim(GetParam().text)) << qPrintable(keys);
}

INSTANTIATE_TEST_SUITE_P(Hours, TypedText,
                         testing::Values(Typing{&hour, u"0820", u"08h20"}, Typing{&hour, u"8h20", u"8h20"},
                                         Typing{&hour, u"24h00", u"24h00"}, Typing{&hour, u"2400", u"24h00"},
                                         Typing{&hour, u"8H20", u"8h20"}, Typing{&hour, u"8:20", u"8h20"},
                                         Typing{&hour, u"8.20", u"8h20"}, Typing{&hour, u"8,20", u"8h20"},
                                         Typing{&hour, u"08:20", u"08h20"}, Typing{&hour, u"8hh20", u"8h20"},
                                         Typing{&hour, u"h8h20", u"8h20"}, Typing{&hour, u"8h75", u"8h5"},
                                         Typing{&hour, u"082099", u"08h20"}, Typing{&hour, u"8h205", u"8h20"},
                                         Typing{&hour, u"a8b-/ ", u"8"}, Typing{&hour, u"\u06688h", u"8h"}));

INSTANTIATE_TEST_SUITE_P(
    Dates, TypedText,
    testing::Values(Typing{&date, u"03062026", u"03/06/2026"}, Typing{&date, u"3/6/2026", u"3/6/2026"},
                    Typing{&date, u"03/06/2026", u"03/06/2026"}, Typing{&date, u"3.6-2026", u"3/6/2026"},
                    Typing{&date, u"/3//6/2026", u"3/6/2026"}, Typing{&date, u"321", u"31/"},
                    Typing{&date, u"00", u"0"}, Typing{&date, u"0113", u"01/1"},
                    Typing{&date, u"030620267/", u"03/06/2026"}, Typing{&date, u"3 juin", u"3"}));

INSTANTIATE_TEST_SUITE_P(Texts, TypedText,
                         testing::Values(Typing{&capitals, u"été œuf", u"ÉTÉ ŒUF"},
                                         Typing{&capitals, u"abcdefghijklmnopqrst", u"ABCDEFGHIJKLMNO"},
                                         Typing{&freeText, u"Fête/1,5", u"Fête/1,5"},
                                         Typing{&freeText, u"a\u0085\u2028b\xD83D", u"ab"},
                                         Typing{&number, u"1h2.34", u"12"}, Typing{&number, u"\u0661", u""}));

TEST(TypedHour, ForgetsTheSeparatorAfterItWasErased)
{
    EXPECT_EQ(typed(hour, QStringLiteral("20"), at(QStringLiteral("08"), 2)), QStringLiteral("08h20"));
}

TEST(TypedHour, InsertsTheSeparatorInTheMiddle)
{
    EXPECT_EQ(typed(hour, QStringLiteral("1"), at(QStringLiteral("8h20"), 0)), QStringLiteral("18h20"));
    EXPECT_EQ(typed(hour, QStringLiteral("09"), at(QStringLiteral("h20"), 0)), QStringLiteral("09h20"));
    EXPECT_EQ(typed(hour, QStringLiteral("h"), at(QStringLiteral("820"), 1)), QStringLiteral("8h20"));
}

TEST(TypedHour, InsertsTheSeparatorWithoutAFormat)
{
    EXPECT_EQ(typed({FieldType::Hour, 5, 0}, QStringLiteral("08h20")), QStringLiteral("08h20"));
    EXPECT_EQ(typed({FieldType::Hour, 5, 0}, QStringLiteral("08")), QStringLiteral("08"));
}

TEST(TypedText, IsRefusedOverASelectionOfAFullField)
{
    FieldView full = at(QStringLiteral("08h20"), 5);
    full.selectionLength = 5;
    EXPECT_EQ(typed(hour, QStringLiteral("9h"), full), QStringLiteral("9h"));
    FieldView twoDigits = at(QStringLiteral("12"), 2);
    twoDigits.selectionLength = 2;
    EXPECT_EQ(typed(number, QStringLiteral("7"), twoDigits), QStringLiteral("7"));
}

TEST(KeyPress, SwallowsTheControlCharacters)
{
    for (const FieldRules *rules : {&hour, &date, &capitals, &freeText, &number})
        for (const quint16 key : {1, 3, 8, 22, 24, 26, 27, 127}) {
            const FieldOutcome outcome = gestext(at(QStringLiteral("12"), 2), *rules, u"KP", key);
            EXPECT_EQ(outcome, (FieldOutcome{.key = key}));
        }
}

struct Step {
    quint16 key;
    int cursor;
    FieldMove move;
};

void expectSteps(const FieldRules &rules, std::initializer_list<Step> steps)
{
    for (const Step &step : steps) {
        const FieldOutcome outcome = gestext(at(QStringLiteral("12"), step.cursor), rules, u"KD", step.key);
        EXPECT_EQ(outcome.move, step.move) << "key " << step.key << " at " << step.cursor;
        EXPECT_EQ(outcome.key, step.move == FieldMove::Stay ? step.key : 0);
    }
}

TEST(KeyDown, LeavesAFieldAtTheWrongPlace)
{
    expectSteps(number, {{fieldkey::enter, 0, FieldMove::Next},
                         {fieldkey::down, 1, FieldMove::Next},
                         {fieldkey::up, 1, FieldMove::Previous},
                         {fieldkey::left, 0, FieldMove::Previous},
                         {fieldkey::left, 1, FieldMove::Stay},
                         {fieldkey::right, 1, FieldMove::Stay},
                         {fieldkey::right, 2, FieldMove::Next},
                         {fieldkey::backspace, 0, FieldMove::Stay},
                         {fieldkey::del, 2, FieldMove::Stay},
                         {fieldkey::home, 0, FieldMove::Stay},
                         {fieldkey::end, 2, FieldMove::Stay},
                         {fieldkey::escape, 0, FieldMove::Stay}});
}

TEST(KeyDown, LeavesATextByTheCaret)
{
    expectSteps(freeText, {{fieldkey::enter, 1, FieldMove::Next},
                           {fieldkey::left, 0, FieldMove::Stay},
                           {fieldkey::right, 2, FieldMove::Stay}});
}

TEST(KeyDown, CollapsesNoSelectionButLeaves)
{
    FieldView selected = at(QStringLiteral("08h20"), 5);
    selected.selectionLength = 5;
    EXPECT_EQ(gestext(selected, hour, u"KD", fieldkey::right), (FieldOutcome{.key = fieldkey::right}));
}

TEST(KeyDown, SwallowsEnterWithNowhereToGo)
{
    FieldView alone = at(QStringLiteral("12"), 2);
    alone.next = alone.previous = false;
    for (const quint16 key : {fieldkey::enter, fieldkey::down, fieldkey::up, fieldkey::right})
        EXPECT_EQ(gestext(alone, number, u"KD", key), (FieldOutcome{.key = key}));
    EXPECT_EQ(gestext(alone, number, u"KP", fieldkey::enter).key, fieldkey::enter);
    EXPECT_EQ(gestext(at(QStringLiteral("12"), 2), number, u"KP", fieldkey::enter).key, 0);
}

TEST(Click, TakesTheCaretFromTheUser)
{
    FieldView field = at(QStringLiteral("08h20"), 2);
    EXPECT_TRUE(gestext(field, hour, u"GF", 0).selectAll);
    EXPECT_FALSE(gestext(field, hour, u"CK", 0).selectAll);
    field.justFocused = true;
    EXPECT_TRUE(gestext(field, hour, u"CK", 0).selectAll);
    field.selectionLength = 2;
    EXPECT_FALSE(gestext(field, hour, u"CK", 0).selectAll);
}

TEST(Admissible, LetsThePastedTextBreakTheType)
{
    EXPECT_EQ(admissible(FieldType::Hour, 5, u" 8:20\n"), QStringLiteral("8h20"));
    EXPECT_EQ(admissible(FieldType::Hour, 5, u"8h20h30"), QStringLiteral("8h203"));
    EXPECT_EQ(admissible(FieldType::Hour, 5, u"h20"), QStringLiteral("h20"));
    EXPECT_EQ(admissible(FieldType::Date, 10, u"le 03-06.2026"), QStringLiteral("03/06/2026"));
    EXPECT_EQ(admissible(FieldType::Capitals, 5, u"élève\tun"), QStringLiteral("ÉLÈVE"));
    EXPECT_EQ(admissible(FieldType::Free, 30, u"a\r\nb\u0007"), QStringLiteral("ab"));
    EXPECT_EQ(admissible(FieldType::Number, 2, u"n° 123"), QStringLiteral("12"));
    EXPECT_EQ(admissible(FieldType::Free, 0, u"abc"), QString());
    EXPECT_EQ(admissible(FieldType::Free, -1, u"abc"), QString());
}

TEST(Admissible, PartsASurrogatePair)
{
    const QString smile = QString::fromUcs4(U"\U0001F600", 1);
    EXPECT_EQ(admissible(FieldType::Free, 3, QString(u'a') + smile), QString(u'a') + smile);
    EXPECT_EQ(admissible(FieldType::Free, 2, QString(u'a') + smile), QStringLiteral("a"));
    EXPECT_EQ(admissible(FieldType::Free, 9, QStringView(u"\xDE00x\xD83D")), QStringLiteral("x"));
    EXPECT_EQ(admissible(FieldType::Number, 9, smile), QString());
}

TEST(Admissible, ChangesItsOwnResult)
{
    QString every;
    for (char32_t unit = 0; unit < 0x10000; ++unit)
        every += QChar(char16_t(unit));
    for (const FieldRules *rules : {&hour, &date, &capitals, &freeText, &number}) {
        const QString once = admissible(rules->type, 0x10000, every);
        EXPECT_EQ(admissible(rules->type, 0x10000, once), once);
    }
}

} // namespace
} // namespace velmora
