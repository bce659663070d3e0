#include "month/deletion.h"

#include "journal/recording.h"
#include "month/cursor.h"
#include "month/rows.h"
#include "month/target.h"
#include "session/batch.h"
#include "session/records.h"
#include "session/values.h"

namespace velmora
{

using store::Cmp;
using store::Status;

namespace
{

/// Opens the operation in a transaction of its own, so that none is open at the question. An absence's
/// deletion is an operation on hours too, and its undoing doesn't bring the absence back. That is wanted.
void ouvreOperation(Session &session, const QString &libop)
{
    enLot(session, [&] {
        session.opcour = ecritop(session, QStringLiteral("S"), libop);
        return Status{};
    });
}

/// Whether the current row is the absence that the user was shown: the store gives the place of a deleted one
/// to the next, and another workstation may have changed it.
bool resteLaMeme(Session &session, const AbsenceSaisie &montree)
{
    const AbsenceSaisie &absence = session.base.absences.row();
    return absence.nump == montree.nump && absence.codabs == montree.codabs &&
           absence.datedeb == montree.datedeb && absence.datefin == montree.datefin;
}

/// How far the deletion of an absence has come.
struct Retrait {
    bool commence = false; ///< an earlier try has deleted it
    bool autre = false;    ///< another absence, or another state of it, stands in its place
};

/// An absence that is gone by now leaves nothing to do, unless an earlier try has deleted it.
Status retireAbsence(Session &session, const store::Bookmark<AbsenceSaisie> &place, Retrait &retrait)
{
    auto &absences = session.base.absences;
    const bool occupee = absences.goTo(place);
    const bool presente = occupee && resteLaMeme(session, place.row());
    retrait.autre = occupee && !presente && !retrait.commence;
    if (!presente && !(retrait.commence && absences.status().ok())) return absences.status();
    retrait.commence = true;
    const Status status = presente ? supprabs(session) : Status{};
    if (!status.ok()) return status;
    const AbsenceSaisie &absence = place.row();
    return valsit(session, absence.nump, absence.datedeb, absence.datefin, true);
}

Suppression supprime(Session &session, const std::function<Status()> &retire)
{
    return enLot(session, retire) ? Suppression::Faite : Suppression::Abandonnee;
}

/// `absences` stands on the absence.
Suppression supprimeAbsence(Session &session, const Ligne &ligne)
{
    const auto place = session.base.absences.bookmark();
    const QString periode = periodetexte(place.row().datedeb, place.row().datefin);
    ouvreOperation(session, QStringLiteral("Suppr. absence : ") + ligne.nom + periode);
    const QString question =
        QStringLiteral("Suppression absence ") + place.row().codabs + QLatin1Char(' ') + periode;
    if (!session.host.question(question + QStringLiteral(" ?"), titre)) return Suppression::Refusee;
    Retrait retrait;
    const Suppression issue = supprime(session, [&] { return retireAbsence(session, place, retrait); });
    return retrait.autre ? Suppression::SansObjet : issue;
}

Status retireHoraires(Session &session, int nump, const QDate &debut, const QDate &fin)
{
    for (QDate dat = debut; dat <= fin; dat = dat.addDays(1)) {
        const Status status = supprimeJour(session, nump, dat);
        if (!status.ok()) return status;
    }
    return {};
}

Suppression supprimeHoraires(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin)
{
    ouvreOperation(session, QStringLiteral("Suppr. horaires : ") + ligne.nom + periodetexte(debut, fin));
    if (!session.host.question(QStringLiteral("Suppression horaire(s) ?"), titre))
        return Suppression::Refusee;
    return supprime(session, [&] { return retireHoraires(session, ligne.nump, debut, fin); });
}

} // namespace

bool horairesEntre(Session &session, int nump, const QDate &debut, const QDate &fin)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    return sitper.seek(Cmp::Ge, {nump, debut}) && sitper.row().nump == nump && sitper.row().dat <= fin;
}

Status supprimeJour(Session &session, int nump, const QDate &dat)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    return sitper.seek(Cmp::Eq, {nump, dat}) ? supprsit(session) : sitper.status();
}

Suppression supprimeJours(Session &session, const Ligne &ligne, const QDate &debut, const QDate &fin)
{
    if (absjour(session, ligne.nump, debut)) return supprimeAbsence(session, ligne);
    if (horairesEntre(session, ligne.nump, debut, fin)) return supprimeHoraires(session, ligne, debut, fin);
    return Suppression::SansObjet;
}

void supcell(Planning &planning)
{
    planning.pressepapiers.vide();
    const auto cible = cibleCourante(planning);
    if (!cible) return;
    const Place place = planning.curseur;
    Suppression issue{};
    {
        const TravailGrille travail(planning);
        issue = supprimeJours(planning.session, cible->ligne, cible->debut, cible->fin);
    }
    planning.curseur = place;
    if (issue != Suppression::Refusee) {
        planning.pressepapiers.vide();
        majligne(planning, cible->ligne.nump, cible->rangee);
    }
    entreCellule(planning);
}

} // namespace velmora
