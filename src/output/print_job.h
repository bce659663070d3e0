#pragma once

#include "output/printer.h"
#include "store/status.h"

#include <functional>

namespace velmora
{

/// Told how far a print has come, out of how much.
using Progres = std::function<void(int fait, int total)>;

/// A print that only waits for its paper: the name of its document and what draws its pages. The body tells
/// whether everything could be read.
struct Impression {
    QString document;
    std::function<store::Status(Imprimante &, const Progres &)> corps;
};

/// Runs a print on a printer, a preview or a file. `moment` is the time that its pages bear, `police` the
/// family of its font (empty for the default one). True when every page has reached the device and
/// everything could be read; a step that fails doesn't stop the others.
[[nodiscard]] bool lanceImpression(QPagedPaintDevice &peripherique, const Impression &impression,
                                   const QString &police, const QDateTime &moment,
                                   const Progres &progres = {});

/// How a PDF file came out: why it didn't, in a sentence that is empty when it did.
struct IssuePdf {
    QString defaut;
    explicit operator bool() const { return defaut.isEmpty(); }
};

/// The same into a PDF file, which is replaced as a whole or, on a failure, not at all.
[[nodiscard]] IssuePdf ecritPdf(const QString &fichier, const Impression &impression, const QString &police,
                                const QDateTime &moment, const Progres &progres = {});

} // namespace velmora
