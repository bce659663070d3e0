#include "cli/line_days.h"

#include "cli/start.h"
#include "foncgen/foncgen.h"
#include "month/period.h"

namespace velmora::cli
{

namespace
{

QString refusDates(const Session &session, const JoursLigne &jours)
{
    if (jours.fin < jours.debut) return QStringLiteral("La date de fin est avant la date de début.");
    const QDate premiere = periodeDuMois(session.datemin.month(), session.datemin.year()).debgrille;
    const QDate derniere = periodeDuMois(session.datemax.month(), session.datemax.year()).fingrille;
    if (jours.debut < premiere || jours.fin > derniere) {
        return QStringLiteral("Les dates vont du %1 au %2.")
            .arg(Foncgen::dtoc(premiere), Foncgen::dtoc(derniere));
    }
    if (jours.debut >= jours.ligne.datedeb && jours.fin <= jours.ligne.datefin) return {};
    return QStringLiteral("La ligne n'est ouverte que du %1 au %2.")
        .arg(Foncgen::dtoc(jours.ligne.datedeb), Foncgen::dtoc(jours.ligne.datefin));
}

} // namespace

JoursLigne litJours(Session &session, const QString &nump, const QString &debut, const QString &fin)
{
    JoursLigne jours;
    if (!placeLigne(session, nump)) {
        jours.refus = ligneInconnue(nump);
        return jours;
    }
    jours.ligne = session.base.ligmois.row();
    jours.debut = Foncgen::ctod(debut);
    jours.fin = Foncgen::ctod(fin);
    if (!jours.debut.isValid())
        jours.refus = dateIllisible(debut);
    else if (!jours.fin.isValid())
        jours.refus = dateIllisible(fin);
    else
        jours.refus = refusDates(session, jours);
    return jours;
}

} // namespace velmora::cli
