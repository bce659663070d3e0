#include "entry/hour_bar.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace velmora
{

TEST(HourBar, FirstSixHoursAndLastTwoTakeHalfTheRoom)
{
    const std::pair<int, double> cas[]{{-60, 0},   {0, 0},       {180, 108},   {360, 216},  {361, 217.2},
                                       {720, 648}, {1320, 1368}, {1380, 1404}, {1440, 1440}};
    for (const auto &[minutes, place] : cas)
        EXPECT_DOUBLE_EQ(posbarre(minutes), place) << minutes;
}

TEST(HourBar, NightScaleStandsElevenHoursBeforeTheClock)
{
    struct Cas {
        bool nuit;
        int a;
        int b;
        int de;
        int jusqua;
    };
    for (const Cas &cas :
         {Cas{false, 480, 720, 480, 720}, {true, 1320, 1800, 660, 1140}, {true, 1320, 360, 660, 1140}}) {
        const auto segment = tracetranche(cas.nuit, cas.a, cas.b);
        ASSERT_TRUE(segment);
        EXPECT_DOUBLE_EQ(segment->de, posbarre(cas.de));
        EXPECT_DOUBLE_EQ(segment->a, posbarre(cas.jusqua));
    }
    EXPECT_FALSE(tracetranche(false, 480, 480));
    EXPECT_FALSE(tracetranche(true, 1320, 1320));
}

TEST(HourBar, LabelsOfTheNightScaleAreElevenHoursAfterTheirPositions)
{
    for (const Graduation &graduation : echellenuit())
        EXPECT_EQ(QString::number((graduation.position + 660) / 60 % 24) + 'h', graduation.heure);
    for (const Graduation &graduation : echellejour())
        EXPECT_EQ(QString::number(graduation.position / 60) + 'h', graduation.heure);
}

TEST(HourBar, SlicePastTheRightEdgeIsCutOffAtTheBar)
{
    QImage image(200, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    peintTranche(painter, QRectF(20, 0, 144, 40), *tracetranche(false, 1320, 1800), Qt::blue);
    painter.end();
    const auto peint = [&](int x) { return image.pixelColor(x, 8) != QColor(Qt::white); };
    EXPECT_FALSE(peint(20 + 130));
    EXPECT_TRUE(peint(20 + 140));
    EXPECT_FALSE(peint(20 + 146));
}

} // namespace velmora
