#pragma once

namespace velmora::cli
{

struct Appel;

/// Prints the ring: the head row, then a row per slot.
int commandeJournal(const Appel &appel);

} // namespace velmora::cli
