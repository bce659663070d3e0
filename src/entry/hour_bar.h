#pragma once

#include "entry/slices.h"

#include <QColor>
#include <QRectF>

#include <array>
#include <optional>

class QPainter;

namespace velmora
{

/// Units of the hour bar from its left to its right edge.
inline constexpr double largeurBarre = 1440;

/// Place of a moment on the bar, 0 to `largeurBarre` for 0 to 1440 minutes. The bar isn't linear: the first
/// six hours and the last two take half the room of the others.
[[nodiscard]] double posbarre(int minutes);

/// A labelled hour of a scale.
struct Graduation {
    int position; ///< minutes on the scale, for `posbarre`
    const char *heure;
};

/// The two scales: the day's, and the night's, whose positions are 660 minutes before the clock.
using Echelle = std::array<Graduation, 9>;
[[nodiscard]] const Echelle &echellejour();
[[nodiscard]] const Echelle &echellenuit();

/// The part of the bar that a slice covers, in its units. It may pass the right edge.
struct Segment {
    double de = 0;
    double a = 0;
};

/// Where the slice from `a` to `b` (minutes from the first midnight) lies on the day or the night scale.
/// Nothing for an empty slice.
[[nodiscard]] std::optional<Segment> tracetranche(bool nuit, int a, int b);

/// Paints a scale with its ticks and labels, in the painter's font, over `place`.
void peintEchelle(QPainter &painter, const QRectF &place, const Echelle &echelle, const QColor &couleur);

/// Paints a slice over a bar whose scale lies on `place`; what passes its edges is left out.
void peintTranche(QPainter &painter, const QRectF &place, const Segment &segment, const QColor &couleur);

} // namespace velmora
