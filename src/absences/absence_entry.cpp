#include "absences/absence_entry.h"

#include "absences/codes.h"
#include "session/batch.h"
#include "session/records.h"

namespace velmora
{

namespace
{

using Focus = OuvertureAbsence::Focus;

QString refusJours(const ChampsAbsence &champs, const JoursAbsence &jours)
{
    if (champs.code.trimmed().isEmpty()) return QStringLiteral("Code absence non sélectionné");
    if (!jours.debut.isValid() || !jours.fin.isValid()) return QStringLiteral("Date incorrecte !");
    return jours.fin < jours.debut ? QStringLiteral("Date fin < date de début !") : QString();
}

/// The dates of a whole year are to be changed from the first one on.
Focus focusDesDates(const Session &session)
{
    const bool annee = session.absdebut.startsWith(QLatin1String("01/01")) &&
                       session.absreprise.startsWith(QLatin1String("31/12"));
    return annee ? Focus::Debut : Focus::Reprise;
}

} // namespace

void prepareAbsence(Session &session, const QString &entete, int nump, const QDate &jour,
                    const std::optional<QDate> &finSelection)
{
    session.absligne = nump;
    session.saisligne = 0;
    session.absnom = entete;
    session.absdebut = Foncgen::dtoc(jour);
    session.absreprise = Foncgen::dtoc(finSelection.value_or(jour).addDays(1));
}

bool codeok(Session &session, const QString &texte)
{
    session.abscode = codeAligne(texte);
    if (cherchecode(session, session.abscode)) return true;
    if (!session.base.codabs.status().ok()) {
        ditEchecDisque(session);
        return false;
    }
    session.host.message(QStringLiteral("code Absence non autorisé ou erroné!"), titre);
    return false;
}

QString texteCode(const CodeAbsence &code)
{
    return code.codabs + QLatin1Char(' ') + code.libecour;
}

OuvertureAbsence ouvreSaisieAbsence(Session &session)
{
    OuvertureAbsence ouverture;
    ouverture.titre = session.absnom + QStringLiteral("  pour  ") + session.abscode;
    for (const CodeAbsence &code : codesDeLaTable(session)) {
        if (code.codabs == session.abscode) ouverture.position = static_cast<int>(ouverture.codes.size());
        ouverture.codes << texteCode(code);
    }
    if (ouverture.position >= 0) ouverture.focus = focusDesDates(session);
    return ouverture;
}

std::optional<JoursAbsence> absvalide(Session &session, const ChampsAbsence &champs)
{
    const JoursAbsence jours{Foncgen::ctod(champs.debut), Foncgen::ctod(champs.reprise).addDays(-1)};
    const QString refus = refusJours(champs, jours);
    if (refus.isEmpty()) return jours;
    session.host.message(refus, titre);
    return std::nullopt;
}

} // namespace velmora
