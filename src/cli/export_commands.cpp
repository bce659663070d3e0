#include "cli/families.h"
#include "cli/line_days.h"
#include "cli/month_commands.h"
#include "cli/output.h"
#include "cli/start.h"
#include "output/export.h"
#include "output/practised.h"

namespace velmora::cli
{

namespace
{

int exporteMois(Session &session, const QString &texteMois)
{
    const QString impossible = refusMois(session, texteMois);
    if (!impossible.isEmpty()) return refus(impossible);
    const QDate debut(session.anvue, session.moisvue, 1);
    const Exportation faite = exporte(session, debut, {debut.year(), debut.month(), debut.daysInMonth()});
    const QString defaut = defautExport(faite);
    if (!defaut.isEmpty()) return refus(defaut);
    imprime(faite.fichier);
    imprime(faite.classeur);
    return reussi;
}

int afficheHoraires(Session &session, const Appel &appel)
{
    const PeriodeLue periode = litPeriode(session, appel.mots[0], appel.mots[1]);
    if (!periode.refus.isEmpty()) return refus(periode.refus);
    const HorairesPratiques rapport = horairesPratiques(session, periode.debut, periode.fin);
    const QString defaut = defautHoraires(rapport);
    if (!defaut.isEmpty()) return refus(defaut);
    imprimeChamps(titresHoraires());
    for (const HorairePratique &horaire : rapport.horaires)
        imprimeChamps(textesHoraire(horaire));
    return reussi;
}

int commandeExport(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return exporteMois(session, appel.mots.first()); });
}

int commandeHoraires(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return afficheHoraires(session, appel); });
}

} // namespace

std::vector<Commande> commandesExport()
{
    return {{"horaires",
             "DEBUT FIN",
             "affiche les horaires pratiqués entre deux dates et leur nombre",
             2,
             2,
             {},
             commandeHoraires},
            {"export",
             "M/AAAA",
             "écrit le planning d'un mois en fichier texte et en classeur, et affiche leurs noms",
             1,
             1,
             {},
             commandeExport}};
}

} // namespace velmora::cli
