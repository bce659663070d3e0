#pragma once

#include <QColor>

// The fixed colours of the month form.
namespace velmora::palette
{

inline constexpr QRgb fond = 0xffffffff; ///< the grid's normal background and text
inline constexpr QRgb encre = 0xff20242a;
inline constexpr QRgb fondFixe = 0xffeceff3; ///< headers, totals and closed days
inline constexpr QRgb encreFixe = 0xff20242a;
inline constexpr QRgb fondSelection = 0xff2f6fb3;
inline constexpr QRgb encreSelection = 0xffffffff;
inline constexpr QRgb fondAujourdhui = 0xffff0000; ///< today's day label
inline constexpr QRgb encreAujourdhui = 0xffffffff;
inline constexpr QRgb bande1 = 0xffffffc0; ///< month bands, one month and the next
inline constexpr QRgb bande2 = 0xffffe0c0;
inline constexpr QRgb ferie = 0xfffdffea;
inline constexpr QRgb encreControle1 = 0xffc00000; ///< the mark of a failure that lies ahead
inline constexpr QRgb encreControle2 = 0xff1e7a34; ///< the mark of a line in order
inline constexpr QRgb fondTotal = 0xffdde6ee;      ///< the total row
inline constexpr QRgb encreTotal = 0xff12324f;

// Bars of a day.
inline constexpr QRgb barreTravail = 0xff4f8fd0;
inline constexpr QRgb barreCoupe = 0xffb3cdea;
inline constexpr QRgb barreNuit = 0xff4a4f86; ///< the night that the day before has begun
inline constexpr QRgb barreAbsence = 0xffe3ddd2;
inline constexpr QRgb traitHeure = 0xffe4e8ec; ///< full hours behind the bars
inline constexpr QRgb traitEchelle = 0xff7a8490;

} // namespace velmora::palette
