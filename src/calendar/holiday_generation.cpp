#include "calendar/holiday_generation.h"

#include "calendar/holiday_rules.h"
#include "session/records.h"

namespace velmora
{

using store::Cmp;
using store::Engine;
using store::Status;

namespace
{

/// `act` of a row that beginning anew may delete; a row entered by hand has 1.
constexpr int genere = 0;
constexpr int anneesGenerees = 2;
constexpr int derniereAnnee = 9999; // the last that a date has a text for

/// Whether the region in force on a date observes a rule. Without any set there is no region.
bool observee(store::MainDatabase &base, int regle, const QDate &date)
{
    jeuaudate(base, date);
    return base.parcg.hasRow() && regionferie(base.parcg.row().fdomtom, regle);
}

Status ajouteGenere(store::Table<JourFerie> &ferie, const QDate &date, const QString &lib)
{
    const Status status = ferie.addNew();
    if (!status.ok()) return status;
    ferie.values() = {date, date, lib, genere, 1};
    return ferie.update();
}

Status supprimeGeneres(store::Table<JourFerie> &ferie, const QDate &depuis)
{
    bool trouve = ferie.seek(Cmp::Ge, {depuis});
    while (trouve) {
        const Status status = ferie.row().act == genere ? ferie.erase() : Status{};
        if (!status.ok()) return status;
        trouve = ferie.next();
    }
    return ferie.status();
}

Status recommence(store::MainDatabase &base, const QDate &dateappli)
{
    Status status = supprimeGeneres(base.ferie, dateappli);
    for (int i = 0; i < anneesGenerees && status.ok(); ++i)
        status = genannee(base, {}, dateappli.year() + i);
    return status;
}

Status complete(store::MainDatabase &base, const QDate &dernier, int cetteAnnee)
{
    Status status;
    for (int annee = cetteAnnee; annee < cetteAnnee + anneesGenerees && status.ok(); ++annee)
        if (annee > dernier.year()) status = genannee(base, dernier, annee);
    return status;
}

} // namespace

bool feriesAJour(store::MainDatabase &base, const QDate &aujourdhui)
{
    base.ferie.setIndex("ferie01");
    return base.ferie.last() && base.ferie.row().datedeb.year() > aujourdhui.year();
}

Status genannee(store::MainDatabase &base, const QDate &depuis, int annee)
{
    if (annee > derniereAnnee) return {};
    auto &ferie = base.ferie;
    ferie.setIndex("ferie01");
    // The order decides: of two rules on one date the higher number is written, and the other finds the date
    // taken.
    for (int regle = nombreRegles; regle >= 1; --regle) {
        const QDate date = dateferie(regle, annee);
        if (depuis.isValid() && date < depuis) continue;
        const bool ici = observee(base, regle, date);
        if (!base.parcg.status().ok()) return base.parcg.status();
        if (!ici || ferie.seek(Cmp::Eq, {date})) continue;
        const Status cherche = ferie.status();
        const Status status = cherche.ok() ? ajouteGenere(ferie, date, libferie(regle)) : cherche;
        if (!status.ok()) return status;
    }
    return {};
}

Status genereferies(store::MainDatabase &base, const QDate &aujourdhui, const DemandeFeries &demande)
{
    auto &ferie = base.ferie;
    ferie.setIndex("ferie01");
    const bool rangees = ferie.last();
    if (!ferie.status().ok()) return ferie.status();
    if (demande.reinitferie || !rangees) return recommence(base, demande.dateappli);
    return complete(base, ferie.row().datedeb, aujourdhui.year());
}

Status chargeferies(Session &session, const DemandeFeries &demande)
{
    auto &base = session.base;
    const QDate aujourdhui = session.host.today();
    if (!demande.reinitferie && feriesAJour(base, aujourdhui)) return {};
    Status status = base.engine.begin(Engine::Transaction::Write);
    if (!status.ok()) return status;
    status = genereferies(base, aujourdhui, demande);
    if (status.ok()) status = base.engine.commit();
    if (status.ok()) return status;
    base.engine.rollback();
    base.ferie.cancelUpdate();
    return status;
}

} // namespace velmora
