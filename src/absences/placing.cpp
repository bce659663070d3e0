#include "absences/placing.h"

#include "journal/recording.h"
#include "session/batch.h"
#include "session/records.h"
#include "session/values.h"

namespace velmora
{

using store::Status;

namespace
{

constexpr qsizetype longueurCode = 2;

/// A single letter loses its blank. Wanted: the codes hold it with one, and whoever looks for a code aligns
/// it first.
QString codeChoisi(const QString &entree)
{
    const QString code = entree.left(longueurCode);
    return code.startsWith(QLatin1Char(' ')) ? code.trimmed() : code;
}

Status ajoute(Session &session, const AbsenceSaisie &absence)
{
    const Status status = ajoutabs(session);
    if (!status.ok()) return status;
    session.base.absences.values() = absence;
    return majabs(session);
}

/// Changes one date of the current row.
Status deplace(Session &session, QDate AbsenceSaisie::*borne, const QDate &date)
{
    const Status status = editabs(session);
    if (!status.ok()) return status;
    session.base.absences.values().*borne = date;
    return majabs(session);
}

/// The current row gives way to a new absence: it is deleted, shortened at one end, or split. The parts of a
/// split keep its code and its number.
Status cede(Session &session, const AbsenceSaisie &nouvelle)
{
    const AbsenceSaisie ancienne = session.base.absences.row();
    if (ancienne.datefin < nouvelle.datedeb) return {};
    const bool avant = ancienne.datedeb < nouvelle.datedeb;
    const bool apres = ancienne.datefin > nouvelle.datefin;
    if (!avant && !apres) return supprabs(session);
    if (!avant) return deplace(session, &AbsenceSaisie::datedeb, nouvelle.datefin.addDays(1));
    const Status status = deplace(session, &AbsenceSaisie::datefin, nouvelle.datedeb.addDays(-1));
    if (!status.ok() || !apres) return status;
    AbsenceSaisie reste = ancienne;
    reste.datedeb = nouvelle.datefin.addDays(1);
    return ajoute(session, reste);
}

Status degage(Session &session, const AbsenceSaisie &nouvelle)
{
    auto &absences = session.base.absences;
    bool trouvee = absproche(session, nouvelle.nump, nouvelle.datedeb);
    while (trouvee && absences.row().nump == nouvelle.nump && absences.row().datedeb <= nouvelle.datefin) {
        const Status status = cede(session, nouvelle);
        if (!status.ok()) return status;
        trouvee = absences.next();
    }
    return absences.status();
}

/// All of it or nothing: a second try starts from the absences as they were. Hours are only ever hidden here,
/// never shown again. Adjoining absences stay apart. Both wanted.
Status place(Session &session, const AbsenceSaisie &nouvelle)
{
    BatchStep etape(session);
    Status status = degage(session, nouvelle);
    if (status.ok()) status = ajoute(session, nouvelle);
    if (status.ok()) status = valsit(session, nouvelle.nump, nouvelle.datedeb, nouvelle.datefin, false);
    if (status.ok()) etape.keep();
    return status;
}

} // namespace

bool saisieabs(Session &session, const ChampsAbsence &champs)
{
    jeuaudate(session, Foncgen::ctod(champs.debut));
    session.dlgvalide = false;
    const auto jours = absvalide(session, champs);
    if (!jours) return false;
    session.absdebut = champs.debut;
    // The last day, not the day of return. Wanted.
    session.absreprise = Foncgen::dtoc(jours->fin);
    const AbsenceSaisie nouvelle{session.absligne, 0, codeChoisi(champs.code), jours->debut, jours->fin};
    int operation = 0;
    session.dlgvalide = enLot(session, [&] {
        ouvreop(session, operation, QStringLiteral("A"),
                QStringLiteral("absence saisie pour ") + session.absnom +
                    periodetexte(jours->debut, jours->fin));
        return place(session, nouvelle);
    });
    return session.dlgvalide;
}

} // namespace velmora
