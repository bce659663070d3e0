#pragma once

namespace velmora::cli
{

struct Appel;

/// Makes what is missing of the two databases.
int commandeInit(const Appel &appel);
/// Makes both databases with example data.
int commandeDemo(const Appel &appel);

} // namespace velmora::cli
