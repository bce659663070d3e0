#pragma once

#include "month/planning.h"

#include <vector>

namespace velmora
{

/// A line's spans of absence, read once for a pass over its days.
class AbsencesLigne
{
public:
    AbsencesLigne(Session &session, int nump);

    /// The span that covers a date, by the same search as in the table; null for none.
    [[nodiscard]] const AbsenceSaisie *du(const QDate &date) const;

private:
    int m_nump;
    std::vector<AbsenceSaisie> m_absences; ///< in the order of their first dates
};

/// The absence codes, each sought once in a pass.
class CodesAbsence
{
public:
    explicit CodesAbsence(Session &session) : m_session(session) {}
    /// The code's row, or null for an unknown code.
    [[nodiscard]] const CodeAbsence *cherche(const QString &code);

private:
    Session &m_session;
    QHash<QString, std::optional<CodeAbsence>> m_codes;
};

/// Writes the absence of a cell, if its date has one: the code, or "?" for an unknown code, with the code's
/// colours. Returns the day's value in minutes; without an absence that is `minutes`, and the cell has its
/// normal colours.
int celabsence(Planning &planning, const AbsencesLigne &absences, CodesAbsence &codes, int rangee,
               int colonne, int minutes);

} // namespace velmora
