#include "entry/derivation.h"

#include "entry/typing.h"
#include "foncgen/foncgen.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora
{

using entrytest::ligne;
using entrytest::saisieDe;
using entrytest::tape;

/// heurdeb-heurfin, first cut, second cut, then the three slices, in minutes.
std::string forme(const JourSit &jour)
{
    return QStringLiteral("%1-%2 %3-%4 %5-%6 | %7-%8 ")
               .arg(jour.heurdeb)
               .arg(jour.heurfin)
               .arg(jour.hideb)
               .arg(jour.hifin)
               .arg(jour.hideb2)
               .arg(jour.hifin2)
               .arg(jour.hdeb1)
               .arg(jour.hfin1)
               .toStdString() +
           QStringLiteral("%1-%2 %3-%4")
               .arg(jour.hdeb2)
               .arg(jour.hfin2)
               .arg(jour.hdeb3)
               .arg(jour.hfin3)
               .toStdString();
}

struct CasJour {
    const char *nom;
    SaisieHoraire::Textes textes;
    const char *total;
    const char *forme;
};

void PrintTo(const CasJour &cas, std::ostream *os)
{
    *os << cas.nom;
}

class DerivationJour : public testing::TestWithParam<CasJour>
{
};

TEST_P(DerivationJour, StoredShape)
{
    const CasJour &cas = GetParam();
    const JourSit jour = jourDeSaisie(cas.textes, cas.total);
    EXPECT_EQ(forme(jour), cas.forme);
    EXPECT_EQ(jour.heurtrav, Foncgen::valhor(cas.total));
    EXPECT_EQ(jour.heurpaye, jour.heurtrav);
}

INSTANTIATE_TEST_SUITE_P(Entry, DerivationJour,
                         testing::Values(CasJour{"TwoSlices",
                                                 {"8h00", "12h00", "14h00", "18h00", "18h00", "18h00"},
                                                 "8h00",
                                                 "480-1080 720-840 0-0 | 480-720 840-1080 0-0"},
                                         CasJour{"ThreeSlices",
                                                 {"6h00", "9h00", "10h00", "12h00", "13h00", "15h00"},
                                                 "7h00",
                                                 "360-900 540-600 720-780 | 360-540 600-720 780-900"},
                                         CasJour{"OverMidnight",
                                                 {"22h00", "6h00", "0h00", "0h00", "0h00", "0h00"},
                                                 "8h00",
                                                 "1320-360 0-0 0-0 | 1320-360 0-0 0-0"},
                                         CasJour{"CutOverMidnight",
                                                 {"20h00", "23h00", "1h00", "5h00", "5h00", "5h00"},
                                                 "7h00",
                                                 "1200-300 1380-60 0-0 | 1200-1380 60-300 0-0"},
                                         CasJour{"SecondCutAfterMidnight",
                                                 {"18h00", "20h00", "22h00", "2h00", "3h00", "5h00"},
                                                 "8h00",
                                                 "1080-300 1200-1320 120-180 | 1080-1200 1320-120 180-300"},
                                         CasJour{"EndAtMidnightStays1440",
                                                 {"16h00", "24h00", "24h00", "24h00", "24h00", "24h00"},
                                                 "8h00",
                                                 "960-1440 0-0 0-0 | 960-1440 0-0 0-0"},
                                         CasJour{"TouchingSlicesMakeNoCutAndStayApart",
                                                 {"8h00", "12h00", "12h00", "14h00", "14h00", "14h00"},
                                                 "6h00",
                                                 "480-840 0-0 0-0 | 480-720 720-840 0-0"},
                                         CasJour{"CutAfterTouchingSlicesIsTheFirst",
                                                 {"8h00", "12h00", "12h00", "14h00", "15h00", "16h00"},
                                                 "7h00",
                                                 "480-960 840-900 0-0 | 480-720 720-840 900-960"},
                                         CasJour{"EmptySliceBetweenTwoIsClosedUp",
                                                 {"8h00", "12h00", "12h00", "12h00", "14h00", "18h00"},
                                                 "8h00",
                                                 "480-1080 720-840 0-0 | 480-720 840-1080 0-0"},
                                         CasJour{"TwoEmptySlicesInFrontLeaveOne",
                                                 {"5h00", "5h00", "6h00", "6h00", "8h00", "12h00"},
                                                 "4h00",
                                                 "360-720 360-480 0-0 | 0-0 480-720 0-0"},
                                         CasJour{"EmptyFirstCutDoesNotTakeTheSecondsPlace",
                                                 {"20h00", "0h00", "24h00", "2h00", "4h00", "6h00"},
                                                 "8h00",
                                                 "1200-360 0-0 120-240 | 1200-1440 1440-120 240-360"},
                                         CasJour{"TotalIsTakenAsWritten",
                                                 {"8h00", "12h00", "12h00", "12h00", "12h00", "12h00"},
                                                 "3h30",
                                                 "480-720 0-0 0-0 | 480-720 0-0 0-0"}),
                         [](const auto &param) { return param.param.nom; });

TEST(DerivationFields, WhatIsNotAnHourIsSetForAWorkedDay)
{
    const JourSit jour = jourDeSaisie({"8h00", "12h00", "0h00", "0h00", "0h00", "0h00"}, "4h00");
    EXPECT_EQ(jour.Type, 1);
    EXPECT_TRUE(jour.Val);
    EXPECT_TRUE(jour.horaire.isEmpty());
}

int depuis(const JourSit &jour, int moment)
{
    return (moment < jour.heurdeb ? moment + minutesParJour : moment) - jour.heurdeb;
}

/// Worked minutes as the readers of a day count them: its span less its cuts, times after midnight counted
/// on.
int minutesRelues(const JourSit &jour)
{
    int minutes = depuis(jour, jour.heurfin);
    if (jour.hideb != jour.hifin) minutes -= depuis(jour, jour.hifin) - depuis(jour, jour.hideb);
    if (jour.hideb2 != jour.hifin2) minutes -= depuis(jour, jour.hifin2) - depuis(jour, jour.hideb2);
    return minutes;
}

/// Whether the slices follow one another within less than a turn of the clock.
bool seSuivent(const SaisieHoraire &saisie)
{
    int precedent = Foncgen::valhor(saisie.texte(1));
    const int debut = precedent;
    bool minuit = false;
    for (int champ = 1; champ <= SaisieHoraire::nbChamps; champ += 2) {
        if (saisie.texte(champ) == saisie.texte(champ + 1)) continue;
        for (const int borne : {champ, champ + 1}) {
            int moment = Foncgen::valhor(saisie.texte(borne));
            if (minuit || moment < precedent) {
                minuit = true;
                moment += minutesParJour;
            }
            if (moment < precedent || moment - debut >= minutesParJour) return false;
            precedent = moment;
        }
    }
    return true;
}

TEST(DerivationProperty, DayReadBackHasTheMinutesOfItsTotalWhereSlicesFollowOneAnother)
{
    std::mt19937 alea(20260106);
    std::uniform_int_distribution<int> quart(0, 96);
    int comptes = 0;
    for (int essai = 0; essai < 6000; ++essai) {
        SaisieHoraire saisie = saisieDe({});
        for (int champ = 1; champ <= SaisieHoraire::nbChamps; ++champ)
            if (saisie.permis(champ)) tape(saisie, champ, Foncgen::fwhl(quart(alea) * 15, 5));
        if (!saisie.normhor() || !seSuivent(saisie)) continue;
        const JourSit jour = jourDeSaisie(saisie.textes(), saisie.total());
        ASSERT_EQ(minutesRelues(jour), jour.heurtrav) << ligne(saisie.textes());
        ++comptes;
    }
    EXPECT_GT(comptes, 500) << "too few days follow one another for the property to mean anything";
}

/// What the entry lets through although the stored span can't hold it. It is stored as typed: that is wanted.
TEST(DerivationProperty, ATurnOfTheClockOrMoreKeepsItsTotalThoughTheSpanCannotHoldIt)
{
    struct Cas {
        QStringList tapes;
        int total;
        int relues;
    };
    for (const Cas &cas : {Cas{{"21h00", "22h00", "22h00", "21h00"}, 1440, 0},
                           {{"8h00", "12h00", "9h00", "11h00"}, 1620, 180}}) {
        SaisieHoraire saisie = saisieDe(cas.tapes);
        ASSERT_TRUE(saisie.normhor());
        const JourSit jour = jourDeSaisie(saisie.textes(), saisie.total());
        EXPECT_EQ(jour.heurtrav, cas.total);
        EXPECT_EQ(minutesRelues(jour), cas.relues);
    }
}

} // namespace velmora
