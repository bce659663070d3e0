#include "rules/day_limits.h"

#include "rules/pauses.h"

namespace velmora
{

bool jugeJour(const Ligne &ligne, const JourSit &jour, const JourLu &lu, Semaine &semaine)
{
    const bool pause = !pauseok(jour, ligne.pause);
    const bool heures = ligne.maxj > 0 && lu.hjour > ligne.maxj;
    const bool amplitude = ligne.ampj > 0 && lu.hfinjour - lu.hdebjour > ligne.ampj;
    semaine.sempause = semaine.sempause || pause;
    semaine.semjour = semaine.semjour || heures;
    semaine.semamp = semaine.semamp || amplitude;
    return pause || heures || amplitude;
}

} // namespace velmora
