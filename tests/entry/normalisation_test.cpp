#include "entry/normalisation.h"

#include "entry/typing.h"
#include "foncgen/foncgen.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora
{

using entrytest::ligne;
using entrytest::saisieDe;
using entrytest::tape;

struct CasSaisie {
    const char *nom;
    QStringList tapes;
    const char *champs;
    const char *total;
    bool valide;
};

void PrintTo(const CasSaisie &cas, std::ostream *os)
{
    *os << cas.nom;
}

class NormalisationSaisie : public testing::TestWithParam<CasSaisie>
{
};

TEST_P(NormalisationSaisie, FieldsAndTotalAfterTyping)
{
    const CasSaisie &cas = GetParam();
    SaisieHoraire saisie = saisieDe(cas.tapes);
    EXPECT_EQ(saisie.normhor(), cas.valide);
    EXPECT_EQ(ligne(saisie.textes()), cas.champs);
    EXPECT_EQ(saisie.total().toStdString(), cas.total);
}

INSTANTIATE_TEST_SUITE_P(
    Entry, NormalisationSaisie,
    testing::Values(
        CasSaisie{"NothingTyped", {}, "0h00 0h00 0h00 0h00 0h00 0h00", "0h00", false},
        CasSaisie{"OneSlice", {"8h00", "12h00"}, "8h00 12h00 12h00 12h00 12h00 12h00", "4h00", true},
        CasSaisie{"TwoSlices",
                  {"8h00", "12h00", "14h00", "18h00"},
                  "8h00 12h00 14h00 18h00 18h00 18h00",
                  "8h00",
                  true},
        CasSaisie{"ThreeSlices",
                  {"6h00", "9h00", "10h00", "12h00", "13h00", "15h00"},
                  "6h00 9h00 10h00 12h00 13h00 15h00",
                  "7h00",
                  true},
        CasSaisie{
            "HoursAsPeopleTypeThem", {"8", "12.30"}, "8h00 12h30 12h30 12h30 12h30 12h30", "4h30", true},
        CasSaisie{"EmptyFirstSliceEmptiesTheOthers",
                  {"8h00", "8h00"},
                  "8h00 8h00 8h00 8h00 8h00 8h00",
                  "0h00",
                  false},
        CasSaisie{"SecondSliceStartsAtTheEndOfTheFirst",
                  {"8h00", "12h00", "10h00", "16h00"},
                  "8h00 12h00 12h00 16h00 16h00 16h00",
                  "8h00",
                  true},
        CasSaisie{"SecondSliceInsideTheFirstEndsUpOverMidnight",
                  {"8h00", "12h00", "9h00", "11h00"},
                  // Its start moves to 12h00, so that the end typed after it lies before it.
                  "8h00 12h00 12h00 11h00 0h00 0h00",
                  "27h00",
                  true},
        CasSaisie{"OverMidnight", {"22h00", "6h00"}, "22h00 6h00 0h00 0h00 0h00 0h00", "8h00", true},
        CasSaisie{"MidnightIsTheEndOfTheDay",
                  {"16h00", "24h00"},
                  "16h00 24h00 24h00 24h00 24h00 24h00",
                  "8h00",
                  true},
        CasSaisie{"AMinutePastMidnightIsRefused",
                  {"16h00", "20h00", "24h01"},
                  "16h00 20h00 20h00 20h00 20h00 20h00",
                  "4h00",
                  true},
        CasSaisie{
            "UnreadableTextIsPutBack", {"8h00", "9h75"}, "8h00 0h00 0h00 0h00 0h00 0h00", "16h00", true}),
    [](const auto &param) { return param.param.nom; });

TEST(NormalisationField, HoursOverMidnightEndTheDayAndLeaveTheNextSliceOpen)
{
    SaisieHoraire saisie = saisieDe({"8h00", "12h00", "14h00", "18h00"});
    saisie.focusGagne(2);
    saisie.change(2, "6h0");
    saisie.focusPerdu(2);
    EXPECT_EQ(ligne(saisie.textes()), "8h00 6h00 0h00 0h00 0h00 0h00");
    EXPECT_EQ(saisie.total(), "22h00");
    EXPECT_TRUE(saisie.permis(3)) << "the texts of the slice before decide, not the crossing of midnight";
    EXPECT_TRUE(saisie.permis(5)) << "slices 2 and 3 are judged on their texts before the rewrite";
    EXPECT_TRUE(saisie.normhor());
    EXPECT_FALSE(saisie.permis(5));
}

struct CasDebut {
    const char *nom;
    QStringList avant;
    const char *debut;
    const char *champs;
};

void PrintTo(const CasDebut &cas, std::ostream *os)
{
    *os << cas.nom;
}

class NormalisationDebut : public testing::TestWithParam<CasDebut>
{
};

TEST_P(NormalisationDebut, StartChangedAfterwards)
{
    const CasDebut &cas = GetParam();
    SaisieHoraire saisie = saisieDe(cas.avant);
    tape(saisie, 1, cas.debut);
    EXPECT_EQ(ligne(saisie.textes()), cas.champs);
}

INSTANTIATE_TEST_SUITE_P(
    Entry, NormalisationDebut,
    testing::Values(
        CasDebut{"EarlierStartKeepsTheEnd", {"8h00", "12h00"}, "7h00", "7h00 12h00 12h00 12h00 12h00 12h00"},
        CasDebut{"StartAtTheOldEndEmptiesTheDay",
                 {"8h00", "12h00"},
                 "12h00",
                 "12h00 12h00 12h00 12h00 12h00 12h00"},
        CasDebut{"StartPastTheOldEndRunsOverMidnight",
                 {"8h00", "12h00"},
                 "13h00",
                 "13h00 12h00 12h00 12h00 12h00 12h00"},
        CasDebut{
            "NightStartMovedBackStaysANight", {"22h00", "6h00"}, "21h00", "21h00 6h00 6h00 6h00 6h00 6h00"}),
    [](const auto &param) { return param.param.nom; });

TEST(NormalisationField, StartWithinAnOldCrossingCollapsesTheSliceAndChainsTheRest)
{
    SaisieHoraire saisie = saisieDe({"8h00", "12h00", "14h00", "18h00"});
    // Both ends of slice 1 change before it is normalised: its end now lies before its start, and that start
    // before the end it had.
    saisie.focusGagne(1);
    saisie.change(2, "9h0");
    saisie.change(1, "11h0");
    saisie.focusPerdu(1);
    EXPECT_EQ(ligne(saisie.textes()), "11h00 11h00 14h00 18h00 18h00 18h00");
}

struct CasBorne {
    const char *texte;
    bool bon;
};

TEST(NormalisationField, OnlyValuesOutsideTheDayArePutBackAndTheFieldIsGivenBackTheFocus)
{
    for (const CasBorne &cas :
         {CasBorne{"0h00", true}, {"24h00", true}, {"24h01", false}, {"-0h01", false}}) {
        SaisieHoraire saisie = saisieDe({"8h00", "12h00"});
        QList<int> cibles;
        saisie.surFocus([&](int cible) { cibles << cible; });
        tape(saisie, 2, cas.texte);
        EXPECT_EQ(saisie.texte(2) == "12h00", !cas.bon) << cas.texte;
        EXPECT_EQ(cibles.contains(2), !cas.bon) << cas.texte;
        EXPECT_TRUE(saisie.actif()) << cas.texte;
    }
}

TEST(NormalisationField, ARefusedValueLeavesTotalAndBarAsTheyWere)
{
    SaisieHoraire saisie = saisieDe({"8h00", "12h00"});
    const std::vector<Trait> barre = saisie.barre();
    saisie.focusGagne(1);
    saisie.change(1, "25h00");
    EXPECT_FALSE(saisie.normhor());
    EXPECT_EQ(saisie.total(), "4h00");
    EXPECT_EQ(saisie.barre(), barre);
}

TEST(NormalisationField, NothingHappensWhileTheFieldsAreNotLive)
{
    SaisieHoraire saisie;
    saisie.change(1, "25h00");
    saisie.focusGagne(3);
    saisie.focusPerdu(1);
    EXPECT_TRUE(saisie.normhor());
    EXPECT_EQ(saisie.champ(), 0);
    EXPECT_FALSE(saisie.modifie());
    EXPECT_EQ(saisie.texte(1), "25h00");
}

TEST(NormalisationOpening, NewDayKeepsOkClosedUntilANormalisation)
{
    SaisieHoraire saisie = saisieDe({});
    EXPECT_FALSE(saisie.okPermis());
    EXPECT_FALSE(saisie.permis(3));
    EXPECT_FALSE(saisie.normhor());
    EXPECT_TRUE(saisie.okPermis()) << "a total of 0 opens OK too: it answers with its message";
}

TEST(NormalisationOpening, StoredDayShowsItsFirstThreeSlices)
{
    JourSit jour;
    jour.hdeb1 = 360;
    jour.hfin1 = 540;
    jour.hdeb2 = 600;
    jour.hfin2 = 720;
    jour.hdeb4 = 800;
    jour.hfin4 = 900;
    SaisieHoraire saisie;
    saisie.ouvre(jour);
    EXPECT_EQ(ligne(saisie.textes()), "6h00 9h00 10h00 12h00 12h00 12h00");
    EXPECT_EQ(saisie.total(), "5h00");
    EXPECT_TRUE(saisie.okPermis());
    EXPECT_TRUE(saisie.permis(5));
    EXPECT_TRUE(saisie.clair(5));
}

TEST(NormalisationOpening, StoredEmptyDayOpensOk)
{
    SaisieHoraire saisie;
    saisie.ouvre(JourSit());
    EXPECT_TRUE(saisie.okPermis());
    EXPECT_FALSE(saisie.permis(3));
}

TEST(NormalisationDelete, ClearsFromTheFieldOnAndChangesNothingBefore)
{
    const QStringList avant{"8h00", "12h00", "14h00", "16h00", "17h00", "19h00"};
    const char *const attendus[]{"0h00 0h00 0h00 0h00 0h00 0h00",      "8h00 8h00 8h00 8h00 8h00 8h00",
                                 "8h00 12h00 12h00 12h00 12h00 12h00", "8h00 12h00 14h00 14h00 14h00 14h00",
                                 "8h00 12h00 14h00 16h00 16h00 16h00", "8h00 12h00 14h00 16h00 17h00 17h00"};
    for (int champ = 1; champ <= SaisieHoraire::nbChamps; ++champ) {
        SaisieHoraire saisie = saisieDe(avant);
        saisie.supprimeDepuis(champ);
        EXPECT_EQ(ligne(saisie.textes()), attendus[champ - 1]) << champ;
        EXPECT_EQ(saisie.champ(), SaisieHoraire::nbChamps);
        EXPECT_TRUE(saisie.actif());
    }
}

TEST(NormalisationFocus, FinishedHourMovesOnAndAnUnfinishedOneStays)
{
    struct Cas {
        int champ;
        const char *texte;
        QList<int> cibles;
    };
    for (const Cas &cas : {Cas{1, "7h3", {}},
                           {1, "7h30", {2}},
                           {2, "17h3", {}},
                           {2, "17h30", {3}},
                           {3, "13h00", {4}},
                           {4, "15h00", {5}},
                           {5, "19h30", {6}},
                           {6, "20h00", {}}}) {
        SaisieHoraire saisie = saisieDe({"8h00", "12h00", "14h00", "18h00", "19h00", "21h00"});
        QList<int> cibles;
        saisie.focusGagne(cas.champ);
        saisie.surFocus([&](int cible) { cibles << cible; });
        saisie.change(cas.champ, cas.texte);
        EXPECT_EQ(cibles, cas.cibles) << cas.champ << ' ' << cas.texte;
    }
}

TEST(NormalisationFocus, LastFieldIsNormalisedByItsKeysAndByTheDelay)
{
    SaisieHoraire saisie = saisieDe({"8h00", "12h00", "14h00", "18h00", "19h00", "21h00"});
    saisie.focusGagne(6);
    saisie.change(6, "22h");
    EXPECT_FALSE(saisie.toucheDernierChamp()) << "the hour isn't finished: the delay goes on";
    EXPECT_EQ(saisie.total(), "10h00");
    EXPECT_EQ(saisie.champ(), SaisieHoraire::aucunChamp);
    saisie.delaiEcoule();
    EXPECT_EQ(saisie.texte(6), "22h00");
    EXPECT_EQ(saisie.total(), "11h00");
    EXPECT_TRUE(saisie.toucheDernierChamp());
}

TEST(NormalisationColour, ColourFollowsAtTheNextNormalisationOnly)
{
    SaisieHoraire saisie = saisieDe({});
    saisie.focusGagne(1);
    saisie.change(1, "8h00");
    EXPECT_TRUE(saisie.permis(3));
    EXPECT_FALSE(saisie.clair(3));
    saisie.focusPerdu(1);
    EXPECT_TRUE(saisie.clair(3));
}

struct CasEchelle {
    QStringList tapes;
    bool nuit;
    std::vector<Trait> barre;
};

TEST(NormalisationBar, ScaleAndStretches)
{
    const CasEchelle cas[]{
        {{"8h00", "12h00", "14h00", "18h00"}, false, {{480, 720}, {840, 1080}}},
        {{"22h00", "6h00"}, true, {{1320, 1800}}},
        {{"9h00", "12h00", "22h00", "6h00"}, true, {{540, 720}, {1320, 1800}}},
        {{"8h59", "12h00", "22h00", "6h00"}, false, {{539, 720}, {1320, 1800}}},
        {{"22h00", "6h00", "7h00", "9h00"}, true, {{1320, 1800}, {1860, 1980}}},
        {{"12h00", "12h00"}, false, {}},
    };
    for (const CasEchelle &un : cas) {
        SaisieHoraire saisie = saisieDe(un.tapes);
        saisie.normhor();
        EXPECT_EQ(saisie.nuit(), un.nuit) << un.tapes.join(' ').toStdString();
        EXPECT_EQ(saisie.barre(), un.barre) << un.tapes.join(' ').toStdString();
    }
}

TEST(NormalisationProperty, ASecondNormalisationChangesNothing)
{
    std::mt19937 alea(20260105);
    std::uniform_int_distribution<int> demiHeure(0, 48);
    std::uniform_int_distribution<int> champAuHasard(1, SaisieHoraire::nbChamps);
    for (int essai = 0; essai < 3000; ++essai) {
        SaisieHoraire saisie = saisieDe({});
        QStringList tapes;
        for (int frappe = 0; frappe < 10; ++frappe) {
            const int champ = frappe < SaisieHoraire::nbChamps ? frappe + 1 : champAuHasard(alea);
            if (!saisie.permis(champ)) continue;
            tapes << Foncgen::fwhl(demiHeure(alea) * 30, 5);
            tape(saisie, champ, tapes.last());
        }
        const bool valide = saisie.normhor();
        const std::string champs = ligne(saisie.textes());
        const QString total = saisie.total();
        ASSERT_EQ(saisie.normhor(), valide) << tapes.join(' ').toStdString();
        ASSERT_EQ(ligne(saisie.textes()), champs) << tapes.join(' ').toStdString();
        ASSERT_EQ(saisie.total(), total) << tapes.join(' ').toStdString();
    }
}

} // namespace velmora
