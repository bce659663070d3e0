#include "cli/commands.h"

#include "cli/families.h"
#include "cli/installation.h"
#include "foncgen/foncgen.h"
#include "session/velmoral.h"

#include <algorithm>
#include <string_view>

namespace velmora::cli
{

namespace
{

const std::vector<Option> &optionsCommunes()
{
    static const std::vector<Option> options{
        {"journal", "DOSSIER"},
        {"base", "DOSSIER"},
        {"pseudo", "NOM"},
        {"aujourdhui", "JJ/MM/AAAA"},
        {"oui"},
        {"non"},
        {"aide"},
        {"help"},
        {"version"},
    };
    return options;
}

std::vector<Option> toutesOptions()
{
    std::vector<Option> toutes = optionsCommunes();
    for (const Commande &commande : commandes()) {
        for (const Option &option : commande.options) {
            const bool connue = std::any_of(toutes.begin(), toutes.end(), [&](const Option &autre) {
                return QLatin1String(autre.nom) == QLatin1String(option.nom);
            });
            if (!connue) toutes.push_back(option);
        }
    }
    return toutes;
}

const Commande *nommee(const QString &nom)
{
    const auto trouvee = std::find_if(commandes().begin(), commandes().end(), [&](const Commande &commande) {
        return nom == QLatin1String(commande.nom);
    });
    return trouvee == commandes().end() ? nullptr : &*trouvee;
}

/// A command has one or two words for its name; the longer one is meant where both are known.
const Commande *cherche(const QStringList &mots)
{
    const Commande *longue = nommee(mots.mid(0, 2).join(QLatin1Char(' ')));
    return longue ? longue : nommee(mots.first());
}

int motsDuNom(const Commande &commande)
{
    const std::string_view nom = commande.nom;
    return 1 + static_cast<int>(std::count(nom.begin(), nom.end(), ' '));
}

bool contient(const std::vector<Option> &options, const QString &nom)
{
    return std::any_of(options.begin(), options.end(),
                       [&](const Option &option) { return nom == QLatin1String(option.nom); });
}

QString usage(const Commande &commande)
{
    QString texte = QStringLiteral("velmora ") + QString::fromUtf8(commande.nom);
    if (*commande.mots) texte += QLatin1Char(' ') + QString::fromUtf8(commande.mots);
    for (const Option &option : commande.options) {
        QString une = QStringLiteral("--") + QString::fromUtf8(option.nom);
        if (option.valeur) une += QLatin1Char(' ') + QString::fromUtf8(option.valeur);
        if (!option.requise) une = QLatin1Char('[') + une + QLatin1Char(']');
        texte += QLatin1Char(' ') + une + (option.repetee ? QStringLiteral("...") : QString());
    }
    return texte;
}

void imprimeAide()
{
    imprime(QStringLiteral("velmora [options]\n    ouvre la fenêtre"));
    for (const Commande &commande : commandes())
        imprime(usage(commande) + QStringLiteral("\n    ") + QString::fromUtf8(commande.resume));
    imprime(QStringLiteral("\nOptions communes, avant ou après la commande :"));
    for (const Option &option : optionsCommunes()) {
        imprime(QStringLiteral("    --") + QString::fromUtf8(option.nom) + QLatin1Char(' ') +
                QString::fromUtf8(option.valeur ? option.valeur : ""));
    }
}

QString fauteCommande(const LigneCommande &ligne)
{
    const QStringList &mots = ligne.arguments.mots();
    if (mots.isEmpty()) return {};
    if (!ligne.commande) return QStringLiteral("commande inconnue : ") + mots.first();
    const auto nombre = mots.size() - motsDuNom(*ligne.commande);
    const auto &options = ligne.commande->options;
    const bool completes = std::all_of(options.begin(), options.end(), [&](const Option &option) {
        return !option.requise || ligne.arguments.a(option.nom);
    });
    if (completes && nombre >= ligne.commande->motsMini && nombre <= ligne.commande->motsMaxi) return {};
    return QStringLiteral("usage : ") + usage(*ligne.commande);
}

QString fauteOptions(const LigneCommande &ligne)
{
    for (const QString &option : ligne.arguments.options()) {
        if (contient(optionsCommunes(), option)) continue;
        if (!ligne.commande || !contient(ligne.commande->options, option))
            return QStringLiteral("l'option --%1 ne va pas ici").arg(option);
    }
    if (ligne.arguments.a("oui") && ligne.arguments.a("non"))
        return QStringLiteral("--oui et --non s'excluent");
    for (const char *dossier : {"journal", "base", "pseudo"}) {
        if (ligne.arguments.a(dossier) && ligne.arguments.valeur(dossier).isEmpty())
            return QStringLiteral("l'option --%1 est vide").arg(QLatin1String(dossier));
    }
    const QString jour = ligne.arguments.valeur("aujourdhui");
    if (ligne.arguments.a("aujourdhui") && !Foncgen::ctod(jour).isValid())
        return QStringLiteral("date illisible : ") + jour;
    return {};
}

Poste posteDe(const Arguments &arguments)
{
    Poste poste;
    poste.journal = arguments.valeur("journal", dossierIntegre());
    poste.base = arguments.valeur("base", poste.journal);
    poste.pseudo = arguments.valeur("pseudo");
    if (!arguments.a("pseudo")) poste.pseudo = utilisateurMachine().pseudo;
    if (arguments.a("aujourdhui")) poste.aujourdhui = Foncgen::ctod(arguments.valeur("aujourdhui"));
    if (arguments.a("oui") || arguments.a("non")) poste.reponse = arguments.a("oui");
    return poste;
}

} // namespace

const std::vector<Commande> &commandes()
{
    static const std::vector<Commande> toutes = [] {
        std::vector<Commande> reunies;
        for (const auto famille :
             {commandesBase, commandesMois, commandesLignes, commandesAbsences, commandesCodes,
              commandesControle, commandesCalendrier, commandesDossiers, commandesImpressions,
              commandesExport, commandesSauvegarde, commandesVerification})
            for (const Commande &commande : famille())
                reunies.push_back(commande);
        return reunies;
    }();
    return toutes;
}

bool LigneCommande::aide() const
{
    return arguments.a("aide") || arguments.a("help");
}

bool LigneCommande::version() const
{
    return arguments.a("version");
}

bool LigneCommande::demandeFenetre() const
{
    return erreur.isEmpty() && !commande && !aide() && !version();
}

bool LigneCommande::dessine() const
{
    return erreur.isEmpty() && !aide() && (arguments.a("png") || arguments.a("pdf"));
}

LigneCommande analyse(const QStringList &ligne)
{
    LigneCommande analysee{Arguments(ligne, toutesOptions()), nullptr, {}, {}};
    const Arguments &arguments = analysee.arguments;
    if (!arguments.mots().isEmpty()) analysee.commande = cherche(arguments.mots());
    analysee.erreur = arguments.erreur();
    if (analysee.erreur.isEmpty()) analysee.erreur = fauteCommande(analysee);
    if (analysee.erreur.isEmpty()) analysee.erreur = fauteOptions(analysee);
    if (analysee.erreur.isEmpty()) analysee.poste = posteDe(arguments);
    return analysee;
}

int execute(const LigneCommande &ligne, const Peintre &peint)
{
    if (ligne.aide()) return imprimeAide(), reussi;
    if (!ligne.erreur.isEmpty()) return mauvaisUsage(ligne.erreur);
    if (ligne.version()) return imprime(QStringLiteral("velmora " VELMORA_VERSION)), reussi;
    CliHost host(ligne.poste.aujourdhui, ligne.poste.reponse);
    const Appel appel{ligne.arguments, ligne.arguments.mots().mid(motsDuNom(*ligne.commande)), ligne.poste,
                      host, peint};
    const int statut = ligne.commande->execute(appel);
    return statut == reussi && host.refusee() ? refuse : statut;
}

int refus(const QString &phrase)
{
    imprimeErreur(phrase);
    return refuse;
}

int mauvaisUsage(const QString &phrase)
{
    imprimeErreur(phrase + QStringLiteral("\n« velmora --aide » montre les commandes."));
    return malDit;
}

} // namespace velmora::cli
