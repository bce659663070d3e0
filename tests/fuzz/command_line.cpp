#include "fuzz/input.h"

#include "cli/commands.h"

using namespace velmora;

/// A line of words, one after each line break, is a command, the window, or a fault with its sentence.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto line = cli::analyse(fuzz::textOf(data, size).split(QLatin1Char('\n')));
    const bool understood = line.commande || line.demandeFenetre() || line.aide() || line.version();
    fuzz::require(understood || !line.erreur.isEmpty(), "a line that is no command is told why");
    return 0;
}
