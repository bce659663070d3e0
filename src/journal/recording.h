#pragma once

#include "session/session.h"

namespace velmora
{

/// The reset value of `ecritop`'s first argument.
inline const QString ficopRemise = QStringLiteral("?");

/// Opens a new operation in the ring and returns its slot's `numop`, which is also left in `opcour`. A free
/// or undone slot is taken, or the oldest of a full ring; its old images go. `ficop` is "S" for a command
/// that changes only `sitper`, "A" for one that may change `absences` too; "?" only resets the head row and
/// returns 0. The redo flag stays as it was, on purpose: redo may show as possible after a new operation and
/// then does nothing. Nothing closes an operation: whatever changes until the next one joins it, which is
/// wanted. Returns 0, and the ring is as it was, when the journal can't take the whole of the operation of a
/// running batch: the planning changes all the same. Without a transaction a step that fails is left undone.
int ecritop(Session &session, const QString &ficop, const QString &libop);

/// Opens the operation of a command that may be tried again: `operation` is 0 at the first try. A later one
/// goes on with it, unless the failure took that back too.
void ouvreop(Session &session, int &operation, const QString &ficop, const QString &libop);

/// Empties a slot's images.
[[nodiscard]] store::Status purgeop(Session &session, int numop);

// Guarded changes of `sitper`, recorded as row images. Each returns the failure of the planning's own row;
// a failure to record an image is passed over.

/// Before image, then begins the change of the current row.
[[nodiscard]] store::Status editsit(Session &session);
/// Begins a new row.
[[nodiscard]] store::Status ajoutsit(Session &session);
/// Before image, then deletes the current row.
[[nodiscard]] store::Status supprsit(Session &session);
/// Ends a change or a new row, goes to the written row and records its after image.
[[nodiscard]] store::Status majsit(Session &session);

// The same for `absences`.
[[nodiscard]] store::Status editabs(Session &session);
[[nodiscard]] store::Status ajoutabs(Session &session);
[[nodiscard]] store::Status supprabs(Session &session);
[[nodiscard]] store::Status majabs(Session &session);

/// Sets `Val` on the rows of a line from one date to another, both included. It records no image: an
/// absence's images bring the effect back when they are replayed. A row deleted meanwhile is passed.
[[nodiscard]] store::Status valsit(Session &session, int nump, const QDate &premier, const QDate &dernier,
                                   bool valeur);

} // namespace velmora
