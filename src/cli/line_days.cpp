#include "cli/line_days.h"

#include "cli/start.h"
#include "foncgen/foncgen.h"
#include "month/period.h"

namespace velmora::cli
{

namespace
{

QString refusDates(const Session &session, const PeriodeLue &periode)
{
    if (periode.fin < periode.debut) return QStringLiteral("La date de fin est avant la date de début.");
    const QDate premiere = periodeDuMois(session.datemin.month(), session.datemin.year()).debgrille;
    const QDate derniere = periodeDuMois(session.datemax.month(), session.datemax.year()).fingrille;
    if (periode.debut >= premiere && periode.fin <= derniere) return {};
    return QStringLiteral("Les dates vont du %1 au %2.")
        .arg(Foncgen::dtoc(premiere), Foncgen::dtoc(derniere));
}

QString refusLigne(const Ligne &ligne, const PeriodeLue &periode)
{
    if (periode.debut >= ligne.datedeb && periode.fin <= ligne.datefin) return {};
    return QStringLiteral("La ligne n'est ouverte que du %1 au %2.")
        .arg(Foncgen::dtoc(ligne.datedeb), Foncgen::dtoc(ligne.datefin));
}

} // namespace

PeriodeLue litPeriode(const Session &session, const QString &debut, const QString &fin)
{
    PeriodeLue periode{Foncgen::ctod(debut), Foncgen::ctod(fin), {}};
    if (!periode.debut.isValid())
        periode.refus = dateIllisible(debut);
    else if (!periode.fin.isValid())
        periode.refus = dateIllisible(fin);
    else
        periode.refus = refusDates(session, periode);
    return periode;
}

JoursLigne litJours(Session &session, const QString &nump, const QString &debut, const QString &fin)
{
    if (!placeLigne(session, nump))
        return {.ligne = {}, .debut = {}, .fin = {}, .refus = ligneInconnue(nump)};
    const Ligne ligne = session.base.ligmois.row();
    const PeriodeLue periode = litPeriode(session, debut, fin);
    const QString refus = periode.refus.isEmpty() ? refusLigne(ligne, periode) : periode.refus;
    return {ligne, periode.debut, periode.fin, refus};
}

} // namespace velmora::cli
