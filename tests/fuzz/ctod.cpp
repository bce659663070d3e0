#include "fuzz/input.h"

#include "foncgen/foncgen.h"

using namespace velmora;

/// A text that is read as a date is written and read again as the same one.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QDate date = Foncgen::ctod(fuzz::textOf(data, size));
    if (date.isValid()) fuzz::require(Foncgen::ctod(Foncgen::dtoc(date)) == date, "a date survives its text");
    return 0;
}
