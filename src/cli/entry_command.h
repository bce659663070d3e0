#pragma once

namespace velmora::cli
{

struct Appel;

/// Stores the hours of a line on one date or a run of dates.
int commandeSaisie(const Appel &appel);

} // namespace velmora::cli
