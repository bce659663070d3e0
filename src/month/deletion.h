#pragma once

#include "session/session.h"

namespace velmora
{

struct Planning;

/// How a deletion ended.
enum class Suppression {
    SansObjet,
    Refusee,
    Abandonnee, ///< the store failed for good, and has said it
    Faite
};

/// Deletes what a line holds from one date to another, both included, once the user has agreed: the absence
/// that covers the first date, whole even beyond them, whose hidden hours then count again; without one, the
/// hours of the dates. An absence that another workstation changed during the question stays. The operation
/// is opened before the question, so that a refusal leaves an empty one in the journal. That is wanted. No
/// lock is held while the question stands.
Suppression supprimeJours(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin);

/// Whether a line has a row of hours on one of the dates. `sitper` stands on the first.
[[nodiscard]] bool horairesEntre(Session &session, int nump, const QDate &debut, const QDate &fin);

/// Removes the row of a date, if there is one, in the operation being recorded.
[[nodiscard]] store::Status supprimeJour(Session &session, int nump, const QDate &dat);

/// Deletes the absence or the hours of the selection or of the current cell. It empties the clipboard
/// whatever the answer, and whether or not there is something to delete.
void supcell(Planning &planning);

} // namespace velmora
