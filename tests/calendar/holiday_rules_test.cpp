#include "calendar/holiday_rules.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmora::test
{

TEST(HolidayRulesTest, EachRegionObservesItsRulesAndNoOther)
{
    const std::vector<int> observed[]{
        {1, 2, 3, 5, 7, 9, 10, 11, 13, 15, 16},
        {1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 13, 14, 15, 16, 18, 19},
        {1, 2, 3, 5, 7, 8, 9, 10, 11, 13, 14, 15, 16, 17, 18, 19},
        {1, 2, 3, 5, 7, 8, 9, 10, 11, 13, 14, 15, 16, 18, 19, 20},
        {1, 2, 3, 5, 7, 9, 10, 11, 13, 15, 21},
        {1, 2, 3, 5, 7, 9, 10, 11, 13, 15, 16},
        {1, 14, 22},
        {1, 2, 6, 7, 9, 10, 11, 13, 15, 16},
        {1, 11, 13, 14, 15, 16, 22, 23},
        {1, 11, 13, 14, 24, 25, 26, 27, 28, 29},
        {}, // no region
    };
    for (int region = -1; region <= 10; ++region) {
        std::vector<int> found;
        for (int rule = 1; rule <= nombreRegles; ++rule)
            if (regionferie(region, rule)) found.push_back(rule);
        EXPECT_EQ(found, observed[region < 0 ? 10 : region]) << region;
    }
}

TEST(HolidayRulesTest, DatesThatMoveStandStillOnTheirOwnMonday)
{
    struct Case {
        int rule;
        QDate date;
    };
    const Case cases[]{
        {24, {2027, 5, 24}}, {24, {2026, 5, 18}},  {24, {2020, 5, 18}},  // up to 24 May
        {26, {2025, 9, 1}},  {26, {2026, 9, 7}},   {26, {2024, 9, 2}},   // from 1 September
        {27, {2029, 10, 8}}, {27, {2026, 10, 12}}, {27, {2024, 10, 14}}, // the second from 1 October
        {12, {2026, 4, 5}},  {14, {2026, 4, 3}},   {18, {2026, 2, 17}},  {19, {2026, 2, 18}},
        {15, {2008, 5, 1}},  {16, {2026, 5, 25}},  {20, {2026, 6, 10}},  {4, {2026, 5, 22}},
        {8, {2026, 11, 2}},  {17, {2026, 5, 27}},  {21, {2026, 12, 20}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(dateferie(one.rule, one.date.year()), one.date) << "rule " << one.rule;
}

TEST(HolidayRulesTest, LabelsStayAsOddAsTheyAre)
{
    const std::pair<int, const char *> odd[]{
        {4, "Abolition Esclavage"},  {17, "Abolition Esclavage"}, {20, "Abolition esclavage"},
        {21, "Abolition esclavage"}, {2, "Fête du travail"},      {26, "Fête du Travail"},
        {23, "Fëte Nationale"},      {12, "Dimanche de Pâques"},  {8, "Jour des Défunts"},
        {18, "Mardi Gras"},          {19, "Mercredi des Cendres"}};
    for (const auto &[rule, label] : odd)
        EXPECT_EQ(libferie(rule), QString::fromUtf8(label)) << rule;
}

TEST(HolidayRulesTest, ARegionsLabelBeginsWithItsNumber)
{
    ASSERT_EQ(regions(),
              (QStringList{" 0 - France métropolitaine (Gl)", " 1 - Martinique", " 2 - Guadeloupe",
                           " 3 - Guyane", " 4 - Réunion", " 5 - Nelle Calédonie", " 6 - Alsace Lorraine",
                           " 7 - Belgique", " 8 - Suisse", " 9 - Canada"}));
    for (int region = 0; region < 10; ++region)
        EXPECT_EQ(regionDuLibelle(regions()[region]), region);
}

} // namespace velmora::test
