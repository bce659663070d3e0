#pragma once

#include <QStringList>

namespace velmora
{

/// A grid to be printed: a title for each column and rows of as many cells.
struct GrilleImprimee {
    QStringList titres;
    QList<QStringList> rangees;
};

} // namespace velmora
