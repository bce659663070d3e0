#include "entry/storing.h"

#include "journal/recording.h"
#include "session/batch.h"
#include "session/values.h"

namespace velmora
{

using store::Status;

namespace
{

/// The row of one date, which replaces the one that is there.
Status ecritJour(Session &session, const JourSit &jour)
{
    auto &sitper = session.base.sitper;
    BatchStep etape(session);
    sitper.setIndex("sitper01");
    Status status;
    if (sitper.seek(store::Cmp::Eq, {jour.nump, jour.dat}))
        status = supprsit(session);
    else
        status = sitper.status();
    if (status.ok()) status = ajoutsit(session);
    if (!status.ok()) return status;
    sitper.values() = jour;
    status = majsit(session);
    if (status.ok()) etape.keep();
    return status;
}

Status ecritJours(Session &session, const JourneeSaisie &journee, JourSit jour)
{
    jour.nump = journee.nump;
    for (jour.dat = journee.dd; jour.dat <= journee.df; jour.dat = jour.dat.addDays(1)) {
        jour.datj = session.host.now();
        const Status status = ecritJour(session, jour);
        if (!status.ok()) return status;
    }
    return {};
}

} // namespace

bool ecrihor(Session &session, const JourneeSaisie &journee, const JourSit &horaire)
{
    int operation = 0;
    const bool ecrit = enLot(session, [&] {
        ouvreop(session, operation, QStringLiteral("S"),
                QStringLiteral("nouvel horaire: ") + journee.nom + periodetexte(journee.dd, journee.df));
        return ecritJours(session, journee, horaire);
    });
    session.dlgvalide = ecrit;
    return ecrit;
}

} // namespace velmora
