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

Status ecritjeu(Session &session, const QDate &dat, const SaisieJeu &saisie)
{
    auto &parcg = session.base.parcg;
    if (!session.modeajout && !placejeu(session, dat)) return {Status::Code::NoRow, {}};
    const Status status = session.modeajout ? ajoutgarde(session, parcg) : editgarde(session, parcg);
    if (!status.ok()) return status;
    parcg.values() = {dat, saisie.region, 0, saisie.nometab};
    return parcg.update();
}

Status supprime(Session &session, const QDate &date)
{
    if (!placejeu(session, date)) return {Status::Code::NoRow, {}};
    return supprgarde(session, session.base.parcg);
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
    if (!session.modeajout || !placejeu(session, Foncgen::ctod(dat))) return true;
    session.host.message(QStringLiteral("Date incorrecte: jeu de paramères déjà existant au ") + dat, titre);
    return false;
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
    return enLot(session, [&] { return ecritjeu(session, dat, saisie); }) && placejeu(session, dat);
}

DemandeFeries demandeDuJeu(Session &session)
{
    return {true, session.base.parcg.row().dat};
}

} // namespace velmora
