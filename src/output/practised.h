#pragma once

#include "session/session.h"

#include <functional>
#include <vector>

namespace velmora
{

/// A schedule that was practised, and how often. Its times are minutes of the clock, 0 to 1440; a pause that
/// doesn't exist has both its times at 0.
struct HorairePratique {
    int heurdeb = 0;
    int heurfin = 0;
    int hideb = 0;
    int hifin = 0;
    int hideb2 = 0;
    int hifin2 = 0;
    int occurrences = 0;

    [[nodiscard]] bool premierePause() const { return hideb != hifin; }
    [[nodiscard]] bool secondePause() const { return hideb2 != hifin2; }
    /// Minutes from start to end less the pauses, an end before its start being of the next day.
    [[nodiscard]] int duree() const;
};

/// The schedules of a period.
struct HorairesPratiques {
    /// The period holds days and lines; without them there is nothing to report.
    bool donnees = false;
    std::vector<HorairePratique> horaires; ///< each one once, by its times
    store::Status lecture;                 ///< first failure of the tables: days are missing then
};

/// Counts the schedules of every line open on some day of the period, both dates included. A day that an
/// absence covers wasn't worked and doesn't count, nor does one that ends when it starts. `progres` is told
/// how many rows of `ligmois` have been gone through.
[[nodiscard]] HorairesPratiques horairesPratiques(Session &session, const QDate &debut, const QDate &fin,
                                                  const std::function<void(int)> &progres = {});

/// What is said of schedules that can't be reported: the period holds nothing, or the tables can't be read to
/// the end. Empty when they can.
[[nodiscard]] QString defautHoraires(const HorairesPratiques &rapport);

/// The title of that message.
inline const QString titreNonGenere = QStringLiteral("GenVelmora");

/// The titles of the report's eight columns and the texts of a row.
[[nodiscard]] QStringList titresHoraires();
[[nodiscard]] QStringList textesHoraire(const HorairePratique &horaire);

/// Sorts the schedules by a column of the report, equal ones by their times.
void trieHoraires(std::vector<HorairePratique> &horaires, int colonne, bool croissant);

/// "Horaires Pratiqués du 01/06/2026 au 30/06/2026".
[[nodiscard]] QString titreHoraires(const QDate &debut, const QDate &fin);

} // namespace velmora
