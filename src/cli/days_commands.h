#pragma once

namespace velmora::cli
{

struct Appel;

// Days of a line as a whole: what cut, copy, paste and delete do in the window.

int commandeCopier(const Appel &appel);
int commandeCouper(const Appel &appel);
int commandeSupprimer(const Appel &appel);

} // namespace velmora::cli
