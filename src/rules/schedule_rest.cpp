#include "rules/schedule_rest.h"

namespace velmora
{

namespace
{

// A rest of this length or less is no rest at all and never fails. Wanted.
constexpr int pasUnRepos = 45;

} // namespace

bool ReposHoraires::passe(const JourLu &lu, bool reprend)
{
    if (!lu.travaille() || m_finprec <= 0) {
        m_finprec = reprend ? lu.hfinjour : m_finprec - minutesParJour;
        return false;
    }
    const int repos = lu.hdebjour + minutesParJour - m_finprec;
    m_finprec = lu.hfinjour;
    return repos > pasUnRepos && repos < m_reposmin;
}

} // namespace velmora
