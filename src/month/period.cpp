#include "month/period.h"

#include "foncgen/foncgen.h"

namespace velmora
{

namespace
{

constexpr int joursAvant = 27;
constexpr int joursApres = 56;

QDate finDeMois(const QDate &date)
{
    return {date.year(), date.month(), date.daysInMonth()};
}

} // namespace

Periode periodeDuMois(int mois, int annee)
{
    Periode periode;
    periode.premier = Foncgen::ctod(QStringLiteral("01/") + QString::number(mois) + QLatin1Char('/') +
                                    QString::number(annee));
    if (!periode.premier.isValid()) return periode;
    const QDate debut = periode.premier.addDays(-joursAvant);
    const QDate fin = finDeMois(periode.premier.addDays(joursApres));
    periode.debgrille = debut.addDays(1 - debut.dayOfWeek());
    periode.fingrille = fin.addDays(7 - fin.dayOfWeek());
    periode.moisavant = debut.month();
    periode.moisvu = periode.premier.month();
    periode.moisapres = fin.month();
    return periode;
}

bool dansPeriode(const Ligne &ligne, const Periode &periode)
{
    return ligne.datefin >= periode.debgrille && ligne.datedeb <= periode.fingrille;
}

} // namespace velmora
