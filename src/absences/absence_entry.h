#pragma once

#include "session/session.h"

#include <QStringList>

namespace velmora
{

/// What the fields of the absence entry hold.
struct ChampsAbsence {
    QString debut;   ///< `Text1`, the first day
    QString reprise; ///< `Text3`, the first day back at work
    QString code;    ///< `Combo1`: a code, a blank and its short label
};

/// The days of an absence, both included.
struct JoursAbsence {
    QDate debut;
    QDate fin;
};

/// How the absence entry opens.
struct OuvertureAbsence {
    enum class Focus { Debut, Reprise, Code };

    QString titre;
    QStringList codes; ///< every entry of `Combo1`
    int position = -1; ///< the entry of the code typed in the month; -1 for none
    Focus focus = Focus::Code;
};

/// Leaves in the session what an absence entry is given: the line, the day, and the day of return, which
/// follows the last date of the selection when there is one.
void prepareAbsence(Session &session, const QString &entete, int nump, const QDate &jour,
                    const std::optional<QDate> &finSelection = std::nullopt);

/// Checks a code typed in the month and leaves it in `abscode`, with its blank in front of a single letter.
/// False after a message when there is no such code.
[[nodiscard]] bool codeok(Session &session, const QString &texte);

/// An entry of `Combo1`.
[[nodiscard]] QString texteCode(const CodeAbsence &code);

/// Reads the codes and what the session was given.
[[nodiscard]] OuvertureAbsence ouvreSaisieAbsence(Session &session);

/// The days that the fields stand for; nothing after a message. The day of return is no day of absence, so
/// that one equal to the first day is refused.
[[nodiscard]] std::optional<JoursAbsence> absvalide(Session &session, const ChampsAbsence &champs);

} // namespace velmora
