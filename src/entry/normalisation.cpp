#include "entry/normalisation.h"

#include "foncgen/foncgen.h"

#include <algorithm>
#include <utility>

namespace velmora
{

namespace
{

constexpr int largeurHeure = 5;

QString heure(int minutes)
{
    return Foncgen::fwhl(minutes, largeurHeure);
}

bool estDebut(int champ)
{
    return champ % 2 == 1;
}

} // namespace

bool horcomplet(const QString &texte)
{
    return texte.size() >= 4 && texte.at(texte.size() - 3) == QLatin1Char('h');
}

SaisieHoraire::SaisieHoraire()
{
    m_textes.fill(heure(0));
    m_total = heure(0);
}

void SaisieHoraire::ouvre(const std::optional<JourSit> &jour)
{
    m_actif = false;
    m_okPermis = false;
    if (!jour) {
        etatchamps();
        m_actif = true;
        return;
    }
    chargehor(*jour);
    m_actif = true;
    m_champ = 0;
    normhor();
    m_okPermis = true;
}

void SaisieHoraire::chargehor(const JourSit &jour)
{
    ecrit(
        {Tranche{jour.hdeb1, jour.hfin1}, Tranche{jour.hdeb2, jour.hfin2}, Tranche{jour.hdeb3, jour.hfin3}});
    etatchamps();
}

bool SaisieHoraire::normhor()
{
    if (!m_actif) return true;
    m_modifie = false;
    m_actif = false;
    Tranches tranches = lit();
    cascade(tranches);
    if (remetHorsPlage(tranches)) {
        ecrit(tranches);
        rendfocus();
        m_actif = true;
        return false;
    }
    enchaine(tranches);
    regleDuChamp(tranches);
    // The texts decide as they stand, before they are rewritten: after hours over midnight the next slice
    // stays open to the user. That is wanted.
    etatchamps();
    couleurchamps();
    const int total = totalMinutes(tranches);
    m_total = heure(total);
    m_nuit = echelleDeNuit(tranches);
    m_okPermis = true;
    m_barre = traits(tranches);
    ecrit(tranches);
    m_precedentes = tranches;
    m_actif = true;
    return total != 0;
}

void SaisieHoraire::etatchamps()
{
    m_permis = {true, m_textes[0] != m_textes[1], m_textes[2] != m_textes[3]};
}

Tranches SaisieHoraire::lit() const
{
    Tranches tranches;
    for (std::size_t i = 0; i < tranches.size(); ++i)
        tranches[i] = {Foncgen::valhor(m_textes[2 * i]), Foncgen::valhor(m_textes[2 * i + 1])};
    return tranches;
}

void SaisieHoraire::ecrit(const Tranches &tranches)
{
    for (std::size_t i = 0; i < tranches.size(); ++i) {
        m_textes[2 * i] = heure(tranches[i].deb);
        m_textes[2 * i + 1] = heure(tranches[i].fin);
    }
}

bool SaisieHoraire::remetHorsPlage(Tranches &tranches) const
{
    for (std::size_t i = 0; i < tranches.size(); ++i) {
        if (!dansLeJour(tranches[i].deb)) {
            tranches[i].deb = debprec(i);
            return true;
        }
        if (!dansLeJour(tranches[i].fin)) {
            tranches[i].fin = finprec(i);
            return true;
        }
    }
    return false;
}

void SaisieHoraire::regleDuChamp(Tranches &tranches) const
{
    if (m_champ == 0) return chaineVides(tranches, 0, 0);
    if (m_champ > nbChamps) return;
    const std::size_t i = rang(m_champ);
    if (estDebut(m_champ)) return regleDuDebut(tranches, i);
    if (!tranches[i].passeMinuit()) return chaineVides(tranches, i + 1, tranches[i].fin);
    // Nothing is worked after hours over midnight.
    std::fill(tranches.begin() + static_cast<std::ptrdiff_t>(i) + 1, tranches.end(), Tranche{});
}

void SaisieHoraire::regleDuDebut(Tranches &tranches, std::size_t i) const
{
    Tranche &tranche = tranches[i];
    if (!tranche.passeMinuit() || tranche.deb > finprec(i)) return;
    // A start pushed up to its old end, or past its old start, empties the slice; a start moved back keeps
    // hours that already ran over midnight.
    if (tranche.deb != finprec(i) && tranche.deb <= debprec(i)) return;
    tranche.fin = tranche.deb;
    chaineVides(tranches, i + 1, tranche.fin);
}

void SaisieHoraire::rendfocus()
{
    if (m_champ < 1 || m_champ > nbChamps) return;
    m_permis[rang(m_champ)] = true;
    focus(m_champ);
}

void SaisieHoraire::focus(int cible) const
{
    if (m_donneFocus) m_donneFocus(cible);
}

void SaisieHoraire::change(int champ, const QString &texte)
{
    if (m_textes[indice(champ)] == texte) return;
    m_textes[indice(champ)] = texte;
    if (!m_actif) return;
    if (estDebut(champ)) {
        changeDebut(champ);
    } else {
        changeFin(champ);
    }
}

void SaisieHoraire::changeDebut(int champ)
{
    m_modifie = true;
    if (champ != nbChamps - 1) etatchamps();
    if (horcomplet(texte(champ))) focus(champ + 1);
}

void SaisieHoraire::changeFin(int champ)
{
    if (champ == nbChamps) {
        m_modifie = true;
        if (horcomplet(texte(champ))) normhor();
        return;
    }
    if (horcomplet(texte(champ)) && normhor()) {
        m_champ = aucunChamp;
        if (permis(champ + 1)) {
            focus(champ + 1);
        } else if (m_okPermis) {
            focus(boutonOk);
        }
    }
    m_modifie = true;
    etatchamps();
}

void SaisieHoraire::focusGagne(int champ)
{
    if (m_actif) m_champ = champ;
}

void SaisieHoraire::focusPerdu(int champ)
{
    if (!m_actif || !m_modifie) return;
    m_champ = champ;
    normhor();
}

void SaisieHoraire::supprimeDepuis(int champ)
{
    m_actif = false;
    // Each text is taken from the field before it after that one changed, so one text runs to the end.
    const QString texte = champ == 1 ? heure(0) : m_textes[indice(champ - 1)];
    std::fill(m_textes.begin() + static_cast<std::ptrdiff_t>(indice(champ)), m_textes.end(), texte);
    m_champ = nbChamps;
    m_actif = true;
    normhor();
}

bool SaisieHoraire::toucheDernierChamp()
{
    m_champ = aucunChamp;
    if (!horcomplet(texte(nbChamps))) return false;
    delaiEcoule();
    return true;
}

void SaisieHoraire::delaiEcoule()
{
    if (!m_actif) return;
    m_champ = aucunChamp;
    normhor();
}

} // namespace velmora
