#pragma once

#include "cli/commands.h"
#include "session/session.h"

namespace velmora::cli
{

/// Starts a session as the window does and runs the work on it. Returns the work's status, or `refuse` when
/// the start stops on a message. A database that doesn't open ends the process with status 1.
int surSession(const Appel &appel, const std::function<int(Session &)> &travail);

/// Why a start whose journal stands stopped on the main database, in one sentence.
[[nodiscard]] QString causeArret(const Session &session);

/// Puts `ligmois` on the line of a number as typed. False when the text is no number or there is no such
/// line.
[[nodiscard]] bool placeLigne(Session &session, const QString &nump);

/// Why a folder can't be taken, in a sentence; empty when it can, as an empty name can.
[[nodiscard]] QString refusDossier(Session &session, const QString &dossier);

// Sentences for words that can't be used.
[[nodiscard]] QString ligneInconnue(const QString &nump);
[[nodiscard]] QString dateIllisible(const QString &date);
[[nodiscard]] QString dossierInconnu(const QString &nom);
[[nodiscard]] QString tropLong(int longueur, const QString &texte);

} // namespace velmora::cli
