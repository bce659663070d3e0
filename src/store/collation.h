#pragma once

#include "store/status.h"

struct sqlite3;

namespace velmora::store
{

/// Name of the collation that sorts names as a French reader expects: letters first, then accents, then
/// case. Texts that differ in any way never compare as equal. It is used in comparisons and sorts only,
/// never in the definition of a table or an index, so that any SQL tool can write the files and a newer ICU
/// on one workstation can't break the order of an index.
inline constexpr const char *collationFrancais = "francais";

/// Registers the collation on a connection, which takes the collator's lifetime over.
Status registerCollation(sqlite3 *database);

/// The same order for lists in memory: below, equal to or above 0.
int compareFrancais(const QString &left, const QString &right);

} // namespace velmora::store
