#include "workstation/toolbar_state.h"

#include <algorithm>

namespace velmora
{

/// "précedente" lacks its second accent in one of the two tips: wanted so.
const std::array<BoutonDef, nombreBoutons> &boutons()
{
    static const std::array<BoutonDef, nombreBoutons> table{{
        {Bouton::Open, QStringLiteral("Open"), QStringLiteral("Ouvrir le planning d'un mois")},
        {Bouton::Save, QStringLiteral("Save"), QStringLiteral("Sauvegarder")},
        {Bouton::Imprimer, QStringLiteral("Imprimer"), QStringLiteral("Imprimer")},
        {Bouton::Zoom, QStringLiteral("zoom"), QStringLiteral("zoom journée")},
        {Bouton::Couper, QStringLiteral("Couper"), QStringLiteral("Couper")},
        {Bouton::Copier, QStringLiteral("Copier"), QStringLiteral("Copier")},
        {Bouton::Coller, QStringLiteral("Coller"), QStringLiteral("Coller")},
        {Bouton::Undo, QStringLiteral("Undo"), QStringLiteral("Annuler l'opération précédente")},
        {Bouton::Do, QStringLiteral("Do"), QStringLiteral("Refaire l'opération précedente")},
        {Bouton::Absence, QStringLiteral("absence"), QStringLiteral("Congé ou absence")},
    }};
    return table;
}

std::optional<Bouton> boutonDeCle(const QString &cle)
{
    const auto found = std::find_if(boutons().begin(), boutons().end(),
                                    [&](const BoutonDef &def) { return def.cle == cle; });
    if (found == boutons().end()) return std::nullopt;
    return found->bouton;
}

ToolbarState ToolbarState::withoutMonth()
{
    ToolbarState state;
    for (const BoutonDef &def : boutons())
        state.at(def.bouton) = {.visible = def.bouton <= Bouton::Save, .enabled = true};
    return state;
}

void ToolbarState::showMonthButtons()
{
    for (const BoutonDef &def : boutons())
        if (def.bouton <= Bouton::Save)
            at(def.bouton).enabled = false;
        else
            at(def.bouton).visible = true;
}

ToolbarState ToolbarState::onMonthLoad(bool peutannul, bool peutrefaire) const
{
    ToolbarState state = *this;
    state.showMonthButtons();
    state.at(Bouton::Undo).enabled = peutannul;
    state.at(Bouton::Do).enabled = peutrefaire;
    return state;
}

ToolbarState ToolbarState::onRefresh(const EtatCommandes &commandes)
{
    ToolbarState state;
    state.showMonthButtons();
    state.at(Bouton::Couper).enabled = commandes.couper;
    state.at(Bouton::Copier).enabled = commandes.copier;
    state.at(Bouton::Coller).enabled = commandes.coller;
    state.at(Bouton::Absence).enabled = commandes.absence;
    state.at(Bouton::Undo).enabled = commandes.annuler;
    state.at(Bouton::Do).enabled = commandes.refaire;
    return state;
}

ToolbarState ToolbarState::without(Bouton bouton) const
{
    ToolbarState state = *this;
    state.at(bouton).enabled = false;
    return state;
}

ToolbarState ToolbarState::allOff() const
{
    ToolbarState state = *this;
    for (Etat &etat : state.m_etats)
        etat.enabled = false;
    return state;
}

} // namespace velmora
