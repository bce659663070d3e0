#pragma once

#include "lines/controls.h"

namespace velmora
{

// The commands that open, change and delete a line. Each checks what it is given, with its messages and
// questions, and writes the line in one transaction; none is recorded in the journal. `dlgvalide` is true
// after a command that was done.

/// Longest name that is typed.
inline constexpr int longueurNom = 15;

/// Opens a line from a date on, under the number after the last one. It may take the name of a line that
/// ends on that date or before. `ligmois.lastModified()` is the new line.
[[nodiscard]] IssueLigne nouvelleLigne(Session &session, const QString &texteNom, const QDate &debut,
                                       const ChampsControles &champs);

/// Closes a line: the date is its first day off. After a question its hours from then on are deleted; its
/// absences stay. Nothing forbids a date on or before the line's own first one.
[[nodiscard]] IssueLigne fermeLigne(Session &session, const Ligne &ligne, const QDate &date);

/// Opens a closed line again after a question. The hours that its closing deleted don't come back.
[[nodiscard]] IssueLigne reouvreLigne(Session &session, const Ligne &ligne);

/// Gives a line a name that no line has or had.
[[nodiscard]] IssueLigne renommeLigne(Session &session, const Ligne &ligne, const QString &texteNom);

/// Deletes a line with its hours, after a question when it has some. Its absences and its places in folders
/// stay.
[[nodiscard]] IssueLigne supprimeLigne(Session &session, const Ligne &ligne);

/// Writes a line's controls. Its hours aren't touched.
[[nodiscard]] IssueLigne redefinitControles(Session &session, const Ligne &ligne,
                                            const ChampsControles &champs);

} // namespace velmora
