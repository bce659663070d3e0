#pragma once

#include "output/print_job.h"
#include "output/printed_days.h"

namespace velmora
{

/// The planning of a line over a period, both dates included: a row for each day, the sum of each week and
/// that of the period. Reads the line when it is run.
[[nodiscard]] Impression impressionLigne(Session &session, const LigneImprimee &ligne, const QDate &premier,
                                         const QDate &dernier);

/// The same for every line of a folder, or all for an empty name, that is open in the period; each starts a
/// page of its own. With no line there is one page with its head alone.
[[nodiscard]] Impression impressionEnsemble(Session &session, const QDate &premier, const QDate &dernier,
                                            const QString &dossier);

/// What names a print of several lines.
[[nodiscard]] QString titreEnsemble();

/// The text of a day's hours: its times with the cuts between them.
[[nodiscard]] QString texteTemps(const Horaire &horaire);

} // namespace velmora
