#include "workstation/colours.h"

#include "support/workstation.h"

#include <gmock/gmock.h>

namespace velmora::test
{
namespace
{

constexpr QRgb texteFenetre = 0xff123456;

class ColoursTest : public testing::Test
{
protected:
    Workstation station;
    Session &session = station.session;

    void write(const Affichage &affichage)
    {
        auto &agent = session.base.agent;
        ASSERT_TRUE(agent.edit().ok());
        agent.values().affichage = affichage;
        ASSERT_TRUE(agent.update().ok());
    }
    /// The row as another workstation would read it.
    Affichage stored()
    {
        auto rows = session.base.agent.range("", {}, {});
        EXPECT_TRUE(rows.next());
        return rows.row().affichage;
    }
    static Affichage complete()
    {
        Affichage affichage = affichageParDefaut(texteFenetre, {});
        affichage.cclbp = 0x010203;
        affichage.haut1 = 411;
        affichage.fontb3 = true;
        return affichage;
    }
};

TEST_F(ColoursTest, FirstStartGivesTheRowItsDefaults)
{
    gescolor(session, texteFenetre);
    const Affichage row = stored();
    EXPECT_EQ(row.cclbp, 0xE0E0E0);
    EXPECT_EQ(row.cclfgrid, 0x000040);
    EXPECT_EQ(row.cclberr, 0x00C000);
    EXPECT_EQ(row.cclfnom, 0x000080);
    EXPECT_EQ(row.cclfm2, 0x123456);
    EXPECT_EQ(row.font3, "MS Serif");
    EXPECT_EQ(row.larg03, 850);
    EXPECT_EQ(session.affichage.haut1, 350);
}

TEST_F(ColoursTest, FourColoursFollowTheEvenLine)
{
    gescolor(session, texteFenetre);
    const Affichage row = stored();
    EXPECT_EQ(row.cclbnpp, row.cclbp);
    EXPECT_EQ(row.cclbnpip, row.cclbpi);
    EXPECT_EQ(row.cclfnpp, row.cclfp);
    EXPECT_EQ(row.cclfnpip, row.cclfpi);
    EXPECT_NE(row.cclbnpp, row.cclbnp);
}

TEST_F(ColoursTest, FirstFontIsTheAnswerOfAComparisonAndNotAName)
{
    EXPECT_EQ(affichageParDefaut(texteFenetre, {}).font1, "0");
    EXPECT_EQ(affichageParDefaut(texteFenetre, "MS Sans Serif").font1, "-1");
}

TEST_F(ColoursTest, ACompleteRowKeepsEveryValue)
{
    write(complete());
    gescolor(session, texteFenetre);
    EXPECT_EQ(stored().cclbp, 0x010203);
    EXPECT_EQ(session.affichage.cclbp, 0x010203);
    EXPECT_EQ(session.affichage.haut1, 411);
    EXPECT_TRUE(session.affichage.fontb3);
}

TEST_F(ColoursTest, OneMissingValueBringsAllDefaultsBack)
{
    const std::pair<const char *, void (*)(Affichage &)> cases[] = {
        {"cclfm", [](Affichage &a) { a.cclfm.reset(); }},
        {"cclbnpp", [](Affichage &a) { a.cclbnpp.reset(); }},
        {"cclferr", [](Affichage &a) { a.cclferr.reset(); }},
        {"font2", [](Affichage &a) { a.font2 = QString(); }},
        {"larg02", [](Affichage &a) { a.larg02 = 0; }},
        {"largn2", [](Affichage &a) { a.largn2 = 0; }},
    };
    for (const auto &[field, spoil] : cases) {
        Affichage affichage = complete();
        spoil(affichage);
        write(affichage);
        gescolor(session, texteFenetre);
        EXPECT_EQ(stored().cclbp, 0xE0E0E0) << field;
        EXPECT_EQ(session.affichage.haut1, 350) << field;
    }
}

TEST_F(ColoursTest, AMissingValueThatIsNotLookedAtChangesNothing)
{
    Affichage affichage = complete();
    affichage.cclbsel.reset();
    affichage.larg01 = 0;
    write(affichage);
    gescolor(session, texteFenetre);
    EXPECT_EQ(stored().cclbp, 0x010203);
    EXPECT_FALSE(session.affichage.cclbsel.has_value());
}

TEST_F(ColoursTest, CloseWritesTheSettingsToTheUsersOwnRow)
{
    auto &agent = session.base.agent;
    ASSERT_TRUE(agent.addNew().ok());
    agent.values().pseudo = "PAUL";
    ASSERT_TRUE(agent.update().ok());
    ASSERT_TRUE(agent.first() && agent.next());
    gescolor(session, texteFenetre);
    session.affichage.haut1 = 500;
    session.affichage.cclbm1 = 0x0A0B0C;
    ecritAffichage(session);

    ASSERT_TRUE(agent.first());
    EXPECT_EQ(agent.row().affichage.haut1, 0);
    ASSERT_TRUE(agent.next());
    EXPECT_EQ(agent.row().pseudo, "PAUL");
    EXPECT_EQ(agent.row().affichage.haut1, 500);
    EXPECT_EQ(agent.row().affichage.cclbm1, 0x0A0B0C);
}

TEST_F(ColoursTest, NoUserMeansNoQuestionAndNoCrash)
{
    ASSERT_TRUE(session.base.agent.erase().ok());
    gescolor(session, texteFenetre);
    ecritAffichage(session);
    EXPECT_EQ(session.base.agent.recordCount(), 0);
}

} // namespace
} // namespace velmora::test
