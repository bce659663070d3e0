#include "foncgen/foncgen.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

namespace velmora
{
namespace
{

struct HourText {
    const char16_t *text;
    int minutes;
};

void PrintTo(const HourText &one, std::ostream *out)
{
    *out << testing::PrintToString(std::u16string(one.text));
}

class Valhor : public testing::TestWithParam<HourText>
{
};

TEST_P(Valhor, MisreadsWhatAPersonTypes)
{
    const QString text = QStringView(GetParam().text).toString();
    EXPECT_EQ(Foncgen::valhor(text), GetParam().minutes) << qPrintable(text);
}

constexpr int none = Foncgen::horsPlage;

INSTANTIATE_TEST_SUITE_P(Hours, Valhor,
                         testing::Values(HourText{u"8h20", 500}, HourText{u"08h20", 500},
                                         HourText{u"8h", 480}, HourText{u"8h2", 482}, HourText{u"8:20", 500},
                                         HourText{u"8.20", 500}, HourText{u"8,20", 500},
                                         HourText{u"0820", 500}, HourText{u"820", 500}, HourText{u"8", 480},
                                         HourText{u"24", 1440}, HourText{u"8H20", 500},
                                         HourText{u"  8h20\t", 500}, HourText{u"24h00", 1440},
                                         HourText{u"25h00", 1500}, HourText{u"152h30", 9150},
                                         HourText{u"-0h15", -15}, HourText{u"0h00", 0}));

INSTANTIATE_TEST_SUITE_P(Nonsense, Valhor,
                         testing::Values(HourText{u"", none}, HourText{u"   ", none}, HourText{u"h", none},
                                         HourText{u"h20", none}, HourText{u"-", none},
                                         HourText{u"--8h20", none}, HourText{u"+8h20", none},
                                         HourText{u"8h60", none}, HourText{u"0860", none},
                                         HourText{u"8h200", none}, HourText{u"8h2h0", none},
                                         HourText{u"8 h 20", none}, HourText{u"12345", none},
                                         HourText{u"midi", none}, HourText{u"\u0668h\u0662\u0660", none},
                                         HourText{u"\uFF18h20", none}, HourText{u"8\u0007h20", none},
                                         HourText{u"8h\xD83D", none}, HourText{u"99999999h59", none}));

TEST(ValhorHostile, OverflowsOnALongText)
{
    EXPECT_EQ(Foncgen::valhor(QString(10'000, u'9')), none);
    EXPECT_EQ(Foncgen::valhor(QString(10'000, u'9') + QStringLiteral("h00")), none);
    EXPECT_EQ(Foncgen::valhor(QStringLiteral("8h") + QString(10'000, u'0')), none);
    EXPECT_FALSE(Foncgen::ctod(QString(10'000, u'/')).isValid());
}

TEST(Fwhl, LosesADurationOnTheWayBack)
{
    for (int minutes = -20'000; minutes <= 20'000; ++minutes)
        ASSERT_EQ(Foncgen::valhor(Foncgen::fwhl(minutes, 7)), minutes);
    for (const int minutes : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(Foncgen::valhor(Foncgen::fwhl(minutes, 7)), minutes);
}

TEST(Fwhl, PadsAZeroThatCallersCompareWith)
{
    EXPECT_EQ(Foncgen::fwhl(0, 5), QStringLiteral("0h00"));
    EXPECT_EQ(Foncgen::fwhl(500, 7), QStringLiteral("8h20"));
    EXPECT_EQ(Foncgen::fwhl(-15, 7), QStringLiteral("-0h15"));
}

TEST(Dates, DifferAfterTextAndBack)
{
    const QDate last(2199, 12, 31);
    for (QDate date(1900, 1, 1); date <= last; date = date.addDays(1))
        ASSERT_EQ(Foncgen::ctod(Foncgen::dtoc(date)), date) << date.toJulianDay();
    EXPECT_EQ(Foncgen::dtoc(QDate(2026, 2, 3)), QStringLiteral("03/02/2026"));
}

TEST(Dates, AreWrittenWithBrokenYears)
{
    EXPECT_EQ(Foncgen::dtoc(QDate()), QString());
    EXPECT_EQ(Foncgen::dtoc(QDate(-1, 1, 1)), QString());
    EXPECT_EQ(Foncgen::dtoc(QDate(10'000, 1, 1)), QString());
    EXPECT_EQ(Foncgen::dtoc(QDate(12, 1, 1)), QStringLiteral("01/01/0012"));
}

TEST(Dates, AreRefusedWithOneDigit)
{
    EXPECT_EQ(Foncgen::ctod(QStringLiteral("01/6/2026")), QDate(2026, 6, 1));
    EXPECT_EQ(Foncgen::ctod(QStringLiteral(" 1/6/2026 ")), QDate(2026, 6, 1));
}

TEST(Dates, AreReadFromNonsense)
{
    for (const char16_t *text :
         {u"", u"/", u"//", u"///", u"1/6", u"1/6/26", u"1/6/20266", u"31/02/2026", u"0/6/2026", u"1//2026",
          u"2026-06-01", u"1/6/2026/", u"-1/6/2026", u"\u0661/6/2026", u"001/6/2026"})
        EXPECT_FALSE(Foncgen::ctod(QString::fromUtf16(text)).isValid())
            << qPrintable(QString::fromUtf16(text));
}

TEST(Strz, CutsOrMispadsANumber)
{
    EXPECT_EQ(Foncgen::strz(5, 2), QStringLiteral("05"));
    EXPECT_EQ(Foncgen::strz(0, 3), QStringLiteral("000"));
    EXPECT_EQ(Foncgen::strz(123, 2), QStringLiteral("123"));
    EXPECT_EQ(Foncgen::strz(7, -4), QStringLiteral("7"));
    EXPECT_EQ(Foncgen::strz(-5, 4), QStringLiteral("-005"));
    EXPECT_EQ(Foncgen::strz(std::numeric_limits<int>::min(), 2), QStringLiteral("-2147483648"));
}

class Strn : public testing::Test
{
protected:
    ~Strn() override { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

TEST_F(Strn, GroupsThousandsOrForgetsTheLocalesMark)
{
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(Foncgen::strn(7.5, 2), QStringLiteral("7,50"));
    EXPECT_EQ(Foncgen::strn(12345.678, 1), QStringLiteral("12345,7"));
    EXPECT_EQ(Foncgen::strn(12345.678, 0), QStringLiteral("12346"));
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(Foncgen::strn(-7.5, 2), QStringLiteral("-7.50"));
}

TEST_F(Strn, OverrunsItsBuffer)
{
    const double most = std::numeric_limits<double>::max();
    EXPECT_EQ(Foncgen::strn(-most, 1000).size(), 1 + 309 + 1 + 15);
    EXPECT_EQ(Foncgen::strn(2.6, -1), QStringLiteral("3"));
}

TEST(Nosem, CountsFromNewYearInsteadOfIso)
{
    EXPECT_EQ(Foncgen::nosem(QDate(2026, 1, 1)), 1);
    EXPECT_EQ(Foncgen::nosem(QDate(2027, 1, 1)), 53);
    EXPECT_EQ(Foncgen::nosem(QDate(2024, 12, 30)), 1);
}

TEST(Nomjour, StartsTheWeekOnMonday)
{
    EXPECT_EQ(Foncgen::nomjour(1), QStringLiteral("dimanche"));
    EXPECT_EQ(Foncgen::nomjour(7), QStringLiteral("samedi"));
    EXPECT_EQ(Foncgen::nomjour(0), QString());
    EXPECT_EQ(Foncgen::nomjour(8), QString());
}

} // namespace
} // namespace velmora
