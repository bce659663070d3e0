#include "fuzz/input.h"

#include "entry/typed_entry.h"
#include "foncgen/foncgen.h"

using namespace velmora;

/// A text that is read as hours is written and read again as the same ones, and any texts are hours that can
/// be stored or none.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = fuzz::textOf(data, size);
    const int minutes = Foncgen::valhor(text);
    fuzz::require(Foncgen::valhor(Foncgen::fwhl(minutes, 7)) == minutes, "minutes survive their text");
    const auto entry = normaliseTranches(text.left(60).split(QLatin1Char('-')));
    fuzz::require(!entry || !entry->total().isEmpty(), "hours that can be stored have a total");
    return 0;
}
