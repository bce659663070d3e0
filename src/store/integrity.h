#pragma once

#include "store/engine.h"

namespace velmora::store
{

/// Reads every page and every entry of every index of the open database. Damage is a failure.
[[nodiscard]] Status checkIntegrity(Engine &engine);

} // namespace velmora::store
