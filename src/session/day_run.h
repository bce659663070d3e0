#pragma once

#include "session/session.h"

#include <vector>

namespace velmora
{

/// A run of a line's days in memory, read in one pass. A date without a row, or outside the run, has no day.
class SuiteJours
{
public:
    SuiteJours(const QDate &premier, const QDate &dernier);

    [[nodiscard]] const QDate &premier() const { return m_premier; }
    [[nodiscard]] const QDate &dernier() const { return m_dernier; }

    /// Adds a row whose date lies in the run; any other is left out.
    void ajoute(const JourSit &jour);
    /// The row of a valid date, or null.
    [[nodiscard]] const JourSit *du(const QDate &date) const
    {
        if (m_places.empty() || !date.isValid()) return nullptr;
        const qint64 rang = date.toJulianDay() - m_premier.toJulianDay();
        if (rang < 0 || rang >= static_cast<qint64>(m_places.size())) return nullptr;
        const int place = m_places[static_cast<std::size_t>(rang)];
        return place < 0 ? nullptr : &m_jours[static_cast<std::size_t>(place)];
    }

private:
    QDate m_premier;
    QDate m_dernier;
    std::vector<int> m_places; ///< by date from the first on: the place of its row, or -1
    std::vector<JourSit> m_jours;
};

/// Reads a line's days of the run's dates, those columns of them. From the first row that can't be read on,
/// all are missing in the run, and the status says so.
[[nodiscard]] store::Status litSuite(Session &session, int nump, const std::vector<int> &colonnes,
                                     SuiteJours &jours);

} // namespace velmora
