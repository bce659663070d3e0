#include "calendar/holiday_list.h"

#include "foncgen/foncgen.h"
#include "session/batch.h"
#include "session/records.h"

namespace velmora
{

using store::Status;

namespace
{

constexpr int longueurDate = 10;
constexpr int debutDerniereDate = 11;

const QDate &premiereDate()
{
    static const QDate date(1990, 1, 1);
    return date;
}

/// Ends an edit of `ferie`; a failure is told and leaves no edit open.
bool conclut(Session &session, const Status &status)
{
    if (status.ok()) return true;
    session.base.ferie.cancelUpdate();
    ditEchecDisque(session);
    return false;
}

bool refuse(Session &session, const QString &texte)
{
    session.host.message(texte, titre);
    return false;
}

Status ajoute(store::Table<JourFerie> &ferie, const QDate &date, const QString &lib)
{
    const Status status = ferie.addNew();
    if (!status.ok()) return status;
    ferie.values() = {date, date, lib, 1, 1};
    return ferie.update();
}

Status modifie(store::Table<JourFerie> &ferie, const QString &lib)
{
    const Status status = ferie.edit();
    if (!status.ok()) return status;
    ferie.values().datefin = ferie.values().datedeb;
    ferie.values().lib = lib;
    ferie.values().act = 0;
    return ferie.update();
}

} // namespace

QString ligneferie(const JourFerie &jour)
{
    return Foncgen::dtoc(jour.datedeb) + QStringLiteral("\t\t") + jour.lib;
}

QStringList listeferies(Session &session)
{
    QStringList lignes;
    auto jours = session.base.ferie.range("ferie01", {}, {});
    while (jours.next())
        lignes << ligneferie(jours.row());
    return lignes;
}

QDate dateDeLigne(const QString &ligne)
{
    return Foncgen::ctod(ligne.left(longueurDate));
}

int ligneAjoutee(const QStringList &lignes, const JourFerie &jour)
{
    for (qsizetype ligne = 0; ligne < lignes.size(); ++ligne) {
        const QDate derniere = Foncgen::ctod(lignes[ligne].mid(debutDerniereDate, longueurDate));
        if (dateDeLigne(lignes[ligne]) == jour.datedeb && derniere == jour.datefin)
            return static_cast<int>(ligne);
    }
    return -1;
}

bool ajouteferie(Session &session, const QDate &date, const QString &lib)
{
    if (date < premiereDate()) return refuse(session, QStringLiteral("DATE INCORRECTE"));
    auto &ferie = session.base.ferie;
    const auto place = ferie.bookmark();
    if (jourferie(session, date)) {
        ferie.goTo(place);
        return refuse(session, QStringLiteral("JOUR FERIE DEJA PREVU"));
    }
    Status status = ferie.status();
    if (status.ok()) status = ajoute(ferie, date, lib);
    return conclut(session, status) && ferie.goTo(ferie.lastModified());
}

bool modifieferie(Session &session, const QDate &date, const QString &lib)
{
    auto &ferie = session.base.ferie;
    const bool trouve = jourferie(session, date);
    return conclut(session, trouve ? modifie(ferie, lib) : Status{Status::Code::NoRow, {}});
}

bool supprferie(Session &session, const QDate &date)
{
    if (!session.host.question(QStringLiteral("confirmer la suppression !"), titre)) return false;
    const bool trouve = jourferie(session, date);
    return conclut(session, trouve ? session.base.ferie.erase() : Status{Status::Code::NoRow, {}});
}

} // namespace velmora
