#include "calendar/easter.h"

namespace velmora
{

QDate paques(int annee)
{
    const int a = annee % 19;
    const int b = annee / 100;
    const int c = annee % 100;
    const int d = b / 4;
    const int e = b - 4 * d;
    const int f = (b + 8) / 25;
    const int g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4;
    const int k = c - 4 * i;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int mois = (h + l - 7 * m + 114) / 31;
    const int jour = (h + l - 7 * m + 114) - 31 * mois + 1;
    return QDate(annee, mois, jour).addDays(1);
}

} // namespace velmora
