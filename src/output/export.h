#pragma once

#include "session/session.h"

#include <functional>

namespace velmora
{

/// Name of the work file, in the second folder of the session: plain text in the encoding Windows-1252, which
/// spreadsheet programs expect of this kind of text, tabs between the cells, CR and LF at the end of a row.
inline const QString fichierExport = QStringLiteral("Velexc.txt");

/// Name of the workbook, in the first folder of the session. The older ending is the one that installations
/// know; spreadsheet programs go by the content.
inline const QString classeurExport = QStringLiteral("Planning-Velmora.xls");

/// What an export has made.
struct Exportation {
    QString fichier;  ///< the work file
    QString classeur; ///< the workbook
    /// The whole text, as it is handed over for pasting. Unlike the work file it has no empty row after the
    /// head and the blocks, and a name that would be taken for a formula has a blank in front.
    QString texte;
    store::Status lecture{}; ///< first failure of the tables: rows are missing then
    bool fichierEcrit = false;
    bool classeurEcrit = false;
};

/// Writes the planning of a period, both dates included, for every line open on some day of it: the work
/// file and the workbook. A step that fails is passed over and the others run. `progres` is told how many
/// rows of `ligmois` have been gone through.
[[nodiscard]] Exportation exporte(Session &session, const QDate &debut, const QDate &fin,
                                  const std::function<void(int)> &progres = {});

/// Hands an export to the desktop's spreadsheet program: opens the workbook and gives the text to `copie`.
/// Says so when there is no such program or no workbook.
void remet(Session &session, const Exportation &exportation,
           const std::function<void(const QString &)> &copie);

/// Why an export isn't whole, in a sentence; empty when it is.
[[nodiscard]] QString defautExport(const Exportation &exportation);

} // namespace velmora
