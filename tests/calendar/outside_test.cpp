#include "calendar/easter.h"
#include "calendar/holiday_generation.h"

#include "support/workstation.h"

#include <QProcess>

#include <map>
#include <set>

namespace velmora::test
{
namespace
{

/// The lines of the script beside this file, which asks libraries that are not ours. They have to be there.
QStringList outside(const QStringList &words)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PYTHONIOENCODING", "utf-8");
    process.setProcessEnvironment(environment);
    process.start("/usr/bin/python3", QStringList(VELMORA_TESTS "/calendar/outside_calendar.py") + words);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

TEST(OutsideTest, EasterOfThreeCenturies)
{
    const QStringList sundays = outside({"easter", "1900", "2199"});
    ASSERT_EQ(sundays.size(), 300);
    for (const QString &line : sundays) {
        const QDate sunday = QDate::fromString(line, Qt::ISODate);
        EXPECT_EQ(paques(sunday.year()), sunday.addDays(1)) << line.toStdString();
    }
}

constexpr int firstYear = 2008; // Ascension falls on 1 May
constexpr int lastYear = 2030;

std::map<QString, QString> theirs(const QString &country)
{
    std::map<QString, QString> names;
    for (const QString &line : outside({country, QString::number(firstYear), QString::number(lastYear)}))
        names[line.left(10)] = line.mid(11);
    return names;
}

std::map<QString, QString> ours(int region)
{
    Workstation station;
    auto &base = station.session.base;
    EXPECT_TRUE(base.parcg.addNew().ok());
    base.parcg.values() = {QDate(1990, 1, 1), region, 0, {}};
    EXPECT_TRUE(base.parcg.update().ok());
    for (int year = firstYear; year <= lastYear; ++year)
        EXPECT_TRUE(genannee(base, {}, year).ok());
    std::map<QString, QString> names;
    auto days = base.ferie.range("ferie01", {}, {});
    while (days.next())
        names[days.row().datedeb.toString(Qt::ISODate)] = days.row().lib;
    return names;
}

/// Which of our names meets which of theirs on any date of those years; one of them is empty where a date is
/// a holiday for one side only.
std::set<std::string> meetings(int region, const QString &country)
{
    auto both = ours(region);
    auto others = theirs(country);
    std::set<std::string> met;
    for (const auto &[date, name] : both)
        met.insert((name + " = " + others[date]).toStdString());
    for (const auto &[date, name] : others)
        if (both.count(date) == 0) met.insert((" = " + name).toStdString());
    return met;
}

TEST(OutsideTest, HolidaysOfMetropolitanFrance)
{
    const std::set<std::string> expected{
        "Nouvel An = Jour de l'an",
        "Lundi de Pâques = Lundi de Pâques",
        "Fête du travail = Fête du Travail",
        "Fin seconde Guerre Mondiale = Armistice 1945",
        "Ascension = Ascension",
        "Lundi de Pentecôte = Lundi de Pentecôte",
        "Fête Nationale = Fête nationale",
        "Assomption 15 Août = Assomption",
        "Toussaint = Toussaint",
        "Armistice = Armistice 1918",
        "Noël = Noël",
        // One row per date, in 2008: the rule with the higher number.
        "Ascension = Ascension, Fête du Travail",
    };
    EXPECT_EQ(meetings(0, "France"), expected);
}

TEST(OutsideTest, HolidaysOfBelgium)
{
    const std::set<std::string> expected{
        "Nouvel An = Nieuwjaarsdag",
        "Lundi de Pâques = Paasmaandag",
        "Fête du travail = Dag van de Arbeid",
        "Ascension = O.L.H. Hemelvaart",
        "Lundi de Pentecôte = Pinkstermaandag",
        "Fête Nationale = Nationale feestdag",
        "Assomption 15 Août = O.L.V. Hemelvaart",
        "Toussaint = Allerheiligen",
        "Armistice = Wapenstilstand",
        "Noël = Kerstmis",
        "Ascension = Dag van de Arbeid, O.L.H. Hemelvaart",
        // Sundays are no rows: no region has Easter Sunday, and there is no rule for Whit Sunday.
        " = Pasen",
        " = Pinksteren",
    };
    EXPECT_EQ(meetings(7, "Belgium"), expected);
}

TEST(OutsideTest, HolidaysOfSwitzerland)
{
    const std::set<std::string> expected{
        "Nouvel An = Neujahrestag",
        "Vendredi Saint = Karfreitag",
        "Lundi de Pâques = Ostermontag",
        "Ascension = Auffahrt",
        "Lundi de Pentecôte = Pfingstmontag",
        "Fëte Nationale = Nationalfeiertag",
        "Noël = Weihnachten",
        // Sundays are no rows; 26 December, a holiday of most cantons, is one for the whole country.
        " = Ostern",
        " = Pfingsten",
        "St Etienne = ",
    };
    EXPECT_EQ(meetings(8, "Switzerland"), expected);
}

TEST(OutsideTest, HolidaysOfCanada)
{
    const std::set<std::string> expected{
        "Nouvel An = New Year's Day",
        "Vendredi Saint = Good Friday",
        "Fête de la Reine = Victoria Day",
        "Fête du Canada = Canada Day",
        "Fête du Travail = Labour Day",
        "Actions de grâces = Thanksgiving",
        "Noël = Christmas Day",
        "Lendemain de Noël = Boxing Day",
        // Holidays of federal employees that Ontario, the library's province, doesn't have, and its own ones.
        "Lundi de Pâques = ",
        "Jour du Souvenir = ",
        " = Family Day",
        " = Civic Holiday",
    };
    EXPECT_EQ(meetings(9, "Canada"), expected);
}

} // namespace
} // namespace velmora::test
