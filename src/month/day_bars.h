#pragma once

#include "entry/hour_bar.h"

#include <QRgb>
#include <QString>

#include <vector>

// One day of many lines as bars on a common scale of 24 hours: where they lie. Positions are minutes from
// the scale's left edge, 0 to 1440.
namespace velmora
{

/// The hours that a scale of 24 hours bears. A tick stands at every full hour but its edges.
using Graduations = std::vector<Graduation>;

/// The zoom's scale, from 4h00 to 4h00 of the next day.
inline constexpr int debutZoom = 240;
[[nodiscard]] const Graduations &graduationsZoom();

/// A scale from midnight to midnight.
[[nodiscard]] const Graduations &graduationsJour();

/// The pixel of a position on a scale that is so many pixels wide.
[[nodiscard]] int pixelDe(int position, int largeur);

enum class SorteBarre {
    Travail,
    Coupe,
    Nuit,      ///< work of the night that began the day before
    CoupeNuit, ///< a cut of that night
    Absence
};

/// A stretch of a bar.
struct Barre {
    SorteBarre sorte = SorteBarre::Travail;
    int de = 0;
    int a = 0;
    QRgb fond = 0; ///< of an absence: its code's colours
    QRgb encre = 0;
    QString texte{}; ///< written on it
};

/// The times that make up a bar. A time below the start is of the next day, and equal ends of a cut are none.
struct HeuresBarre {
    int heurdeb = 0;
    int hideb = 0;
    int hifin = 0;
    int heurfin = 0;
    int hideb2 = 0;
    int hifin2 = 0;
};

/// The stretches of work and of cuts between them, in minutes from the midnight of their day. They may pass
/// 1440.
[[nodiscard]] std::vector<Barre> barresDe(const HeuresBarre &heures);

/// The same so many minutes further on; what leaves the scale is cut off.
[[nodiscard]] std::vector<Barre> decale(const std::vector<Barre> &barres, int minutes);

/// The stretches of work on a scale from midnight to midnight. What passes midnight goes on from its left
/// edge, and cuts leave a gap.
[[nodiscard]] std::vector<Barre> barresSurLHorloge(const HeuresBarre &heures);

} // namespace velmora
