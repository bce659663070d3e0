#include "entry/request.h"

namespace velmora
{

namespace
{

QString titreSaisie(const Session &session)
{
    if (session.saisdeb == session.saisfin) return session.saisnom + QStringLiteral(" le ") + session.saisdeb;
    return session.saisnom + QStringLiteral(" du ") + session.saisdeb + QStringLiteral(" au ") +
           session.saisfin;
}

std::optional<JourSit> jourStocke(Session &session, int nump, const QDate &dat)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    if (!sitper.seek(store::Cmp::Eq, {nump, dat})) return std::nullopt;
    return sitper.row();
}

} // namespace

bool prepareSaisie(Session &session, const QString &entete, int numligne, const QDate &date,
                   const std::optional<QDate> &finSelection)
{
    const Ligne &ligne = session.base.ligmois.row();
    if (date < ligne.datedeb || date > ligne.datefin) return false;
    session.saisdeb = Foncgen::dtoc(date);
    session.saisfin = finSelection ? Foncgen::dtoc(*finSelection) : session.saisdeb;
    session.saisnom = entete;
    session.saisligne = static_cast<float>(numligne);
    return true;
}

JourneeSaisie journeeSaisie(Session &session)
{
    JourneeSaisie journee;
    journee.dd = Foncgen::ctod(session.saisdeb);
    journee.df = Foncgen::ctod(session.saisfin);
    journee.nump = qRound(session.saisligne);
    if (session.saisligne > 0) journee.nom = session.base.ligmois.row().nom;
    journee.titre = titreSaisie(session);
    journee.jour = jourStocke(session, journee.nump, journee.dd);
    return journee;
}

} // namespace velmora
