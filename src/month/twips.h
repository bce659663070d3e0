#pragma once

#include <QPaintDevice>
#include <QtMath>

namespace velmora
{

inline constexpr double twipsParPouce = 1440;

/// Twips as pixels of a device, at least 1 for a size above 0.
[[nodiscard]] inline int pixels(int twips, const QPaintDevice &device)
{
    return twips <= 0 ? 0 : qMax(1, qRound(twips * device.logicalDpiX() / twipsParPouce));
}

/// Pixels of a device as twips.
[[nodiscard]] inline int twips(double pixels, const QPaintDevice &device)
{
    return qRound(pixels * twipsParPouce / device.logicalDpiX());
}

} // namespace velmora
