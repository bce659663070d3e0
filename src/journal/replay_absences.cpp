#include "journal/replay_absences.h"

#include "journal/images.h"
#include "journal/recording.h"
#include "session/guards.h"

namespace velmora
{

using store::Status;

namespace
{

bool placeAbsence(Session &session, const AbsenceSaisie &image)
{
    auto &absences = session.base.absences;
    absences.setIndex("abs01");
    return absences.seek(store::Cmp::Eq, {image.nump, image.datedeb});
}

/// Deletes the absence and shows the hours under the dates that the row itself has.
Status retire(Session &session, const AbsenceSaisie &image)
{
    auto &absences = session.base.absences;
    if (!placeAbsence(session, image)) return absences.status();
    const AbsenceSaisie absence = absences.row();
    const Status status = supprgarde(session, absences);
    return status.ok() ? valsit(session, image.nump, absence.datedeb, absence.datefin, true) : status;
}

/// A row that is there keeps its `numi`. Only the image's own dates are hidden: days that the row covered
/// beyond them stay hidden too. Both wanted.
Status restaure(Session &session, const AbsenceSaisie &image)
{
    auto &absences = session.base.absences;
    const bool presente = placeAbsence(session, image);
    if (!absences.status().ok()) return absences.status();
    Status status = presente ? editgarde(session, absences) : ajoutgarde(session, absences);
    if (!status.ok()) return status;
    AbsenceSaisie &absence = absences.values();
    absence.nump = image.nump;
    absence.datedeb = image.datedeb;
    if (!presente) absence.numi = image.numi;
    absence.codabs = image.codabs;
    absence.datefin = image.datefin;
    status = absences.update();
    return status.ok() ? valsit(session, image.nump, image.datedeb, image.datefin, false) : status;
}

/// The after image of a change doesn't count, on purpose: the row stands, and its before image is written
/// over it.
bool comptePourAnnuler(const Rang &rang)
{
    return rang.avap == imageAvant || (rang.avap == imageApres && rang.foncop == ligneAjoutee);
}

bool comptePourRefaire(const Rang &rang)
{
    return rang.avap == imageApres || (rang.avap == imageAvant && rang.foncop == ligneSupprimee);
}

/// Plays an image: the absence goes or is written.
Status joue(Session &session, const ImageAbs &image, bool disparait)
{
    const AbsenceSaisie &absence = image.absence;
    noteAbsence(session.rejeu, absence.nump, absence.datedeb, absence.datefin);
    return disparait ? retire(session, absence) : restaure(session, absence);
}

} // namespace

Status annulabs(Session &session)
{
    return joueImages(session, session.journal.logabs, Marche::Envers, [&](const ImageAbs &image) {
        if (!comptePourAnnuler(image.rang)) return Status{};
        return joue(session, image, image.rang.foncop == ligneAjoutee);
    });
}

Status refaitabs(Session &session)
{
    return joueImages(session, session.journal.logabs, Marche::Enregistrement, [&](const ImageAbs &image) {
        if (!comptePourRefaire(image.rang)) return Status{};
        return joue(session, image, image.rang.foncop == ligneSupprimee);
    });
}

} // namespace velmora
