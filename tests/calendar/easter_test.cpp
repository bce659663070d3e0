#include "calendar/easter.h"

#include <gtest/gtest.h>

namespace velmora::test
{

TEST(EasterTest, GivesTheMondayAfterThePublishedSundays)
{
    const QDate sundays[]{{2000, 4, 23}, {2008, 3, 23}, {2011, 4, 24},
                          {2024, 3, 31}, {2038, 4, 25}, {1818, 3, 22}};
    for (const QDate &sunday : sundays)
        EXPECT_EQ(paques(sunday.year()), sunday.addDays(1)) << sunday.year();
}

} // namespace velmora::test
