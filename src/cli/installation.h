#pragma once

#include "store/databases.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace velmora::cli
{

struct Utilisateur {
    QString pseudo;
    QString nom;
};

/// What an installation is asked to make.
struct Installation {
    QString journal;                       ///< folder of the journal, the workstation's own
    QString base;                          ///< folder of the main database; may be the same
    std::vector<Utilisateur> utilisateurs; ///< one row of `agent` each
    Utilisateur parDefaut;                 ///< the row of a new base when no user is named
};

/// Writes into a new main database before anyone can see it.
using Remplissage = std::function<store::Status(store::MainDatabase &)>;

/// Makes what is missing of the two databases. With a main database elsewhere than the journal's folder, the
/// journal names that folder and the journal's folder gets a link to the file. Users named for a base that
/// is already there are added to it when it lacks them. With `neuve`, a base that is already there is
/// refused. All or nothing: after a refusal, told in one sentence, the folders are as they were.
[[nodiscard]] std::optional<QString> installe(const Installation &demande, bool neuve = false,
                                              const Remplissage &remplit = {});

/// The user of the machine: login name and full name.
[[nodiscard]] Utilisateur utilisateurMachine();

} // namespace velmora::cli
