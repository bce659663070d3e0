#include "folders/month_choice.h"

#include "support/workstation.h"

namespace velmora::test
{
namespace
{

TEST(EchelleMoisTest, CountsFromJanuaryOfTheFirstYear)
{
    const EchelleMois echelle(QDate(2025, 1, 1), QDate(2027, 12, 31));
    EXPECT_EQ(echelle.minimum(), 0);
    EXPECT_EQ(echelle.maximum(), 35);
    struct Case {
        int position;
        MoisAn choix;
    };
    const Case cases[] = {
        {0, {1, 2025}}, {11, {12, 2025}}, {12, {1, 2026}}, {17, {6, 2026}}, {35, {12, 2027}},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(echelle.mois(one.position), one.choix);
        EXPECT_EQ(echelle.position(one.choix), one.position);
    }
}

TEST(EchelleMoisTest, PositionZeroIsOutOfReachWhenTheFirstDateIsLaterInItsYear)
{
    const EchelleMois echelle(QDate(2025, 4, 10), QDate(2026, 2, 28));
    EXPECT_EQ(echelle.minimum(), 3);
    EXPECT_EQ(echelle.mois(echelle.minimum()), (MoisAn{4, 2025}));
    EXPECT_EQ(echelle.mois(echelle.maximum()), (MoisAn{2, 2026}));
}

TEST(MonthChoiceTest, APositiveNumberHasABlankBeforeIt)
{
    EXPECT_EQ(nombreAvecBlanc(7), " 7");
    EXPECT_EQ(nombreAvecBlanc(2026), " 2026");
    EXPECT_EQ(nombreAvecBlanc(0), " 0");
    EXPECT_EQ(nombreAvecBlanc(-3), "-3");
}

TEST(MonthChoiceTest, TheFirstTwoOptionsStandInTheOppositeOrderOfTheirModes)
{
    const std::pair<int, int> cases[] = {{0, 1}, {1, 0}, {2, 2}};
    for (const auto &[option, mode] : cases) {
        EXPECT_EQ(modeDeLOption(option), mode);
        EXPECT_EQ(optionDuMode(mode), option);
    }
    EXPECT_EQ(modeDeLOption(-1), 1);
    EXPECT_EQ(optionDuMode(9), 0);
}

class FoldersListTest : public testing::Test
{
protected:
    Workstation station;

    void add(const QString &groupe, int nump)
    {
        auto &table = station.session.base.groupe;
        ASSERT_TRUE(table.addNew().ok());
        table.values() = {groupe, nump, false};
        ASSERT_TRUE(table.update().ok());
    }
};

TEST_F(FoldersListTest, GlobalStandsFirstWithNoFolderToo)
{
    EXPECT_EQ(lignesDossiers(station.session), QStringList{"Global"});
}

TEST_F(FoldersListTest, OnlyHeadRowsAreListedByName)
{
    add("nuit", 0);
    add("Équipe", 0);
    add("Équipe", 4);
    add("atelier", 2);
    add("Accueil", 0);
    EXPECT_EQ(lignesDossiers(station.session), (QStringList{"Global", "Accueil", "Équipe", "nuit"}));
}

TEST(MonthStartTest, StartsOnTheCurrentMonthUnlessTheStartMonthChoiceIsOne)
{
    Workstation station(QDate(2026, 6, 15));
    EXPECT_EQ(moisDeDepart(station.session), (MoisAn{6, 2026}));
    station.session.choixmoisdebut = 1;
    EXPECT_EQ(moisDeDepart(station.session), (MoisAn{1, 2026}));
    station.session.choixmoisdebut = 2;
    EXPECT_EQ(moisDeDepart(station.session), (MoisAn{6, 2026}));
}

class ChoixDossierTest : public testing::Test
{
protected:
    ChoixDossier choix{{"Global", "Accueil", "nuit"}};
};

TEST_F(ChoixDossierTest, AClickOnAnotherRowMovesTheChoice)
{
    EXPECT_TRUE(choix.clic({true, false, true}));
    EXPECT_EQ(choix.selligne(), 2);
    EXPECT_EQ(choix.texte(), "nuit");
    EXPECT_EQ(choix.dossier(), "nuit");
}

TEST_F(ChoixDossierTest, AClickOnTheChosenRowKeepsIt)
{
    EXPECT_TRUE(choix.clic({true, true, false}));
    EXPECT_FALSE(choix.clic({false, false, false}));
    EXPECT_EQ(choix.selligne(), 1);
}

TEST_F(ChoixDossierTest, OfSeveralRowsTheLastStands)
{
    EXPECT_TRUE(choix.clic({true, true, true}));
    EXPECT_EQ(choix.selligne(), 2);
}

TEST_F(ChoixDossierTest, GlobalIsShownByNameAndFiltersNothing)
{
    EXPECT_TRUE(choix.clic({true, true, false}));
    EXPECT_TRUE(choix.clic({true, true, false}));
    EXPECT_EQ(choix.selligne(), 0);
    EXPECT_EQ(choix.texte(), "Global");
    EXPECT_EQ(choix.dossier(), "");
}

} // namespace
} // namespace velmora::test
