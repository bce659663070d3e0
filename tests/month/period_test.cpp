#include "month/period.h"

#include <gtest/gtest.h>

namespace velmora::test
{
namespace
{

TEST(PeriodTest, RunsFromTheMondayAheadOfTheMonthBeforeToTheSundayBehindTheMonthAfter)
{
    struct Case {
        int mois;
        int annee;
        QDate debut;
        QDate fin;
        int avant;
        int apres;
    };
    const Case cases[] = {
        {6, 2026, {2026, 5, 4}, {2026, 8, 2}, 5, 7},     {1, 2027, {2026, 11, 30}, {2027, 2, 28}, 12, 2},
        {3, 2026, {2026, 2, 2}, {2026, 5, 3}, 2, 4},     {3, 2025, {2025, 1, 27}, {2025, 5, 4}, 2, 4},
        {12, 2026, {2026, 11, 2}, {2027, 1, 31}, 11, 1},
    };
    for (const Case &one : cases) {
        const Periode periode = periodeDuMois(one.mois, one.annee);
        EXPECT_EQ(periode.debgrille, one.debut) << one.mois << '/' << one.annee;
        EXPECT_EQ(periode.fingrille, one.fin) << one.mois << '/' << one.annee;
        EXPECT_EQ(periode.moisavant, one.avant);
        EXPECT_EQ(periode.moisvu, one.mois);
        EXPECT_EQ(periode.moisapres, one.apres);
    }
    EXPECT_FALSE(periodeDuMois(13, 2026).premier.isValid());
}

TEST(PeriodTest, TakesALineThatTouchesEitherEndAndNoneBeyond)
{
    const Periode periode = periodeDuMois(6, 2026);
    struct Case {
        QDate from;
        QDate to;
        bool inside;
    };
    const Case cases[] = {
        {{2020, 1, 1}, {2026, 5, 3}, false}, {{2020, 1, 1}, {2026, 5, 4}, true},
        {{2026, 8, 2}, {2099, 1, 1}, true},  {{2026, 8, 3}, {2099, 1, 1}, false},
        {{2026, 6, 1}, {2026, 6, 2}, true},
    };
    for (const Case &one : cases) {
        Ligne ligne;
        ligne.datedeb = one.from;
        ligne.datefin = one.to;
        EXPECT_EQ(dansPeriode(ligne, periode), one.inside) << one.from.toString(Qt::ISODate).toStdString();
    }
}

} // namespace
} // namespace velmora::test
