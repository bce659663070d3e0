#pragma once

#include <QStringList>

namespace velmora::cli
{

/// Every field of a row of the main database, in the order of the table: dates as "dd/mm/yyyy", true as -1,
/// a null as an empty text.
template <class Row> [[nodiscard]] QStringList champsDe(const Row &row);

} // namespace velmora::cli
