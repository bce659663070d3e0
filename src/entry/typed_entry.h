#pragma once

#include "entry/normalisation.h"

#include <QStringList>

#include <optional>

namespace velmora
{

/// The message for hours that can't be stored.
[[nodiscard]] QString horaireEnAnomalie();

/// What the entry's fields hold once `heures` ("8h00", "12h00", ...) have been typed into them in order on a
/// day without hours, each field left before the next. Nothing if the entry can't be stored: more than six
/// hours, one that is no moment of the day, one for a field that is closed at that point, or a total of 0.
[[nodiscard]] std::optional<SaisieHoraire> normaliseTranches(const QStringList &heures);

} // namespace velmora
