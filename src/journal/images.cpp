#include "journal/images.h"

namespace velmora
{

bool fichierEnPanne(const store::Status &status)
{
    using Code = store::Status::Code;
    switch (status.code()) {
    case Code::Ok:
    case Code::Constraint:
    case Code::NoRow:
    case Code::Misuse: return false;
    default: return true;
    }
}

} // namespace velmora
