#include "cli/families.h"
#include "cli/output.h"
#include "cli/row_text.h"
#include "cli/start.h"
#include "foncgen/gestext.h"
#include "lines/lifecycle.h"
#include "month/refresh.h"

namespace velmora::cli
{

namespace
{

// The most that the fields of the dialogs hold.
constexpr int reposMaxi = 99;
constexpr int reposContigusMaxi = 9;
constexpr int pauseMaxi = 99;

std::vector<Option> limites()
{
    return {{"semaine", "H"}, {"jour", "H"},        {"amplitude", "H"},  {"repos", "H"},
            {"6jours"},       {"quinzaine", "N,N"}, {"pause", "MINUTES"}};
}

/// Hours that are not named are 0, which removes their control.
bool litHeures(const Arguments &arguments, ChampsControles &champs)
{
    const std::pair<const char *, QString ChampsControles::*> heures[]{{"semaine", &ChampsControles::maxs},
                                                                       {"jour", &ChampsControles::maxj},
                                                                       {"amplitude", &ChampsControles::ampj},
                                                                       {"repos", &ChampsControles::reposmin}};
    for (const auto &[option, champ] : heures) {
        champs.*champ = arguments.valeur(option, QStringLiteral("0h00"));
        champs.bcontrolh = champs.bcontrolh || arguments.a(option);
        const int minutes = Foncgen::valhor(champs.*champ);
        if (minutes < 0 || minutes == Foncgen::horsPlage) return false;
    }
    return true;
}

bool litRepos(const Arguments &arguments, ChampsControles &champs)
{
    champs.bcontrolr = arguments.a("quinzaine");
    if (!champs.bcontrolr) return true;
    const QStringList nombres = arguments.valeur("quinzaine").split(QLatin1Char(','));
    if (nombres.size() != 2) return false;
    champs.nrep = nombres[0];
    champs.nrepd = nombres[1];
    return entier(champs.nrep, 0, reposMaxi) && entier(champs.nrepd, 0, reposContigusMaxi);
}

bool litPause(const Arguments &arguments, ChampsControles &champs)
{
    champs.bcontrolp = arguments.a("pause");
    if (champs.bcontrolp) champs.pause = arguments.valeur("pause");
    return entier(champs.pause, 0, pauseMaxi).has_value();
}

/// Runs a command with the limits of the line of words; what is not named is off.
int avecLimites(const Appel &appel, const std::function<int(Session &, const ChampsControles &)> &travail)
{
    ChampsControles champs;
    champs.b6j = appel.arguments.a("6jours");
    if (!litHeures(appel.arguments, champs))
        return mauvaisUsage(QStringLiteral("une limite d'heures s'écrit 48h00"));
    if (!litRepos(appel.arguments, champs))
        return mauvaisUsage(QStringLiteral("--quinzaine attend deux nombres : 4,1"));
    if (!litPause(appel.arguments, champs))
        return mauvaisUsage(QStringLiteral("--pause est un nombre de minutes, 0 à 99"));
    return surSession(appel, [&](Session &session) { return travail(session, champs); });
}

/// Runs a command on the line of its first word.
int surLigne(const Appel &appel, const std::function<int(Session &, const Ligne &)> &travail)
{
    return surSession(appel, [&](Session &session) {
        const QString &nump = appel.mots.first();
        if (!placeLigne(session, nump)) return refus(ligneInconnue(nump));
        return travail(session, Ligne(session.base.ligmois.row()));
    });
}

int statut(const IssueLigne &issue)
{
    return issue.faite ? reussi : refuse;
}

/// A name as the dialog's field takes it: capitals, and no control characters.
QString nom(const QString &mot)
{
    return admissible(FieldType::Capitals, static_cast<int>(mot.size()), mot).trimmed();
}

QString refusNom(const QString &mot)
{
    return nom(mot).size() > longueurNom ? tropLong(longueurNom, mot) : QString();
}

int nouvelle(const Appel &appel)
{
    return avecLimites(appel, [&](Session &session, const ChampsControles &champs) {
        const QDate debut = Foncgen::ctod(appel.mots[1]);
        if (!debut.isValid()) return refus(dateIllisible(appel.mots[1]));
        if (const QString impossible = refusNom(appel.mots[0]); !impossible.isEmpty())
            return refus(impossible);
        const IssueLigne issue = nouvelleLigne(session, nom(appel.mots[0]), debut, champs);
        if (issue.faite) imprimeChamps({texteChamp(session.base.ligmois.lastModified().row().nump)});
        return statut(issue);
    });
}

int ferme(const Appel &appel)
{
    return surLigne(appel, [&](Session &session, const Ligne &ligne) {
        const QDate date = Foncgen::ctod(appel.mots[1]);
        if (!date.isValid()) return refus(dateIllisible(appel.mots[1]));
        if (!ligneOuverte(ligne))
            return refus(QStringLiteral("La ligne %1 est déjà fermée.").arg(ligne.nump));
        return statut(fermeLigne(session, ligne, date));
    });
}

int reouvre(const Appel &appel)
{
    return surLigne(appel, [](Session &session, const Ligne &ligne) {
        if (ligneOuverte(ligne))
            return refus(QStringLiteral("La ligne %1 n'est pas fermée.").arg(ligne.nump));
        return statut(reouvreLigne(session, ligne));
    });
}

int renomme(const Appel &appel)
{
    return surLigne(appel, [&](Session &session, const Ligne &ligne) {
        if (const QString impossible = refusNom(appel.mots[1]); !impossible.isEmpty())
            return refus(impossible);
        return statut(renommeLigne(session, ligne, nom(appel.mots[1])));
    });
}

int supprime(const Appel &appel)
{
    return surLigne(
        appel, [](Session &session, const Ligne &ligne) { return statut(supprimeLigne(session, ligne)); });
}

int controles(const Appel &appel)
{
    return avecLimites(appel, [&](Session &session, const ChampsControles &champs) {
        const QString &nump = appel.mots.first();
        if (!placeLigne(session, nump)) return refus(ligneInconnue(nump));
        return statut(redefinitControles(session, Ligne(session.base.ligmois.row()), champs));
    });
}

/// By name, as everywhere.
int liste(const Appel &appel)
{
    return surSession(appel, [](Session &session) {
        auto lignes = session.base.ligmois.range("ligmois02", {}, {});
        while (lignes.next())
            imprimeChamps(textesRangee(lignes.row()));
        return lignes.status().ok() ? reussi : refus(QStringLiteral("Les lignes ne peuvent pas être lues."));
    });
}

} // namespace

std::vector<Commande> commandesLignes()
{
    return {
        {"ligne nouvelle", "NOM DATE", "ouvre une ligne et affiche son numéro", 2, 2, limites(), nouvelle},
        {"ligne fermer",
         "NUMP DATE",
         "ferme une ligne à partir d'une date et supprime ses horaires suivants, après une question",
         2,
         2,
         {},
         ferme},
        {"ligne reouvrir", "NUMP", "rouvre une ligne fermée, après une question", 1, 1, {}, reouvre},
        {"ligne renommer", "NUMP NOM", "donne un autre nom à une ligne", 2, 2, {}, renomme},
        {"ligne supprimer",
         "NUMP",
         "supprime une ligne avec ses horaires, après une question s'il y en a",
         1,
         1,
         {},
         supprime},
        {"ligne controles", "NUMP", "redéfinit les contrôles d'une ligne ; une limite non citée est ôtée", 1,
         1, limites(), controles},
        {"ligne liste", "", "affiche les lignes avec tous leurs champs", 0, 0, {}, liste}};
}

} // namespace velmora::cli
