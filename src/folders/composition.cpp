#include "folders/composition.h"

#include "folders/folder_list.h"
#include "foncgen/foncgen.h"
#include "session/batch.h"
#include "session/guards.h"

#include <algorithm>
#include <utility>

namespace velmora
{

using store::Cmp;
using store::Status;

namespace
{

const QString titreDossier = QStringLiteral("Velmora");

/// Whether a folder has the name, as it is typed or without the blanks around it: a head row keeps them.
bool nomPris(Session &session, const QString &texte)
{
    return placedossier(session, texte.trimmed()) || placedossier(session, texte);
}

bool refuseNom(Session &session)
{
    session.host.message(QStringLiteral("dossier déjà défini - changez la désignation !"), titreDossier);
    return false;
}

} // namespace

CompositionDossier::CompositionDossier(Session &session) : m_session(session)
{
    if (session.modeajout) return;
    m_designation = session.dossiersel;
    m_nom = m_designation.trimmed();
    auto &groupe = session.base.groupe;
    const bool presente =
        placedossier(session, m_designation) || enLot(session, [this] { return assureTete(m_designation); });
    if (presente) m_tete = groupe.bookmark();
}

/// Adds the head row and makes it current.
Status CompositionDossier::ajouteTete(const QString &nom)
{
    auto &groupe = m_session.base.groupe;
    Status status = ajoutgarde(m_session, groupe);
    if (!status.ok()) return status;
    groupe.values().groupe = nom;
    status = groupe.update();
    if (!status.ok()) return status;
    groupe.goTo(groupe.lastModified());
    m_tete = groupe.bookmark();
    return groupe.status();
}

/// Makes the head row current, and adds it when there is none.
Status CompositionDossier::assureTete(const QString &nom)
{
    if (placedossier(m_session, nom)) return {};
    const Status status = m_session.base.groupe.status();
    return status.ok() ? ajouteTete(nom) : status;
}

bool CompositionDossier::remplit()
{
    auto &groupe = m_session.base.groupe;
    Status lecture;
    m_lignes.clear();
    auto lignes = m_session.base.ligmois.range("ligmois02", {}, {});
    while (lignes.next()) {
        const Ligne &ligne = lignes.row();
        const bool range = !m_session.modeajout && placemembre(m_session, m_nom, ligne.nump);
        const bool membre = range && groupe.row().sel;
        if (!m_session.modeajout && !range && lecture.ok()) lecture = groupe.status();
        m_lignes.push_back({ligne.nump, ligne.nom + QLatin1Char(' ') + Foncgen::dtoc(ligne.datedeb), membre});
    }
    if (lecture.ok()) lecture = lignes.status();
    // A line that couldn't be looked up would show without its tick, and the save would take it out.
    if (!lecture.ok()) {
        ditEchecDisque(m_session);
        return false;
    }
    if (!m_lignes.empty()) return true;
    m_session.host.message(QStringLiteral("vous devez saisir les lignes préalablement"), titreDossier);
    return false;
}

bool CompositionDossier::valide(const QString &texte) const
{
    Host &host = m_session.host;
    const QString nom = texte.trimmed();
    if (m_session.modeajout && nom.isEmpty()) {
        host.message(QStringLiteral("donner une appellation au dossier !"), titreDossier);
        return false;
    }
    if (m_session.modeajout && nomPris(m_session, texte)) return refuseNom(m_session);
    const bool garni = std::any_of(m_lignes.begin(), m_lignes.end(),
                                   [](const LigneCochable &ligne) { return ligne.cochee; });
    return garni || host.question(QStringLiteral(" aucune ligne n'est sélectée : continuer ?"), titreDossier);
}

bool CompositionDossier::enregistre(const QString &texte)
{
    bool pris = false;
    bool repris = false;
    const bool fait = enLot(m_session, [&] {
        // Another workstation can have given the name since it was checked. A second try may find the head
        // row of the first.
        pris = m_session.modeajout && !std::exchange(repris, true) && nomPris(m_session, texte);
        return pris ? Status{} : ecrit(texte);
    });
    if (pris) return refuseNom(m_session);
    if (!fait) return false;
    m_session.base.groupe.goTo(m_tete);
    return true;
}

Status CompositionDossier::ecrit(const QString &texte)
{
    // The head row keeps the blanks around the name and the member rows don't: this is wanted.
    if (m_session.modeajout) m_nom = texte.trimmed();
    // Another workstation can have deleted the folder since the dialog opened: lines without a head row would
    // be no folder.
    Status status = assureTete(m_session.modeajout ? texte : m_designation);
    for (const LigneCochable &ligne : m_lignes)
        if (status.ok()) status = ecritLigne(ligne);
    return status;
}

Status CompositionDossier::ecritLigne(const LigneCochable &ligne)
{
    auto &ligmois = m_session.base.ligmois;
    ligmois.setIndex("ligmois01");
    return ligmois.seek(Cmp::Eq, {ligne.nump}) ? ecritMembre(ligne.nump, ligne.cochee) : ligmois.status();
}

Status CompositionDossier::ecritMembre(int nump, bool membre)
{
    auto &groupe = m_session.base.groupe;
    const bool present = placemembre(m_session, m_nom, nump);
    if (!membre) return present ? supprgarde(m_session, groupe) : groupe.status();
    const Status status = present ? editgarde(m_session, groupe) : ajoutgarde(m_session, groupe);
    if (!status.ok()) return status;
    groupe.values() = {m_nom, nump, true};
    return groupe.update();
}

} // namespace velmora
