#pragma once

#include "month/loading.h"
#include "month/refresh.h"
#include "month/rows.h"
#include "support/workstation.h"

namespace velmora::test
{

/// The colours, text and minutes of every cell, to be compared as a whole.
inline QStringList snapshot(const Grille &grille)
{
    QStringList cells;
    for (int ligne = 0; ligne < grille.lignes(); ++ligne) {
        for (int colonne = 0; colonne < grille.colonnes(); ++colonne) {
            const Case &une = grille.lit(ligne, colonne);
            cells << QStringLiteral("%1/%2 '%3' %4 %5 %6 %7")
                         .arg(ligne)
                         .arg(colonne)
                         .arg(une.texte)
                         .arg(une.fond, 0, 16)
                         .arg(une.encre, 0, 16)
                         .arg(une.gras)
                         .arg(grille.minutes(colonne, ligne));
        }
    }
    return cells;
}

/// The first cell that differs, or an empty text.
inline std::string difference(const QStringList &left, const QStringList &right)
{
    if (left.size() != right.size()) return "sizes differ";
    for (qsizetype i = 0; i < left.size(); ++i)
        if (left[i] != right[i]) return (left[i] + QStringLiteral(" <> ") + right[i]).toStdString();
    return {};
}

/// An open month of a workstation, addressed by line and date.
class OpenMonth
{
public:
    OpenMonth(Workstation &station, int mois, int annee)
        : planning(station.session, mois, annee), shown(chargi(planning, {}))
    {
    }

    [[nodiscard]] int row(int nump) const { return planning.grille.ligneDe(nump); }
    [[nodiscard]] int column(const QDate &date) const { return planning.colonnes.colonneDe(date); }
    [[nodiscard]] const Case &cell(int nump, const QDate &date) const
    {
        return planning.grille.lit(row(nump), column(date));
    }
    [[nodiscard]] std::string text(int nump, const QDate &date) const
    {
        return cell(nump, date).texte.toStdString();
    }
    [[nodiscard]] int minutes(int nump, const QDate &date) const
    {
        return planning.grille.minutes(column(date), row(nump));
    }
    /// The total column that follows a date: its week's, or its month's.
    [[nodiscard]] int totalColumn(const QDate &date, bool week) const
    {
        int at = column(date) + 1;
        while (at < planning.colonnes.nombre() && planning.date(at) == date &&
               planning.colonnes.colsem[static_cast<std::size_t>(at)] != week)
            ++at;
        return at;
    }
    [[nodiscard]] std::string totalText(int nump, const QDate &date, bool week) const
    {
        return planning.grille.lit(row(nump), totalColumn(date, week)).texte.toStdString();
    }
    void moveTo(int nump, const QDate &date)
    {
        planning.curseur = {row(nump), column(date)};
        cycle(planning);
    }
    void refill(int nump) { majligne(planning, nump, row(nump)); }

    Planning planning;
    bool shown;
};

} // namespace velmora::test
