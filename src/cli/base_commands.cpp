#include "cli/base_commands.h"

#include "cli/commands.h"
#include "cli/demo/demo.h"
#include "cli/installation.h"

#include <algorithm>
#include <limits>

namespace velmora::cli
{

namespace
{

/// Without users named, a new base gets the one who asks, so that it opens for them.
Installation installation(const Appel &appel)
{
    const Utilisateur machine = utilisateurMachine();
    const QString &pseudo = appel.poste.pseudo;
    return {
        appel.poste.journal, appel.poste.base, {}, {pseudo, pseudo == machine.pseudo ? machine.nom : pseudo}};
}

/// "PSEUDO:NOM", both there; a colon in the name is part of it. A name already listed is nothing either.
std::optional<Utilisateur> litUtilisateur(const QString &texte, const std::vector<Utilisateur> &lus)
{
    const Utilisateur utilisateur{texte.section(QLatin1Char(':'), 0, 0), texte.section(QLatin1Char(':'), 1)};
    const bool deja = std::any_of(lus.begin(), lus.end(),
                                  [&](const Utilisateur &lu) { return lu.pseudo == utilisateur.pseudo; });
    if (deja || utilisateur.pseudo.isEmpty() || utilisateur.nom.isEmpty()) return std::nullopt;
    return utilisateur;
}

int rend(const std::optional<QString> &echec)
{
    return echec ? refus(*echec) : reussi;
}

} // namespace

int commandeInit(const Appel &appel)
{
    Installation demande = installation(appel);
    for (const QString &texte : appel.arguments.valeurs("utilisateur")) {
        const auto utilisateur = litUtilisateur(texte, demande.utilisateurs);
        if (!utilisateur)
            return mauvaisUsage(QStringLiteral("utilisateur illisible ou en double : ") + texte);
        demande.utilisateurs.push_back(*utilisateur);
    }
    return rend(installe(demande));
}

int commandeDemo(const Appel &appel)
{
    using demo::Demo;
    const Arguments &arguments = appel.arguments;
    const auto lignes = entier(arguments.valeur("lignes", QStringLiteral("60")), 1, Demo::lignesMaxi);
    const auto mois = entier(arguments.valeur("mois", QStringLiteral("15")), 1, Demo::moisMaxi);
    const auto graine =
        entier(arguments.valeur("graine", QStringLiteral("1")), 0, std::numeric_limits<int>::max());
    if (!lignes) return mauvaisUsage(QStringLiteral("--lignes va de 1 à %1").arg(Demo::lignesMaxi));
    if (!mois) return mauvaisUsage(QStringLiteral("--mois va de 1 à %1").arg(Demo::moisMaxi));
    if (!graine) return mauvaisUsage(QStringLiteral("--graine est un nombre entier"));
    const Demo exemple{*lignes, *mois, static_cast<std::uint64_t>(*graine), appel.host.today()};
    return rend(installe(installation(appel), true,
                         [&](store::MainDatabase &base) { return demo::remplit(base, exemple); }));
}

} // namespace velmora::cli
