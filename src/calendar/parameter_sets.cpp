#include "calendar/parameter_sets.h"

#include "foncgen/foncgen.h"
#include "session/batch.h"
#include "session/guards.h"

namespace velmora
{

using store::Cmp;
using store::Status;

namespace
{

/// `present` tells that `parcg` stands on the set of the date.
Status ecritjeu(Session &session, bool present, const QDate &dat, const SaisieJeu &saisie)
{
    auto &parcg = session.base.parcg;
    if (!present && !session.modeajout) return {Status::Code::NoRow, {}};
    const Status status = present ? editgarde(session, parcg) : ajoutgarde(session, parcg);
    if (!status.ok()) return status;
    parcg.values() = {dat, saisie.region, 0, saisie.nometab};
    return parcg.update();
}

/// A set that is gone by now leaves nothing to do.
Status supprime(Session &session, const QDate &date)
{
    auto &parcg = session.base.parcg;
    return placejeu(session, date) ? supprgarde(session, parcg) : parcg.status();
}

bool refuseDate(Session &session, const QString &dat)
{
    session.host.message(QStringLiteral("Date incorrecte: jeu de paramères déjà existant au ") + dat, titre);
    return false;
}

} // namespace

QString lignejeu(const JeuParam &jeu)
{
    return Foncgen::dtoc(jeu.dat) + QStringLiteral(" jeu de paramètres");
}

QStringList listejeux(Session &session)
{
    QStringList lignes;
    auto jeux = session.base.parcg.range("parcg01", {}, {});
    while (jeux.next())
        lignes << lignejeu(jeux.row());
    return lignes;
}

bool placejeu(Session &session, const QDate &date)
{
    auto &parcg = session.base.parcg;
    parcg.setIndex("parcg01");
    return parcg.seek(Cmp::Eq, {date});
}

bool supprjeu(Session &session, const QDate &date)
{
    const auto question = QStringLiteral("êtes vous sur de voumoir supprimer cet enregistrement ?");
    if (!session.host.question(question, titre)) return false;
    return enLot(session, [&] { return supprime(session, date); });
}

bool peutfermer(Session &session)
{
    auto &parcg = session.base.parcg;
    const QDate today = session.host.today();
    parcg.setIndex("parcg01");
    if (parcg.seek(Cmp::Le, {today})) return true;
    return session.host.question(QStringLiteral("Il est nécessaire d'avoir un jeu de paramètres <= ") +
                                     Foncgen::dtoc(today) + QStringLiteral(" ! Voulez vous quitter ?"),
                                 titre);
}

SaisieJeu saisieDepart(Session &session)
{
    auto &parcg = session.base.parcg;
    parcg.setIndex("parcg01");
    const bool trouve = session.modeajout ? parcg.last() : parcg.hasRow();
    const JeuParam jeu = trouve ? parcg.row() : JeuParam{};
    session.nometab = jeu.nometab;
    const QDate dat = session.modeajout ? session.host.today() : jeu.dat;
    return {Foncgen::dtoc(dat), jeu.fdomtom, jeu.nometab};
}

bool contg(Session &session, const QString &dat)
{
    return !session.modeajout || !placejeu(session, Foncgen::ctod(dat)) || refuseDate(session, dat);
}

bool enregistrejeu(Session &session, const SaisieJeu &saisie)
{
    const QDate dat = Foncgen::ctod(saisie.dat);
    if (!dat.isValid()) {
        session.host.message(QStringLiteral("DATE INCORRECTE"), titre);
        return false;
    }
    if (!contg(session, saisie.dat)) return false;
    session.nometab = saisie.nometab;
    bool ecrit = false;
    bool pris = false;
    const bool fait = enLot(session, [&] {
        const bool present = placejeu(session, dat);
        if (!present && !session.base.parcg.status().ok()) return session.base.parcg.status();
        // Another workstation can have added a set of the date since it was checked. A commit that the disk
        // reported as failed may stand all the same: the next try meets its own row.
        pris = session.modeajout && present && !ecrit;
        if (pris) return Status{};
        const Status status = ecritjeu(session, present, dat, saisie);
        ecrit = ecrit || status.ok();
        return status;
    });
    if (pris) return refuseDate(session, saisie.dat);
    return fait && placejeu(session, dat);
}

DemandeFeries demandeDuJeu(Session &session)
{
    return {true, session.base.parcg.row().dat};
}

} // namespace velmora
