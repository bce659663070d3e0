#include "workstation/toolbar_state.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace velmora::test
{
namespace
{

QStringList keysWhere(const ToolbarState &state, bool ToolbarState::Etat::*flag)
{
    QStringList keys;
    for (const BoutonDef &def : boutons())
        if (state[def.bouton].*flag) keys << def.cle;
    return keys;
}

QStringList shown(const ToolbarState &state)
{
    return keysWhere(state, &ToolbarState::Etat::visible);
}

QStringList usable(const ToolbarState &state)
{
    return keysWhere(state, &ToolbarState::Etat::enabled);
}

const QStringList monthKeys = {"Imprimer", "zoom", "Couper", "Copier", "Coller", "Undo", "Do", "absence"};

TEST(ToolbarStateTest, WithoutAMonthOnlyOpenAndSaveShow)
{
    const auto state = ToolbarState::withoutMonth();
    EXPECT_EQ(shown(state), (QStringList{"Open", "Save"}));
    EXPECT_TRUE(state[Bouton::Open].enabled);
    EXPECT_TRUE(state[Bouton::Save].enabled);
}

TEST(ToolbarStateTest, ALoadingMonthTakesOpenAndSaveAwayAndAsksTheJournal)
{
    struct Case {
        bool peutannul, peutrefaire;
    };
    for (const Case &one : {Case{true, false}, Case{false, true}, Case{false, false}}) {
        const auto state = ToolbarState::withoutMonth().onMonthLoad(one.peutannul, one.peutrefaire);
        EXPECT_EQ(shown(state).size(), boutons().size());
        EXPECT_FALSE(state[Bouton::Open].enabled);
        EXPECT_FALSE(state[Bouton::Save].enabled);
        EXPECT_EQ(state[Bouton::Undo].enabled, one.peutannul);
        EXPECT_EQ(state[Bouton::Do].enabled, one.peutrefaire);
    }
}

TEST(ToolbarStateTest, EachFlagReachesItsOwnButton)
{
    const std::pair<QString, bool EtatCommandes::*> cases[] = {
        {"Couper", &EtatCommandes::couper}, {"Copier", &EtatCommandes::copier},
        {"Coller", &EtatCommandes::coller}, {"Undo", &EtatCommandes::annuler},
        {"Do", &EtatCommandes::refaire},    {"absence", &EtatCommandes::absence},
    };
    for (const auto &[key, flag] : cases) {
        EtatCommandes commandes;
        commandes.*flag = true;
        QStringList expected;
        for (const QString &one : monthKeys)
            if (one == "Imprimer" || one == "zoom" || one == key) expected << one;
        EXPECT_EQ(usable(ToolbarState::onRefresh(commandes)), expected) << key.toStdString();
        EXPECT_EQ(shown(ToolbarState::onRefresh(commandes)).size(), boutons().size());
    }
}

TEST(ToolbarStateTest, SwitchedOffAsAWholeTheButtonsStayWhereTheyAre)
{
    const auto state = ToolbarState::onRefresh(EtatCommandes()).allOff();
    EXPECT_EQ(usable(state), QStringList());
    EXPECT_EQ(shown(state).size(), boutons().size());
    EXPECT_EQ(shown(ToolbarState::withoutMonth().allOff()), (QStringList{"Open", "Save"}));
}

TEST(ToolbarStateTest, KeysAreFoundAsTheyAreWritten)
{
    for (const BoutonDef &def : boutons())
        EXPECT_EQ(boutonDeCle(def.cle), def.bouton);
    EXPECT_FALSE(boutonDeCle("Zoom").has_value());
    EXPECT_EQ(boutons()[8].bulle, "Refaire l'opération précedente"); // as it is misspelt
}

} // namespace
} // namespace velmora::test
