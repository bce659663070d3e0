#include "cli/families.h"
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

/// The schedules between two dates as typed, for the work on them; a refusal with its reason otherwise.
int surHoraires(Session &session, const Appel &appel,
                const std::function<int(const HorairesPratiques &, const QDate &, const QDate &)> &travail)
{
    const QDate debut = Foncgen::ctod(appel.mots[0]);
    const QDate fin = Foncgen::ctod(appel.mots[1]);
    if (!debut.isValid()) return refus(dateIllisible(appel.mots[0]));
    if (!fin.isValid()) return refus(dateIllisible(appel.mots[1]));
    if (fin < debut) return refus(QStringLiteral("La date de fin est avant la date de début."));
    const HorairesPratiques rapport = horairesPratiques(session, debut, fin);
    if (!rapport.lecture.ok()) return refus(lectureIncomplete);
    return rapport.donnees ? travail(rapport, debut, fin) : refus(planningNonGenere);
}

int commandeExport(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return exporteMois(session, appel.mots.first()); });
}

int commandeHoraires(const Appel &appel)
{
    return surSession(appel, [&](Session &session) {
        return surHoraires(session, appel,
                           [](const HorairesPratiques &rapport, const QDate &, const QDate &) {
                               imprimeChamps(titresHoraires());
                               for (const HorairePratique &horaire : rapport.horaires)
                                   imprimeChamps(textesHoraire(horaire));
                               return reussi;
                           });
    });
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
