#pragma once

#include <QStringList>

namespace velmora::cli
{

/// Prints fields as one line, separated by tabs. Within a field a line break becomes " | " and any other
/// control character a blank, so that each row stays one line.
void imprimeChamps(const QStringList &champs);

} // namespace velmora::cli
