#include "session/values.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

namespace velmora
{
namespace
{

struct DurationCase {
    std::optional<double> before;
    const char *text;
    std::optional<double> after;
};

void PrintTo(const DurationCase &one, std::ostream *out)
{
    *out << one.text;
}

class Hdeci : public testing::TestWithParam<DurationCase>
{
};

TEST_P(Hdeci, LeavesAnotherValueThanItsReaderExpects)
{
    const DurationCase &expected = GetParam();
    std::optional<double> minutes = expected.before;
    EXPECT_EQ(hdeci(minutes, false), QString::fromLatin1(expected.text));
    EXPECT_EQ(minutes, expected.after);
}

INSTANTIATE_TEST_SUITE_P(Values, Hdeci,
                         testing::Values(DurationCase{0, "0h00", 0}, DurationCase{59, "0h59", 59},
                                         DurationCase{60, "1h00", 60}, DurationCase{-15, "-0h15", -15},
                                         DurationCase{9150, "152h30", 9150}, DurationCase{425, "7h05", 425},
                                         DurationCase{std::nullopt, "0h00", 0},
                                         DurationCase{59.9, "0h59", 59}, DurationCase{-15.5, "-0h16", -16},
                                         DurationCase{std::numeric_limits<double>::quiet_NaN(), "0h00", 0},
                                         DurationCase{1e300, "35791394h07", 1e300}));

class Hundredths : public testing::Test
{
protected:
    Hundredths() { QLocale::setDefault(QLocale::c()); }
    ~Hundredths() override { QLocale::setDefault(m_before); }

private:
    QLocale m_before;
};

TEST_F(Hundredths, RoundAnotherWayThanHalfUp)
{
    EXPECT_EQ(hdeci(455, true), QStringLiteral("7.58"));
    EXPECT_EQ(hdeci(20, true), QStringLiteral("0.33"));
    EXPECT_EQ(hdeci(0, true), QStringLiteral("0.00"));
    EXPECT_EQ(hdeci(-15, true), QStringLiteral("-0.25"));
    std::optional<double> half = 0.3; // half a hundredth of an hour
    EXPECT_EQ(hdeci(half, true), QStringLiteral("0.01"));
    std::optional<double> minusHalf = -0.3;
    EXPECT_EQ(hdeci(minusHalf, true), QStringLiteral("0.00"));
}

TEST_F(Hundredths, ChangeTheirArgument)
{
    std::optional<double> fraction = 455.5;
    EXPECT_EQ(hdeci(fraction, true), QStringLiteral("7.59"));
    EXPECT_EQ(fraction, 455.5);
    std::optional<double> null;
    EXPECT_EQ(hdeci(null, true), QString());
    EXPECT_FALSE(null.has_value());
}

TEST(Lettrejour, TellsTuesdayFromWednesdayOrShiftsTheWeek)
{
    const char *expected[] = {"D04", "L05", "M06", "M07", "J08", "V09", "S10"};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(lettrejour(QDate(2026, 1, 4 + i)), QString::fromLatin1(expected[i]));
    EXPECT_EQ(lettrejour(QDate()), QString());
}

TEST(Periodetexte, RepeatsOrDropsAPartOfTheDates)
{
    const QDate third(2026, 6, 3);
    EXPECT_EQ(periodetexte(third, third), QStringLiteral(" le 03/06/2026"));
    EXPECT_EQ(periodetexte(third, QDate(2026, 6, 17)), QStringLiteral(" du 03 au 17/06/2026"));
    EXPECT_EQ(periodetexte(QDate(2026, 2, 28), QDate(2026, 3, 4)), QStringLiteral(" du 28/02 au 04/03/2026"));
    EXPECT_EQ(periodetexte(QDate(2025, 12, 28), QDate(2026, 1, 2)),
              QStringLiteral(" du 28/12/2025 au 02/01/2026"));
    EXPECT_EQ(periodetexte(QDate(2025, 6, 3), third), QStringLiteral(" du 03/06/2025 au 03/06/2026"));
}

} // namespace
} // namespace velmora
