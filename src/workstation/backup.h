#pragma once

#include "session/session.h"
#include "store/copying.h"

namespace velmora
{

/// The target of a backup: its folder, or why there is none.
struct CibleSauvegarde {
    QString dossier;
    QString refus; ///< empty when the folder can be tried
};

/// The target as the user typed it. A separator at its end is cut off. The folders that the databases lie in
/// are refused, as a copy would take the place of what it was made from, and so is one that another
/// workstation is seen to use.
[[nodiscard]] CibleSauvegarde cibleSauvegarde(const Session &session, QString texte);

/// The target that the base remembers, empty for none.
[[nodiscard]] QString derniereCible(Session &session);

/// What came of a backup.
struct Sauvegarde {
    bool complete = false;  ///< both copies are made and have been found sound
    bool rouvertes = false; ///< the databases are open again; else the system has to close
    QString bilan;          ///< the same for the user, file by file when something failed
};

/// Remembers the target, closes both databases, copies each into it and opens them again. A copy that fails
/// leaves its original, the other copy and an earlier copy of the same file as they are. Databases that don't
/// open again are told in a message. `agent` is then on its first row and the user's place in it is lost:
/// wanted so.
[[nodiscard]] Sauvegarde sauvegarde(Session &session, const QString &dossier,
                                    const store::CopyProgress &progression = {});

} // namespace velmora
