#include "rules/pauses.h"

#include "rules/days.h"

#include <gtest/gtest.h>

namespace velmora::test
{
namespace
{

TEST(Pauses, AreJudgedSliceBySlice)
{
    struct Case {
        const char *what;
        int pause;
        std::vector<int> ends;
        bool kept;
    };
    const Case cases[] = {
        {"no rule", 0, {480, 1200}, true},
        {"six hours in one slice", 20, {480, 840}, true},
        {"a minute more", 20, {480, 841}, false},
        {"a break of the minimum", 30, {480, 720, 750, 990}, true},
        {"a minute less", 30, {480, 720, 749, 989}, false},
        {"joined slices are no break", 30, {480, 660, 660, 900}, false},
        {"joined slices up to six hours", 30, {480, 660, 660, 840}, true},
        {"across midnight", 30, {1200, 1439, 30, 240}, true},
        {"a night without a break", 30, {1320, 1440, 0, 300}, false},
        {"a second break that is too short", 30, {480, 720, 780, 900, 910, 930}, false},
        {"twelve hours", 60, {360, 600, 660, 900, 960, 1200}, true},
        {"beyond, with two breaks that don't come up to the minimum and the margin",
         10,
         {0, 300, 310, 610, 620, 820},
         false},
        // The first break counts again for the empty slice behind it.
        // A slice that joins the one before leaves the end of the latter where it was.
        {"a joined slice is measured from its first part's end",
         20,
         {0, 60, 60, 240, 200, 260, 280, 640, 660, 800},
         false},
        {"the same with an empty slice between", 10, {0, 300, 310, 610, 610, 610, 620, 820}, true},
    };
    for (const Case &one : cases) {
        JourSit day;
        int *const ends[]{&day.hdeb1, &day.hfin1, &day.hdeb2, &day.hfin2, &day.hdeb3, &day.hfin3,
                          &day.hdeb4, &day.hfin4, &day.hdeb5, &day.hfin5, &day.hdeb6, &day.hfin6};
        for (std::size_t i = 0; i < one.ends.size(); ++i)
            *ends[i] = one.ends[i];
        EXPECT_EQ(pauseok(day, one.pause), one.kept) << one.what;
    }
}

} // namespace
} // namespace velmora::test
