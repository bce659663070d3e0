#pragma once

namespace velmora::cli
{

struct Appel;

/// Takes back the latest operation in force, once the question is answered yes.
int commandeAnnuler(const Appel &appel);

/// Puts back the operation taken back last, once the question is answered yes.
int commandeRefaire(const Appel &appel);

} // namespace velmora::cli
