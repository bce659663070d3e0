#pragma once

#include <QDate>
#include <QStringList>

namespace velmora
{

/// Labels of the regions; a region's number is its place.
[[nodiscard]] const QStringList &regions();

/// The number that a region's label begins with.
[[nodiscard]] int regionDuLibelle(const QString &libelle);

/// The rules are numbered from 1. Where two of them fall on one date in a region the higher number counts.
inline constexpr int nombreRegles = 29;

/// The label of a rule's holiday.
[[nodiscard]] QString libferie(int regle);

/// Whether a region observes a rule. A number that is no region observes nothing.
[[nodiscard]] bool regionferie(int region, int regle);

/// The date of a rule in a year.
[[nodiscard]] QDate dateferie(int regle, int annee);

} // namespace velmora
