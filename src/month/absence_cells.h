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

    /// Whether the spans could be read to their end.
    [[nodiscard]] const store::Status &status() const { return m_status; }
    /// The span that covers a date, by the same search as in the table; null for none.
    [[nodiscard]] const AbsenceSaisie *du(const QDate &date) const;

private:
    int m_nump;
    std::vector<AbsenceSaisie> m_absences; ///< in the order of their first dates
    store::Status m_status;
};

/// The absence codes, each sought once in a pass.
class CodesAbsence
{
public:
    explicit CodesAbsence(Session &session) : m_session(session) {}
    /// The code's row, or null for an unknown code.
    [[nodiscard]] const CodeAbsence *cherche(const QString &code);
    /// The first failure of a search.
    [[nodiscard]] const store::Status &status() const { return m_status; }

private:
    Session &m_session;
    QHash<QString, std::optional<CodeAbsence>> m_codes;
    store::Status m_status;
};

/// Writes the absence of a cell, if its date has one: the code, or "?" for an unknown code, with the code's
/// colours. Returns the day's value in minutes; without an absence that is `minutes`, and the cell has its
/// normal colours.
int celabsence(Planning &planning, const AbsencesLigne &absences, CodesAbsence &codes, int rangee,
               int colonne, int minutes);

} // namespace velmora
