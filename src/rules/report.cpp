#include "rules/report.h"

#include "rules/rest_windows.h"
#include "rules/walk.h"

#include <functional>

namespace velmora
{

namespace
{

constexpr int largeurDuree = 2;
constexpr int largeurLimite = 5;

/// A number with the leading blank of its sign.
QString nombre(int valeur)
{
    return QLatin1Char(' ') + QString::number(valeur);
}

QString limite(int minutes)
{
    return Foncgen::fwhl(minutes, largeurLimite);
}

/// One kind of failure: what stands above its weeks and what is said of each.
struct Bloc {
    QString titre;
    std::function<bool(const Semaine &)> echoue;
    std::function<QString(const Semaine &)> detail;
};

std::function<QString(const Semaine &)> toujours(const QString &texte)
{
    return [texte](const Semaine &) { return texte; };
}

/// The kinds in the order of the report.
std::vector<Bloc> blocs(const Ligne &ligne)
{
    return {
        {QStringLiteral("Plus de 6 jours de travail continus :\n"),
         [](const Semaine &semaine) { return semaine.sem6j; },
         toujours(QStringLiteral(" => + de 6 j de travail\n"))},
        {QStringLiteral("\nDépassement Heures Semaine (") + limite(ligne.maxs) + QStringLiteral("):\n"),
         [ligne](const Semaine &semaine) { return semaineTropLongue(ligne, semaine); },
         [](const Semaine &semaine) {
             return QStringLiteral(" => ") + Foncgen::fwhl(semaine.semheures, largeurDuree) +
                    QLatin1Char('\n');
         }},
        {QStringLiteral("\nMinimum repos entre deux horaires dépassé (") + limite(ligne.reposmin) +
             QStringLiteral("):\n"),
         [](const Semaine &semaine) { return semaine.semrepos > 0; },
         [](const Semaine &semaine) {
             return QStringLiteral(" => ") + nombre(semaine.semrepos) + QLatin1Char('\n');
         }},
        {QStringLiteral("\n Heures max / jour (") + limite(ligne.maxj) + QStringLiteral(") dépassées\n"),
         [](const Semaine &semaine) { return semaine.semjour; },
         toujours(QStringLiteral(" => Journées > heures max\n"))},
        {QStringLiteral("\n Amplitude max / jour (") + limite(ligne.ampj) + QStringLiteral(") dépassée\n"),
         [](const Semaine &semaine) { return semaine.semamp; },
         toujours(QStringLiteral(" => Amplitude journée\n"))},
        {QStringLiteral("\n Pauses non respectées\n"),
         // A day's verdict doesn't look whether there is a minimum; the report does.
         [pause = ligne.pause](const Semaine &semaine) { return pause > 0 && semaine.sempause; },
         toujours(QStringLiteral(" => Pauses\n"))},
    };
}

/// The week that a line is about. Its number is that of its Wednesday; its year is its Monday's, but the
/// first date's for the first week. Wanted.
QString libelleSemaine(const std::vector<Semaine> &semaines, const Semaine &semaine, const QDate &debut)
{
    const bool premiere = &semaine == &semaines.front();
    const int seman = premiere ? debut.year() : semaine.lundi.year();
    const int semno = Foncgen::nosem(semaine.lundi.addDays(2));
    return nombre(seman) + QStringLiteral(" semaine : ") + nombre(semno);
}

QString texteBloc(const Bloc &bloc, const std::vector<Semaine> &semaines, const QDate &debut)
{
    QString lignes;
    for (const Semaine &semaine : semaines)
        if (bloc.echoue(semaine)) lignes += libelleSemaine(semaines, semaine, debut) + bloc.detail(semaine);
    return lignes.isEmpty() ? QString() : bloc.titre + lignes;
}

QString texteFenetre(const FenetreRepos &fenetre)
{
    const QString dates =
        Foncgen::dtoc(fenetre.debut) + QStringLiteral(" au ") + Foncgen::dtoc(fenetre.fin()) + u'\n';
    QString texte;
    if (fenetre.hebdo) texte += QStringLiteral("\nDéfaut Repos Hebdo du ") + dates;
    if (fenetre.contigus) texte += QStringLiteral("\nDéfaut Repos contigus du ") + dates;
    return texte;
}

} // namespace

QString rapportcontrole(const Ligne &ligne, const SuiteJours &jours, const QDate &debut, const QDate &fin)
{
    if (!aControles(ligne)) return {};
    const Parcours parcours = parcourt(ligne, jours, debut, fin, maniereRapport);
    QString rapport;
    for (const Bloc &bloc : blocs(ligne))
        rapport += texteBloc(bloc, parcours.semaines, debut);
    const Lundis &lundis = parcours.lundis;
    for (const FenetreRepos &fenetre : fenetresEnDefaut(ligne, jours, lundis.premier, lundis.dernier))
        rapport += texteFenetre(fenetre);
    if (rapport.isEmpty()) return {};
    return QStringLiteral("        ") + ligne.nom + QLatin1Char('\n') + rapport;
}

} // namespace velmora
