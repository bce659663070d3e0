#pragma once

#include <QByteArray>
#include <QString>

namespace velmora
{

/// A text in the encoding Windows-1252, which spreadsheet programs expect of a plain text file. A character
/// that the encoding lacks becomes "?".
[[nodiscard]] QByteArray enWindows1252(const QString &texte);

} // namespace velmora
