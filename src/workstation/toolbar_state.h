#pragma once

#include "month/commands.h"

#include <QString>

#include <array>
#include <optional>

namespace velmora
{

/// The buttons of the main window's toolbar, in their order.
enum class Bouton { Open, Save, Imprimer, Zoom, Couper, Copier, Coller, Undo, Do, Absence };

/// A button's key, by which it is known to tests and to the month form, and its tip.
struct BoutonDef {
    Bouton bouton;
    QString cle;
    QString bulle;
};

inline constexpr std::size_t nombreBoutons = 10;

/// The buttons in their order.
[[nodiscard]] const std::array<BoutonDef, nombreBoutons> &boutons();

/// The button of a key.
[[nodiscard]] std::optional<Bouton> boutonDeCle(const QString &cle);

/// Which buttons of the toolbar are shown and which can be used.
class ToolbarState
{
public:
    struct Etat {
        bool visible = true;
        bool enabled = true;
        friend bool operator==(const Etat &, const Etat &) = default;
    };

    /// No month is open: the buttons up to "Save" alone.
    [[nodiscard]] static ToolbarState withoutMonth();

    /// A month begins to load: the buttons up to "Save" go off, the others show, undo and redo as the journal
    /// can. The others keep what they were.
    [[nodiscard]] ToolbarState onMonthLoad(bool peutannul, bool peutrefaire) const;

    /// The current cell has been looked at.
    [[nodiscard]] static ToolbarState onRefresh(const EtatCommandes &commandes);

    /// The same with one button off: its command doesn't exist.
    [[nodiscard]] ToolbarState without(Bouton bouton) const;

    /// Every button off, shown or not as it was.
    [[nodiscard]] ToolbarState allOff() const;

    [[nodiscard]] const Etat &operator[](Bouton bouton) const { return m_etats[rang(bouton)]; }

    friend bool operator==(const ToolbarState &, const ToolbarState &) = default;

private:
    static std::size_t rang(Bouton bouton) { return static_cast<std::size_t>(bouton); }
    Etat &at(Bouton bouton) { return m_etats[rang(bouton)]; }
    void showMonthButtons();

    std::array<Etat, nombreBoutons> m_etats{};
};

} // namespace velmora
