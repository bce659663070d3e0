#include "journal/replay_hours.h"

#include "journal/images.h"
#include "session/guards.h"

namespace velmora
{

using store::Status;

namespace
{

bool placeJour(Session &session, const JourSit &jour)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    return sitper.seek(store::Cmp::Eq, {jour.nump, jour.dat});
}

Status retire(Session &session, const JourSit &jour)
{
    auto &sitper = session.base.sitper;
    return placeJour(session, jour) ? supprgarde(session, sitper) : sitper.status();
}

/// Writes the day as its image shows it. `babs` is among the fields and is empty in every image, so that it
/// is lost here. Wanted.
Status restaure(Session &session, const JourSit &jour)
{
    auto &sitper = session.base.sitper;
    const bool presente = placeJour(session, jour);
    if (!sitper.status().ok()) return sitper.status();
    Status status = presente ? editgarde(session, sitper) : ajoutgarde(session, sitper);
    if (!status.ok()) return status;
    sitper.values() = jour;
    status = sitper.update();
    if (status.ok()) sitper.goToModified();
    return status;
}

bool changee(const Rang &rang, const QString &avap)
{
    return rang.foncop == ligneChangee && rang.avap == avap;
}

bool comptePourAnnuler(const Rang &rang)
{
    const bool ecrite = rang.foncop == ligneAjoutee || rang.foncop == ligneChangee;
    return rang.avap == imageAvant || (rang.avap == imageApres && ecrite);
}

bool comptePourRefaire(const Rang &rang)
{
    const bool otee = rang.foncop == ligneChangee || rang.foncop == ligneSupprimee;
    return rang.avap == imageApres || (rang.avap == imageAvant && otee);
}

/// Plays an image: the day goes or is written.
Status joue(Session &session, const ImageSit &image, bool disparait)
{
    noteJour(session.rejeu, image.jour.nump, image.jour.dat);
    return disparait ? retire(session, image.jour) : restaure(session, image.jour);
}

} // namespace

Status annulsit(Session &session)
{
    return joueImages(session, session.journal.sitlog, Marche::Envers, [&](const ImageSit &image) {
        if (!comptePourAnnuler(image.rang)) return Status{};
        return joue(session, image, image.rang.foncop == ligneAjoutee || changee(image.rang, imageApres));
    });
}

Status refaitsit(Session &session)
{
    return joueImages(session, session.journal.sitlog, Marche::Enregistrement, [&](const ImageSit &image) {
        if (!comptePourRefaire(image.rang)) return Status{};
        return joue(session, image, image.rang.foncop == ligneSupprimee || changee(image.rang, imageAvant));
    });
}

} // namespace velmora
