#include "entry/request.h"

namespace velmora
{

QString titreSaisie(const QString &saisnom, const QString &saisdeb, const QString &saisfin)
{
    if (saisdeb == saisfin) return saisnom + QStringLiteral(" le ") + saisdeb;
    return saisnom + QStringLiteral(" du ") + saisdeb + QStringLiteral(" au ") + saisfin;
}

bool saisiePossible(const Ligne &ligne, const QDate &date)
{
    return date >= ligne.datedeb && date <= ligne.datefin;
}

} // namespace velmora
