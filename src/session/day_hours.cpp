#include "session/day_hours.h"

namespace velmora
{

Horaire horaireDuJour(const JourSit &jour)
{
    Horaire horaire{jour.heurdeb, jour.heurfin, jour.hideb, jour.hifin, jour.hideb2, jour.hifin2, 0};
    for (int *heure : {&horaire.heurfin, &horaire.hideb, &horaire.hifin, &horaire.hideb2, &horaire.hifin2})
        if (*heure < horaire.heurdeb) *heure += minutesParJour;
    horaire.minutes = (horaire.heurfin - horaire.heurdeb) - (horaire.hifin - horaire.hideb) -
                      (horaire.hifin2 - horaire.hideb2);
    for (int *heure : {&horaire.heurfin, &horaire.hideb, &horaire.hifin, &horaire.hideb2, &horaire.hifin2})
        if (*heure > minutesParJour) *heure -= minutesParJour;
    return horaire;
}

} // namespace velmora
