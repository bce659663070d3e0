#pragma once

#include "cli/arguments.h"
#include "cli/cli_host.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace velmora
{
struct Session;
}

namespace velmora::cli
{

/// Exit statuses.
inline constexpr int reussi = 0;
inline constexpr int refuse = 1;
inline constexpr int malDit = 2;

/// Who asks and where, from the common options.
struct Poste {
    QString journal; ///< first folder
    QString base;    ///< second folder
    QString pseudo;
    std::optional<QDate> aujourdhui;
    std::optional<bool> reponse;
};

/// Draws the window of the session's month into a picture file. False when the file can't be written.
using Peintre = std::function<bool(Session &session, const QString &fichier)>;

/// One call of a command. `mots` are its own words, without its name.
struct Appel {
    const Arguments &arguments;
    QStringList mots;
    Poste poste;
    CliHost &host;
    const Peintre &peint;
};

struct Commande {
    const char *nom;
    const char *mots; ///< its words, as the help shows them
    const char *resume;
    int motsMini;
    int motsMaxi;
    std::vector<Option> options;
    int (*execute)(const Appel &);
};

/// Every command, in the order of the help. A name has one or two words, for example "ligne" or "ligne
/// fermer".
[[nodiscard]] const std::vector<Commande> &commandes();

/// A command line that has been taken apart and checked against the table of commands.
struct LigneCommande {
    Arguments arguments;
    const Commande *commande = nullptr; ///< null: the window is asked for, or there is a fault
    Poste poste;
    QString erreur; ///< the first fault, empty when there is none

    [[nodiscard]] bool aide() const;
    [[nodiscard]] bool version() const;
    /// Whether the window is asked for.
    [[nodiscard]] bool demandeFenetre() const;
    /// Whether the command draws a picture or pages, and so needs the window library.
    [[nodiscard]] bool dessine() const;
};

[[nodiscard]] LigneCommande analyse(const QStringList &ligne);

/// Runs the line's command, or prints the help, the version or the fault. Returns the exit status.
[[nodiscard]] int execute(const LigneCommande &ligne, const Peintre &peint);

/// A refusal: its sentence on the standard error and its status.
int refus(const QString &phrase);
/// Wrong usage found by a command itself.
int mauvaisUsage(const QString &phrase);

} // namespace velmora::cli
