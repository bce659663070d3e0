#pragma once

namespace velmora::cli
{

struct Appel;

/// Prints the grid of a month and may draw its window.
int commandeMois(const Appel &appel);
/// Prints the status text of a line's day.
int commandeStatut(const Appel &appel);

} // namespace velmora::cli
