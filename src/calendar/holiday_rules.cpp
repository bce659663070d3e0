#include "calendar/holiday_rules.h"

#include "calendar/easter.h"

#include <QStringView>

#include <array>
#include <cstdint>
#include <initializer_list>

namespace velmora
{

namespace
{

/// How the date of a rule is found in a year.
struct DateRegle {
    enum class Genre { Fixe, Paques, LundiJusquau, LundiDes, SecondLundiDes };

    Genre genre;
    int jour; ///< day of the month; for `Paques` days from Easter Monday
    int mois;
};

constexpr DateRegle le(int jour, int mois)
{
    return {DateRegle::Genre::Fixe, jour, mois};
}
constexpr DateRegle lundiDePaques(int decalage = 0)
{
    return {DateRegle::Genre::Paques, decalage, 0};
}
constexpr DateRegle lundiJusquau(int jour, int mois)
{
    return {DateRegle::Genre::LundiJusquau, jour, mois};
}
constexpr DateRegle lundiDes(int jour, int mois)
{
    return {DateRegle::Genre::LundiDes, jour, mois};
}
constexpr DateRegle secondLundiDes(int jour, int mois)
{
    return {DateRegle::Genre::SecondLundiDes, jour, mois};
}

using Regions = std::uint16_t; // a bit for each region

constexpr Regions en(std::initializer_list<int> numeros)
{
    unsigned ensemble = 0;
    for (const int numero : numeros)
        ensemble |= 1U << static_cast<unsigned>(numero);
    return static_cast<Regions>(ensemble);
}

struct RegleFerie {
    QStringView lib;
    DateRegle date;
    Regions regions;
};

// The table is law as it stands. Region 6 has nothing of region 0, region 4 has no Whit Monday, no region has
// Easter Sunday, and the labels differ from rule to rule: all this is wanted.
constexpr std::array<RegleFerie, nombreRegles> regles{{
    /*  1 */ {u"Nouvel An", le(1, 1), en({0, 1, 2, 3, 4, 5, 6, 7, 8, 9})},
    /*  2 */ {u"Fête du travail", le(1, 5), en({0, 1, 2, 3, 4, 5, 7})},
    /*  3 */ {u"Fin seconde Guerre Mondiale", le(8, 5), en({0, 1, 2, 3, 4, 5})},
    /*  4 */ {u"Abolition Esclavage", le(22, 5), en({1})},
    /*  5 */ {u"Fête Nationale", le(14, 7), en({0, 1, 2, 3, 4, 5})},
    /*  6 */ {u"Fête Nationale", le(21, 7), en({7})},
    /*  7 */ {u"Toussaint", le(1, 11), en({0, 1, 2, 3, 4, 5, 7})},
    /*  8 */ {u"Jour des Défunts", le(2, 11), en({1, 2, 3})},
    /*  9 */ {u"Armistice", le(11, 11), en({0, 1, 2, 3, 4, 5, 7})},
    /* 10 */ {u"Assomption 15 Août", le(15, 8), en({0, 1, 2, 3, 4, 5, 7})},
    /* 11 */ {u"Noël", le(25, 12), en({0, 1, 2, 3, 4, 5, 7, 8, 9})},
    /* 12 */ {u"Dimanche de Pâques", lundiDePaques(-1), en({})},
    /* 13 */ {u"Lundi de Pâques", lundiDePaques(), en({0, 1, 2, 3, 4, 5, 7, 8, 9})},
    /* 14 */ {u"Vendredi Saint", lundiDePaques(-3), en({1, 2, 3, 6, 8, 9})},
    /* 15 */ {u"Ascension", lundiDePaques(38), en({0, 1, 2, 3, 4, 5, 7, 8})},
    /* 16 */ {u"Lundi de Pentecôte", lundiDePaques(49), en({0, 1, 2, 3, 5, 7, 8})},
    /* 17 */ {u"Abolition Esclavage", le(27, 5), en({2})},
    /* 18 */ {u"Mardi Gras", lundiDePaques(-48), en({1, 2, 3})},
    /* 19 */ {u"Mercredi des Cendres", lundiDePaques(-47), en({1, 2, 3})},
    /* 20 */ {u"Abolition esclavage", le(10, 6), en({3})},
    /* 21 */ {u"Abolition esclavage", le(20, 12), en({4})},
    /* 22 */ {u"St Etienne", le(26, 12), en({6, 8})},
    /* 23 */ {u"Fëte Nationale", le(1, 8), en({8})},
    /* 24 */ {u"Fête de la Reine", lundiJusquau(24, 5), en({9})},
    /* 25 */ {u"Fête du Canada", le(1, 7), en({9})},
    /* 26 */ {u"Fête du Travail", lundiDes(1, 9), en({9})},
    /* 27 */ {u"Actions de grâces", secondLundiDes(1, 10), en({9})},
    /* 28 */ {u"Jour du Souvenir", le(11, 11), en({9})},
    /* 29 */ {u"Lendemain de Noël", le(26, 12), en({9})},
}};

const RegleFerie &regleDe(int numero)
{
    return regles.at(static_cast<std::size_t>(numero - 1));
}

/// The first Monday from a date on, in either direction; the date itself when it is one.
QDate lundi(QDate date, int pas)
{
    while (date.dayOfWeek() != Qt::Monday)
        date = date.addDays(pas);
    return date;
}

} // namespace

const QStringList &regions()
{
    static const QStringList libelles{
        QStringLiteral(" 0 - France métropolitaine (Gl)"),
        QStringLiteral(" 1 - Martinique"),
        QStringLiteral(" 2 - Guadeloupe"),
        QStringLiteral(" 3 - Guyane"),
        QStringLiteral(" 4 - Réunion"),
        QStringLiteral(" 5 - Nelle Calédonie"),
        QStringLiteral(" 6 - Alsace Lorraine"),
        QStringLiteral(" 7 - Belgique"),
        QStringLiteral(" 8 - Suisse"),
        QStringLiteral(" 9 - Canada"),
    };
    return libelles;
}

int regionDuLibelle(const QString &libelle)
{
    return libelle.left(2).toInt();
}

QString libferie(int regle)
{
    return regleDe(regle).lib.toString();
}

bool regionferie(int region, int regle)
{
    const bool connue = region >= 0 && region < regions().size();
    return connue && (regleDe(regle).regions >> region & 1) != 0;
}

QDate dateferie(int regle, int annee)
{
    using Genre = DateRegle::Genre;
    const auto &[genre, jour, mois] = regleDe(regle).date;
    if (genre == Genre::Paques) return paques(annee).addDays(jour);
    const QDate fixe(annee, mois, jour);
    switch (genre) {
    case Genre::LundiJusquau: return lundi(fixe, -1);
    case Genre::LundiDes: return lundi(fixe, 1);
    case Genre::SecondLundiDes: return lundi(lundi(fixe, 1).addDays(1), 1);
    default: return fixe;
    }
}

} // namespace velmora
