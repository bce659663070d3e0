#pragma once

#include "session/session.h"

namespace velmora
{

/// Opens the journal and ties the session to its main database: takes `cheminbase` from the journal, readies
/// the ring and empties the clipboard. A journal that won't open is repaired once, unless another session has
/// it. False, after a message,
/// when the session can't go on.
[[nodiscard]] bool ouvrejournal(Session &session);

/// Opens the main database and its tables; gives an empty `tnum` its row. False without a message on any
/// failure, which `echecBase` keeps.
///
/// The file is opened under `cheminjournal`, while `ouvrejournal` has looked for it under `cheminbase`: the
/// two folders are kept apart on purpose.
[[nodiscard]] bool ouvrebase(Session &session);

/// Empties the table of cut and copied days.
void videsitco(Session &session);

/// Sets `peutannul` and `peutrefaire` from the ring's head row.
void liretete(Session &session);

} // namespace velmora
