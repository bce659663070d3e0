#include "calendar/holiday_list.h"
#include "calendar/holiday_rules.h"
#include "calendar/parameter_sets.h"
#include "cli/families.h"
#include "cli/output.h"
#include "cli/start.h"
#include "foncgen/foncgen.h"
#include "foncgen/gestext.h"
#include "session/batch.h"
#include "session/records.h"

namespace velmora::cli
{

namespace
{

// The lengths of the dialogs' fields.
constexpr int longueurNom = 25;
constexpr int longueurLibelle = 30;
constexpr int derniereAnnee = 9999;

int rend(bool fait)
{
    return fait ? reussi : refuse;
}

/// Does the work on the date that a word gives.
int surDate(const Appel &appel, const QString &mot,
            const std::function<int(Session &, const QDate &)> &travail)
{
    const QDate date = Foncgen::ctod(mot);
    if (!date.isValid()) return refus(dateIllisible(mot));
    return surSession(appel, [&](Session &session) { return travail(session, date); });
}

int rendFeries(Session &session, const DemandeFeries &demande)
{
    if (chargeferies(session, demande).ok()) return reussi;
    ditEchecDisque(session);
    return refuse;
}

int listeParametres(Session &session)
{
    auto jeux = session.base.parcg.range("parcg01", {}, {});
    while (jeux.next()) {
        const JeuParam &jeu = jeux.row();
        imprimeChamps({Foncgen::dtoc(jeu.dat), QString::number(jeu.fdomtom), jeu.nometab});
    }
    return jeux.status().ok() ? reussi : refus(QStringLiteral("Les paramètres ne peuvent pas être lus."));
}

int commandeParametresListe(const Appel &appel)
{
    return surSession(appel, listeParametres);
}

/// A text as the dialogs' fields take it: no control characters.
QString saisi(const QString &mot)
{
    return admissible(FieldType::Free, static_cast<int>(mot.size()), mot);
}

/// Stores a set as the dialog does: the holidays begin anew from its date.
int enregistre(const Appel &appel, bool ajout)
{
    const auto region = entier(appel.mots[1], 0, static_cast<int>(regions().size()) - 1);
    const QString nom = saisi(appel.mots[2]);
    if (!region) return refus(QStringLiteral("La région va de 0 à %1.").arg(regions().size() - 1));
    if (nom.size() > longueurNom) return refus(tropLong(longueurNom, nom));
    return surDate(appel, appel.mots[0], [&](Session &session, const QDate &date) {
        const QString dat = Foncgen::dtoc(date);
        if (!ajout && !placejeu(session, date))
            return refus(QStringLiteral("Il n'y a pas de jeu de paramètres au %1.").arg(dat));
        session.modeajout = ajout;
        if (!enregistrejeu(session, {dat, *region, nom})) return refuse;
        return rendFeries(session, demandeDuJeu(session));
    });
}

int commandeParametresAjouter(const Appel &appel)
{
    return enregistre(appel, true);
}

int commandeParametresModifier(const Appel &appel)
{
    return enregistre(appel, false);
}

int commandeParametresSupprimer(const Appel &appel)
{
    return surDate(appel, appel.mots[0], [](Session &session, const QDate &date) {
        auto &parcg = session.base.parcg;
        if (!placejeu(session, date))
            return refus(QStringLiteral("Il n'y a pas de jeu de paramètres au %1.").arg(Foncgen::dtoc(date)));
        if (parcg.first() && parcg.row().dat == date)
            return refus(QStringLiteral("Le premier jeu de paramètres ne peut pas être supprimé."));
        return rend(supprjeu(session, date));
    });
}

int listeFeries(Session &session, std::optional<int> annee)
{
    const store::Key premier = annee ? store::Key{QDate(*annee, 1, 1)} : store::Key{};
    const store::Key dernier = annee ? store::Key{QDate(*annee, 12, 31)} : store::Key{};
    auto jours = session.base.ferie.range("ferie01", premier, dernier);
    while (jours.next()) {
        const JourFerie &jour = jours.row();
        imprimeChamps({Foncgen::dtoc(jour.datedeb), jour.lib, QString::number(jour.act)});
    }
    return jours.status().ok() ? reussi : refus(QStringLiteral("Les jours fériés ne peuvent pas être lus."));
}

int commandeFeries(const Appel &appel)
{
    std::optional<int> annee;
    if (!appel.mots.isEmpty()) {
        annee = entier(appel.mots[0], 1, derniereAnnee);
        if (!annee) return mauvaisUsage(QStringLiteral("année illisible : ") + appel.mots[0]);
    }
    return surSession(appel, [&](Session &session) { return listeFeries(session, annee); });
}

int commandeFeriesAjouter(const Appel &appel)
{
    const QString lib = saisi(appel.mots[1]);
    if (lib.size() > longueurLibelle) return refus(tropLong(longueurLibelle, lib));
    return surDate(appel, appel.mots[0], [&](Session &session, const QDate &date) {
        return rend(ajouteferie(session, date, lib));
    });
}

int pasFerie(const QDate &date)
{
    return refus(QStringLiteral("Il n'y a pas de jour férié au %1.").arg(Foncgen::dtoc(date)));
}

int commandeFeriesModifier(const Appel &appel)
{
    const QString lib = saisi(appel.mots[1]);
    if (lib.size() > longueurLibelle) return refus(tropLong(longueurLibelle, lib));
    return surDate(appel, appel.mots[0], [&](Session &session, const QDate &date) {
        if (!jourferie(session, date)) return pasFerie(date);
        return rend(modifieferie(session, date, lib));
    });
}

int commandeFeriesSupprimer(const Appel &appel)
{
    return surDate(appel, appel.mots[0], [](Session &session, const QDate &date) {
        if (!jourferie(session, date)) return pasFerie(date);
        return rend(supprferie(session, date));
    });
}

int commandeFeriesGenerer(const Appel &appel)
{
    return surSession(appel, [](Session &session) {
        // The window can't be reached without a set either.
        if (session.base.parcg.isEmpty() && session.base.parcg.status().ok())
            return refus(QStringLiteral("Il n'y a aucun jeu de paramètres."));
        return rendFeries(session, {false, session.host.today()});
    });
}

} // namespace

std::vector<Commande> commandesCalendrier()
{
    return {{"parametres liste",
             "",
             "affiche les jeux de paramètres : date, région, établissement",
             0,
             0,
             {},
             commandeParametresListe},
            {"parametres ajouter",
             "DATE REGION NOM",
             "ajoute un jeu de paramètres et réinitialise les jours fériés à partir de sa date",
             3,
             3,
             {},
             commandeParametresAjouter},
            {"parametres modifier",
             "DATE REGION NOM",
             "modifie le jeu de paramètres d'une date et réinitialise les jours fériés à partir d'elle",
             3,
             3,
             {},
             commandeParametresModifier},
            {"parametres supprimer",
             "DATE",
             "supprime un jeu de paramètres, après une question",
             1,
             1,
             {},
             commandeParametresSupprimer},
            {"feries",
             "[ANNEE]",
             "affiche les jours fériés : date, libellé, 1 pour un jour saisi",
             0,
             1,
             {},
             commandeFeries},
            {"feries ajouter", "DATE LIBELLE", "ajoute un jour férié", 2, 2, {}, commandeFeriesAjouter},
            {"feries modifier",
             "DATE LIBELLE",
             "change le libellé d'un jour férié",
             2,
             2,
             {},
             commandeFeriesModifier},
            {"feries supprimer",
             "DATE",
             "supprime un jour férié, après une question",
             1,
             1,
             {},
             commandeFeriesSupprimer},
            {"feries generer",
             "",
             "complète les jours fériés jusqu'à l'année prochaine",
             0,
             0,
             {},
             commandeFeriesGenerer}};
}

} // namespace velmora::cli
