#pragma once

#include "session/session.h"

#include <optional>

namespace velmora
{

/// Takes back the latest operation in force, after a question that names it. Nothing happens on no, when
/// `peutannul` is false, or when the ring has no such operation. All rows of both files change in one
/// transaction; a row that was changed since, here or elsewhere, is overwritten or deleted without a word.
/// When the disk fails or another workstation holds the file, everything is taken back and the user is asked
/// whether to try again. What was touched is left in `rejeu`. False when the store failed for good.
bool annulop(Session &session);

/// Puts back the operation that was taken back last, in the same way. After a new operation `peutrefaire`
/// may still be true; then there is nothing to put back and nothing is asked. Wanted.
bool refaitop(Session &session);

/// The operation that `annulop` would ask about, if any.
[[nodiscard]] std::optional<Operation> operationAAnnuler(Session &session);

/// The operation that `refaitop` would ask about, if any.
[[nodiscard]] std::optional<Operation> operationARefaire(Session &session);

} // namespace velmora
