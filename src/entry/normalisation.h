#pragma once

#include "entry/slices.h"

#include <QString>

#include <array>
#include <functional>
#include <optional>

namespace velmora
{

/// Whether a typed text is a finished hour: 7h30 and 17h30 are, 7h3 is not.
[[nodiscard]] bool horcomplet(const QString &texte);

/// The state and the rules of the six hour fields of the day entry. The window hands each event of a field to
/// it and shows what it holds; fields are numbered 1 to 6, odd for a start and even for an end.
class SaisieHoraire
{
public:
    static constexpr int nbChamps = 6;
    /// Value of `champ` when no field is to be favoured.
    static constexpr int aucunChamp = 12;
    /// What the focus mover receives for the button OK.
    static constexpr int boutonOk = 7;

    using Textes = std::array<QString, nbChamps>;
    /// Gives the focus to a field, 1 to 6, or to the button OK. The loss of focus that this causes may come
    /// back into the object before it returns.
    using DonneFocus = std::function<void(int cible)>;

    SaisieHoraire();
    void surFocus(DonneFocus donneFocus) { m_donneFocus = std::move(donneFocus); }

    /// Ends the opening: takes the stored day if there is one, and makes the fields live.
    void ouvre(const std::optional<JourSit> &jour);
    /// Fills the fields from a stored day. Only slices 1 to 3 are shown.
    void chargehor(const JourSit &jour);
    /// Makes the six fields coherent, with the field `champ` as the one just changed. True if the entry can
    /// be stored; false if its total is 0 or a value out of range was put back. True and no effect while the
    /// fields are not live.
    bool normhor();
    /// Enables the fields of slices 2 and 3: each while the texts of the slice before it differ.
    void etatchamps();

    void change(int champ, const QString &texte);
    void focusGagne(int champ);
    void focusPerdu(int champ);
    /// Clears the fields from `champ` on: each takes the text of the one before it, the first takes 0h00.
    void supprimeDepuis(int champ);
    /// A key has been handled in the last field. True if that ended the wait for its normalisation.
    bool toucheDernierChamp();
    /// The last field was left as it is for a while: normalises as if it had been left.
    void delaiEcoule();

    [[nodiscard]] const Textes &textes() const { return m_textes; }
    [[nodiscard]] const QString &texte(int champ) const { return m_textes[indice(champ)]; }
    [[nodiscard]] const QString &total() const { return m_total; }
    [[nodiscard]] bool permis(int champ) const { return m_permis[rang(champ)]; }
    /// Whether a field has the colour of an enabled one. It follows `permis` at each normalisation only.
    [[nodiscard]] bool clair(int champ) const { return m_clair[rang(champ)]; }
    [[nodiscard]] bool okPermis() const { return m_okPermis; }
    [[nodiscard]] bool nuit() const { return m_nuit; }
    [[nodiscard]] const std::vector<Trait> &barre() const { return m_barre; }
    [[nodiscard]] int champ() const { return m_champ; }
    [[nodiscard]] bool modifie() const { return m_modifie; }
    [[nodiscard]] bool actif() const { return m_actif; }

private:
    static std::size_t indice(int champ) { return static_cast<std::size_t>(champ - 1); }
    static std::size_t rang(int champ) { return indice(champ) / 2; }

    [[nodiscard]] int debprec(std::size_t i) const { return m_precedentes[i].deb; }
    [[nodiscard]] int finprec(std::size_t i) const { return m_precedentes[i].fin; }
    [[nodiscard]] Tranches lit() const;
    void ecrit(const Tranches &tranches);
    bool remetHorsPlage(Tranches &tranches) const;
    void regleDuChamp(Tranches &tranches) const;
    void regleDuDebut(Tranches &tranches, std::size_t i) const;
    void changeDebut(int champ);
    void changeFin(int champ);
    void rendfocus();
    void couleurchamps() { m_clair = m_permis; }
    void focus(int cible) const;

    DonneFocus m_donneFocus;
    Textes m_textes;
    QString m_total;
    std::array<bool, 3> m_permis{true, false, false}; // by slice: both fields of a slice go together
    std::array<bool, 3> m_clair{true, false, false};
    Tranches m_precedentes{}; // as they stood after the last normalisation
    std::vector<Trait> m_barre;
    int m_champ = 0;
    bool m_modifie = false;
    bool m_actif = false;
    bool m_okPermis = false;
    bool m_nuit = false;
};

} // namespace velmora
