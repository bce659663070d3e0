#pragma once

#include "cli/demo/demo.h"
#include "cli/demo/random.h"

#include <vector>

namespace velmora::cli::demo
{

/// Kinds of working time.
enum class Genre { Jour, Bureau, Coupe, Nuit, Partiel };

struct Intervalle {
    QDate premier;
    QDate dernier; ///< included; before `premier` when there is no date
};

/// A line of the example with what its days are made from.
struct LigneDemo {
    Ligne ligne;
    Genre genre = Genre::Jour;
    const char *dossier = nullptr; ///< folder that holds the line; null for none
    int decalage = 0;              ///< days by which its cycle of two weeks is moved on

    /// The line's dates within a period.
    [[nodiscard]] Intervalle dans(const Intervalle &intervalle) const;
};

[[nodiscard]] std::vector<LigneDemo> lignesDemo(const Demo &demo, Hasard &hasard);

/// Head rows of the three folders.
[[nodiscard]] std::vector<Dossier> tetesDossiers();
/// The line's row in its folder.
[[nodiscard]] std::vector<Dossier> membres(const LigneDemo &ligne);

} // namespace velmora::cli::demo
