#pragma once

#include "planted_base.h"

namespace velmora::bench
{

/// A workstation on a planted base of one line, with its journal: what changes days is measured on it.
class Poste
{
public:
    Poste();

    PlantedBase planted{1};
    Session &session = planted.session;
};

} // namespace velmora::bench
