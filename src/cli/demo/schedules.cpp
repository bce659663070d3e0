#include "cli/demo/schedules.h"

#include "entry/derivation.h"
#include "entry/typed_entry.h"
#include "foncgen/foncgen.h"

#include <QStringList>

namespace velmora::cli::demo
{

namespace
{

constexpr int joursCycle = 14;

/// A kind's cycle of two weeks from a Monday, a digit being the schedule of the day and a point a rest, and
/// its schedules.
struct Roulement {
    const char *cycle;
    std::vector<const char *> horaires;
};

const Roulement &roulement(Genre genre)
{
    static const std::map<Genre, Roulement> tous{
        {Genre::Jour, {"000.11.11..000", {"6h45-12h00 12h30-14h15", "13h45-18h30 19h00-21h15"}}},
        {Genre::Bureau, {"00000..00000..", {"9h00-12h30 13h30-17h00"}}},
        {Genre::Coupe, {"001..0000.10..", {"8h00-12h00 17h00-20h30", "7h00-10h00 11h00-14h00 18h00-20h00"}}},
        {Genre::Nuit, {"00..11...00..1", {"20h30-6h30", "20h00-22h30 23h00-6h45"}}},
        {Genre::Partiel, {"00.00..11.11..", {"8h30-12h30", "16h00-20h00"}}},
    };
    return tous.at(genre);
}

/// Hours as typed, moved by `decalage` minutes and with the last end later by `rallonge`.
QStringList heures(const char *horaire, int decalage, int rallonge)
{
    QStringList textes = QString::fromLatin1(horaire).replace(QLatin1Char('-'), QLatin1Char(' ')).split(u' ');
    for (QString &texte : textes) {
        const int ajout = decalage + (&texte == &textes.last() ? rallonge : 0);
        texte = Foncgen::fwhl((Foncgen::valhor(texte) + ajout) % minutesParJour, 5);
    }
    return textes;
}

JourSit jourType(const QStringList &textes, const QDateTime &datj)
{
    const auto saisie = normaliseTranches(textes);
    if (!saisie) return {};
    JourSit jour = jourDeSaisie(saisie->textes(), saisie->total());
    jour.datj = datj;
    return jour;
}

/// Where somebody is needed every day, a rest now and then gives way to a replacement: that is what breaks
/// the limits of some lines.
char signeDuJour(char signe, Genre genre, Hasard &hasard)
{
    constexpr int remplacements = 3;
    const bool libre = signe == '.' && genre != Genre::Bureau;
    return libre && hasard.chance(remplacements) ? '0' : signe;
}

/// Rank of a date in the cycle of two weeks, which is the same whatever the planning's first date.
int rangDansLeCycle(const QDate &date, int decalage)
{
    const QDate lundi(2001, 1, 1);
    return static_cast<int>((lundi.daysTo(date) + decalage) % joursCycle);
}

} // namespace

Horaires::Horaires(const QDateTime &datj, std::set<QDate> feriees)
    : m_datj(datj), m_feriees(std::move(feriees))
{
    for (const Genre genre : {Genre::Jour, Genre::Bureau, Genre::Coupe, Genre::Nuit, Genre::Partiel}) {
        int numero = 0;
        for (const char *horaire : roulement(genre).horaires) {
            Variantes &variantes = m_variantes[{genre, numero++}];
            for (const auto &[decalage, rallonge] : {std::pair{0, 0}, {15, 0}, {30, 0}, {0, 15}, {0, 30}})
                variantes.push_back(jourType(heures(horaire, decalage, rallonge), m_datj));
        }
    }
}

std::vector<JourSit> Horaires::jours(const LigneDemo &ligne, const Intervalle &intervalle,
                                     Hasard &hasard) const
{
    constexpr int horsHabitude = 15;
    const char *cycle = roulement(ligne.genre).cycle;
    std::vector<JourSit> lignes;
    for (QDate date = intervalle.premier; date <= intervalle.dernier; date = date.addDays(1)) {
        const char signe = signeDuJour(cycle[rangDansLeCycle(date, ligne.decalage)], ligne.genre, hasard);
        if (signe == '.' || (ligne.genre == Genre::Bureau && m_feriees.count(date) > 0)) continue;
        const Variantes &variantes = m_variantes.at({ligne.genre, signe - '0'});
        const int variante = hasard.chance(horsHabitude) ? hasard.entre(1, 4) : 0;
        JourSit jour = variantes[static_cast<std::size_t>(variante)];
        jour.nump = ligne.ligne.nump;
        jour.dat = date;
        lignes.push_back(jour);
    }
    return lignes;
}

} // namespace velmora::cli::demo
