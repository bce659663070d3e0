#pragma once

#include "session/session.h"

namespace velmora
{

// The replay of an operation's images on `sitper`. Rows are written whole, whatever they hold by then, so
// that a replay may run again; no image of it is recorded. Each returns the failure of a file; an image that
// can't be played is skipped.

/// Takes the days of the operation `opcour` back to what they were, the last image first.
[[nodiscard]] store::Status annulsit(Session &session);

/// Brings the days of the operation `opcour` to what it had made of them, the first image first.
[[nodiscard]] store::Status refaitsit(Session &session);

} // namespace velmora
