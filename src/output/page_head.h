#pragma once

#include "output/printer.h"

namespace velmora
{

/// What stands at the head of every page of a print, beside its moment and its number.
struct EntetePage {
    QString nometab; ///< the establishment
    QString titre1;
    QString titre2;
    int nbpages = 0; ///< shown above 1; 0 when it isn't known
};

/// Begins a page with its head: the establishment, the moment of the print, the page's number and the titles
/// in their frame. Returns the first line of the page grid below it.
[[nodiscard]] int entetepage(Imprimante &imprimante, const EntetePage &entete);

/// That line for a head with or without a second title, on any page.
[[nodiscard]] int premiereLigne(const EntetePage &entete);

} // namespace velmora
