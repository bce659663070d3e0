#pragma once

#include "absences/codes.h"

#include <QLineEdit>

namespace velmora
{

/// Shows a code in a field as a cell of the month shows it: with its own colours, or with the grid's.
void montreEchantillon(QLineEdit *champ, const FicheCode &fiche);

/// A field that only shows a sample.
[[nodiscard]] QLineEdit *champEchantillon(QWidget *parent, const char *nom);

} // namespace velmora
