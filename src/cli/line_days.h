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

/// Reads a line's number and two dates. The dates must be ones that a month shows, in their order, and lie
/// within the line's own.
[[nodiscard]] JoursLigne litJours(Session &session, const QString &nump, const QString &debut,
                                  const QString &fin);

} // namespace velmora::cli
