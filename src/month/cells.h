#pragma once

#include "session/day_hours.h"
#include "session/session.h"

#include <QHash>

#include <array>

namespace velmora
{

/// What a cell shows of a day's hours. The values are those of the session's `modecellule`.
enum ModeCellule { HeuresFaites = 0, HoraireJour = 1, TranchesJour = 2 };

/// The text of a day cell, of one to three lines.
[[nodiscard]] QString texteHoraire(const Horaire &horaire, int modecellule);

/// The texts of day cells, each built once and then shared: schedules repeat from day to day and from line to
/// line.
class TextesHoraire
{
public:
    [[nodiscard]] QString texte(const Horaire &horaire, int modecellule);

private:
    struct Cle {
        std::array<int, 7> valeurs; ///< the six times and the mode
        friend bool operator==(const Cle &, const Cle &) = default;
        friend size_t qHash(const Cle &cle, size_t seed)
        {
            return qHashBits(cle.valeurs.data(), sizeof cle.valeurs, seed);
        }
    };
    QHash<Cle, QString> m_textes;
};

/// Whether the text takes three lines in the mode: only with a second cut.
[[nodiscard]] bool troisLignes(const Horaire &horaire, int modecellule);

/// The value in minutes of a day under an absence: a fixed value, none, or the hours that the day held.
[[nodiscard]] int valeurAbsence(const CodeAbsence &code, int minutes);

/// The status text of a line's day: its hours in the session's mode, its absence, or nothing. Leaves
/// `sitper`, `absences` and `codabs` where it has looked.
[[nodiscard]] QString textestatut(Session &session, int nump, const QDate &jour);

} // namespace velmora
