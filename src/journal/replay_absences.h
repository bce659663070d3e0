#pragma once

#include "session/session.h"

namespace velmora
{

// The replay of an operation's images on `absences`, which hides the hours under an absence that comes back
// and shows those under one that goes. Each returns the failure of a file; an image that can't be played is
// skipped.

/// Takes the absences of the operation `opcour` back to what they were, the last image first.
[[nodiscard]] store::Status annulabs(Session &session);

/// Brings the absences of the operation `opcour` to what it had made of them, the first image first.
[[nodiscard]] store::Status refaitabs(Session &session);

} // namespace velmora
