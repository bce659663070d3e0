#pragma once

#include "store/rows.h"

#include <QString>

namespace velmora
{
struct Session;
}

namespace velmora::cli
{

/// A line and a run of its dates, read from the words of a command.
struct JoursLigne {
    Ligne ligne;
    QDate debut;
    QDate fin;
    QString refus; ///< why they can't be used, in a sentence; empty when they can
};

/// A run of dates, read from the words of a command.
struct PeriodeLue {
    QDate debut;
    QDate fin;
    QString refus; ///< likewise
};

/// Reads two dates. They must be ones that a month shows, in their order.
[[nodiscard]] PeriodeLue litPeriode(const Session &session, const QString &debut, const QString &fin);

/// Reads a line's number and two dates. The dates must be ones that a month shows, in their order, and lie
/// within the line's own.
[[nodiscard]] JoursLigne litJours(Session &session, const QString &nump, const QString &debut,
                                  const QString &fin);

} // namespace velmora::cli
