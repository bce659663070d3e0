#pragma once

#include "session/session.h"

#include <vector>

namespace velmora
{

/// A line as the dialog of a folder lists it.
struct LigneCochable {
    int nump = 0;
    QString texte; ///< name and first date
    bool cochee = false;
};

/// A folder under entry: its name and all lines, ticked when they are members. The session says what is
/// entered: `modeajout` for a new folder, else `dossiersel` for the one to change.
class CompositionDossier
{
public:
    /// The lines are there at once for a new folder, else once `remplit` has run. A folder to change whose
    /// head row has gone gets it again here, before anything is confirmed: this is wanted.
    explicit CompositionDossier(Session &session);

    /// Reads the lines, by name. False when there is none, which is told.
    [[nodiscard]] bool remplit();

    /// The name of the folder as its head row has it; empty for a new one.
    [[nodiscard]] const QString &designation() const { return m_designation; }
    [[nodiscard]] const std::vector<LigneCochable> &lignes() const { return m_lignes; }
    void coche(int rang, bool cochee) { m_lignes[static_cast<std::size_t>(rang)].cochee = cochee; }

    /// Whether the folder may be stored under the name as typed. A refusal is told; for a folder without
    /// lines the user is asked.
    [[nodiscard]] bool valide(const QString &texte) const;

    /// Stores the folder: members that are not ticked go, a line that is gone is left as it is. `groupe` ends
    /// on the head row. False when it was given up.
    [[nodiscard]] bool enregistre(const QString &texte);

private:
    [[nodiscard]] store::Status ajouteTete(const QString &groupe);
    [[nodiscard]] store::Status assureTete(const QString &nom);
    [[nodiscard]] store::Status ecrit(const QString &texte);
    [[nodiscard]] store::Status ecritLigne(const LigneCochable &ligne);
    [[nodiscard]] store::Status ecritMembre(int nump, bool membre);

    Session &m_session;
    QString m_designation;
    QString m_nom; ///< name of the member rows: trimmed, while the head row is as typed
    store::Bookmark<Dossier> m_tete;
    std::vector<LigneCochable> m_lignes; ///< `numlignes`: the number of the line of each row
};

} // namespace velmora
