#include "entry/hour_bar.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora
{

namespace
{

constexpr int finDuMatin = 360;   // 6h00: the hours before take half the room
constexpr int debutDuSoir = 1320; // 22h00: those after too
constexpr int decalageNuit = 660; // 11h00 stands at the left edge of the night scale
constexpr int minutesParHeure = 60;

constexpr double hauteurTrait = 7;
constexpr double hauteurPetitTrait = 4;
constexpr double margePiste = 2;

double abscisse(const QRectF &place, double unites)
{
    return place.left() + unites * place.width() / largeurBarre;
}

/// The band of the bar where slices are painted, over its ticks.
QRectF piste(const QRectF &place, const QFontMetricsF &metrics)
{
    return place.adjusted(0, margePiste, 0, -(metrics.height() + hauteurTrait + margePiste));
}

} // namespace

double posbarre(int minutes)
{
    if (minutes < 0) return 0;
    if (minutes == 0 || minutes == minutesParJour) return minutes;
    double y = minutes - finDuMatin / 2.0;
    if (minutes < finDuMatin) y = minutes / 2.0;
    if (minutes > debutDuSoir) y = (minutes - debutDuSoir) / 2.0 + debutDuSoir - finDuMatin / 2.0;
    return y * largeurBarre / 1200;
}

const Echelle &echellejour()
{
    static constexpr Echelle echelle{{{360, "6h"},
                                      {480, "8h"},
                                      {600, "10h"},
                                      {720, "12h"},
                                      {840, "14h"},
                                      {960, "16h"},
                                      {1080, "18h"},
                                      {1200, "20h"},
                                      {1320, "22h"}}};
    return echelle;
}

const Echelle &echellenuit()
{
    static constexpr Echelle echelle{{{360, "17h"},
                                      {480, "19h"},
                                      {600, "21h"},
                                      {720, "23h"},
                                      {840, "1h"},
                                      {960, "3h"},
                                      {1080, "5h"},
                                      {1200, "7h"},
                                      {1320, "9h"}}};
    return echelle;
}

std::optional<Segment> tracetranche(bool nuit, int a, int b)
{
    if (nuit) {
        a -= decalageNuit;
        b -= decalageNuit;
        if (b < a) b += minutesParJour;
    }
    if (a == b) return std::nullopt;
    return Segment{posbarre(a), posbarre(b)};
}

void peintEchelle(QPainter &painter, const QRectF &place, const Echelle &echelle, const QColor &couleur)
{
    const QFontMetricsF metrics(painter.font());
    const QRectF bande = piste(place, metrics);
    const double pied = bande.bottom() + 1;
    painter.setPen(QPen(couleur, 1));
    painter.drawLine(QPointF(place.left(), pied), QPointF(place.right(), pied));
    const auto trait = [&](int position, double hauteur) {
        const double x = std::round(abscisse(place, posbarre(position))) + 0.5;
        painter.drawLine(QPointF(x, pied), QPointF(x, pied + hauteur));
        return x;
    };
    for (const Graduation &graduation : echelle) {
        const double x = trait(graduation.position, hauteurTrait);
        const QString heure = QString::fromLatin1(graduation.heure);
        painter.drawText(
            QPointF(x - metrics.horizontalAdvance(heure) / 2, place.bottom() - metrics.descent()), heure);
        if (&graduation != &echelle.back()) trait(graduation.position + minutesParHeure, hauteurPetitTrait);
    }
}

void peintTranche(QPainter &painter, const QRectF &place, const Segment &segment, const QColor &couleur)
{
    const QRectF bande = piste(place, QFontMetricsF(painter.font()));
    const double gauche = std::max(abscisse(place, segment.de), place.left());
    const double droite = std::min(abscisse(place, segment.a), place.right());
    if (droite <= gauche) return;
    painter.setPen(QPen(couleur.darker(170), 1));
    painter.setBrush(couleur);
    painter.drawRect(
        QRectF(QPointF(gauche, bande.top()), QPointF(droite, bande.bottom())).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace velmora
