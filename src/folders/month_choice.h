#pragma once

#include "session/session.h"

#include <QList>
#include <QStringList>

namespace velmora
{

/// A month of a year, 1 to 12.
struct MoisAn {
    int mois = 1;
    int an = 0;
    friend bool operator==(const MoisAn &, const MoisAn &) = default;
};

/// The scale of the bar that moves over the months: position 0 is January of the year of the first date. When
/// that date lies later in its year the positions before its month are out of reach.
class EchelleMois
{
public:
    /// From the month of the first date to the month of the last.
    EchelleMois(const QDate &premier, const QDate &dernier);

    [[nodiscard]] int minimum() const { return m_minimum; }
    [[nodiscard]] int maximum() const { return m_maximum; }
    [[nodiscard]] int position(const MoisAn &choix) const;
    [[nodiscard]] MoisAn mois(int position) const;

private:
    int m_an;
    int m_minimum;
    int m_maximum;
};

/// The month that the dialog starts on: the current one, or January when the session's start-month choice
/// is 1.
[[nodiscard]] MoisAn moisDeDepart(const Session &session);

/// A number as text, with a blank where a positive number has no sign: " 7", " 2026".
[[nodiscard]] QString nombreAvecBlanc(int nombre);

/// What the cells show, 0 to 2, by the index of the option; 1 for any other index.
[[nodiscard]] int modeDeLOption(int option);
/// The index of the option of a mode; 0 for any other mode.
[[nodiscard]] int optionDuMode(int mode);

/// Row 0 of the list of folders: all lines.
inline const QString dossierGlobal = QStringLiteral("Global");

/// The rows of the list: "Global", then the folders by name.
[[nodiscard]] QStringList lignesDossiers(Session &session);

/// The choice in a list that would take several rows and is held to one.
class ChoixDossier
{
public:
    explicit ChoixDossier(QStringList lignes) : m_lignes(std::move(lignes)) {}

    /// Takes the list as a click has left it, one entry for each row. The row chosen before is let go; of the
    /// rows that remain the last stands. With none left the row chosen before stays: a click on it keeps it.
    /// True when the click chose a row anew.
    bool clic(QList<bool> choisies);

    [[nodiscard]] const QStringList &lignes() const { return m_lignes; }
    [[nodiscard]] int selligne() const { return m_selligne; }
    [[nodiscard]] const QString &texte() const { return m_lignes.at(m_selligne); }
    /// The folder that filters the lines; empty for "Global".
    [[nodiscard]] QString dossier() const { return m_selligne == 0 ? QString() : texte(); }

private:
    QStringList m_lignes;
    int m_selligne = 0;
};

} // namespace velmora
