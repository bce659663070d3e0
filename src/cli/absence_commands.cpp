#include "cli/families.h"

#include "absences/placing.h"
#include "cli/line_days.h"
#include "cli/output.h"
#include "cli/start.h"
#include "foncgen/gestext.h"

namespace velmora::cli
{

namespace
{

QString refusDate(const QString &date)
{
    return Foncgen::ctod(date).isValid() ? QString() : dateIllisible(date);
}

/// Why the words of an absence can't be used.
QString refusMots(Session &session, const QStringList &mots)
{
    if (!placeLigne(session, mots[0])) return ligneInconnue(mots[0]);
    const QString debut = refusDate(mots[1]);
    return debut.isEmpty() ? refusDate(mots[2]) : debut;
}

/// Places the absence of a code that is known. `codabs` is on it, `ligmois` on the line.
int place(Session &session, const QStringList &mots)
{
    const ChampsAbsence champs{mots[1], mots[2], texteCode(session.base.codabs.row())};
    const auto jours = absvalide(session, champs);
    if (!jours) return refuse;
    // As in the window, where the first day is a cell of the line and the return is free.
    const QString premier = Foncgen::dtoc(jours->debut);
    const JoursLigne ouverts = litJours(session, mots[0], premier, premier);
    if (!ouverts.refus.isEmpty()) return refus(ouverts.refus);
    prepareAbsence(session, ouverts.ligne.nom, ouverts.ligne.nump, jours->debut, jours->fin);
    return saisieabs(session, champs) ? reussi : refuse;
}

int absente(Session &session, const QStringList &mots)
{
    const QString impossible = refusMots(session, mots);
    if (!impossible.isEmpty()) return refus(impossible);
    const QString code = admissible(FieldType::Capitals, static_cast<int>(mots[3].size()), mots[3]);
    if (!codeok(session, code)) return refuse;
    return place(session, mots);
}

int liste(Session &session, const QString &nump)
{
    if (!placeLigne(session, nump)) return refus(ligneInconnue(nump));
    const int numero = session.base.ligmois.row().nump;
    auto absences = session.base.absences.range("abs01", {numero}, {numero});
    while (absences.next()) {
        const AbsenceSaisie &absence = absences.row();
        imprimeChamps({Foncgen::dtoc(absence.datedeb), Foncgen::dtoc(absence.datefin), absence.codabs});
    }
    return absences.status().ok() ? reussi : refus(QStringLiteral("Les absences ne peuvent pas être lues."));
}

int commandeAbsence(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return absente(session, appel.mots); });
}

int commandeAbsences(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return liste(session, appel.mots[0]); });
}

} // namespace

std::vector<Commande> commandesAbsences()
{
    return {{"absence",
             "NUMP DEBUT REPRISE CODE",
             "place une absence, jusqu'à la veille du jour de reprise",
             4,
             4,
             {},
             commandeAbsence},
            {"absences", "NUMP", "affiche les absences d'une ligne", 1, 1, {}, commandeAbsences}};
}

} // namespace velmora::cli
