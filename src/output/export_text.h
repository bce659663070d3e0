#pragma once

#include "store/rows.h"

#include <array>
#include <vector>

namespace velmora
{

/// A value rounded to `n` decimals, half going up, as the text of the export: a decimal comma, exactly `n`
/// decimals, and no zero before the comma (",50"), which is wanted: spreadsheet sheets are built on that
/// form. With `n` at 0 or below, the rounded whole number.
[[nodiscard]] QString arrondit(double valeur, int n);

/// Minutes as hours and hundredths of an hour, as a number. 1440 or more has 1440 taken off once, so a time
/// past midnight is that of the clock.
[[nodiscard]] double heuresDecimales(int minutes);

/// The same as the text of the export: 450 gives "7,50", 0 gives "0,00", 30 and 1470 give ",50".
[[nodiscard]] QString heurexport(int minutes);

/// What one cell of a day holds.
struct CaseExport {
    enum class Sorte {
        Vide,
        Heures, ///< `minutes`, shown as hours and hundredths
        Aucune, ///< "0": no hours that day
        Tiret,  ///< " - ": no start that day
    };
    Sorte sorte = Sorte::Vide;
    int minutes = 0;
};

/// Titles of the rows of a line's block: one for each cell of a day.
inline constexpr std::size_t rangeesHeures = 7;
[[nodiscard]] const std::array<QString, rangeesHeures> &titresRangees();

using JourExport = std::array<CaseExport, rangeesHeures>;

/// The cells of a day. A day without a row, or whose row doesn't count, has "0" and " - ". The worked hours
/// count times below `heurdeb` on into the next day, as everywhere.
[[nodiscard]] JourExport casesDuJour(const JourSit *jour);

/// A line's block: seven rows of cells, then the row that separates blocks.
struct BlocExport {
    QString nom;
    std::vector<JourExport> jours; ///< one for each day of the period
};

inline const QString separationNom = QStringLiteral("***************");
inline const QString separationTitre = QStringLiteral("*********");

/// "PLANNING Du 01/06/2026 au 30/06/2026".
[[nodiscard]] QString titreExport(const QDate &debut, const QDate &fin);

/// The head and a block as text: tabs between the cells, each row ended by CR and LF.
[[nodiscard]] QString texteEntete(const QDate &debut, const QDate &fin);
[[nodiscard]] QString texteBloc(const BlocExport &bloc);

/// A name as one cell: tabs, line breaks and other control characters become blanks.
[[nodiscard]] QString surUneCellule(QString texte);

/// The text with a blank in front when a spreadsheet that is given it as typed text would take it for a
/// formula: it begins with "=", "+", "-" or "@".
[[nodiscard]] QString sansFormule(const QString &texte);

} // namespace velmora
