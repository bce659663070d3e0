#include "cli/families.h"

#include "cli/line_days.h"
#include "cli/start.h"
#include "foncgen/foncgen.h"
#include "output/code_print.h"
#include "output/line_print.h"
#include "output/practised_print.h"
#include "output/week_print.h"

namespace velmora::cli
{

namespace
{

constexpr int jours = 7;

int ecrit(const Session &session, const Appel &appel, const Impression &impression)
{
    const QString fichier = appel.arguments.valeur("pdf");
    const IssuePdf ecrite = ecritPdf(fichier, impression, {}, session.host.now());
    return ecrite ? reussi : refus(ecrite.defaut);
}

/// Why a set of lines can't be printed; empty when it can.
QString refusEnsemble(Session &session, const PeriodeLue &periode, const QString &dossier)
{
    if (!periode.refus.isEmpty()) return periode.refus;
    const QString inconnu = refusDossier(session, dossier);
    if (!inconnu.isEmpty()) return inconnu;
    store::Status statut;
    if (!lignesImprimees(session, periode.debut, periode.fin, dossier, statut).empty() || !statut.ok())
        return {};
    return QStringLiteral("Aucune ligne n'est ouverte sur cette période.");
}

int imprimeLigne(Session &session, const Appel &appel)
{
    if (!placeLigne(session, appel.mots[0])) return refus(ligneInconnue(appel.mots[0]));
    const Ligne ligne = session.base.ligmois.row();
    const PeriodeLue periode = litPeriode(session, appel.mots[1], appel.mots[2]);
    if (!periode.refus.isEmpty()) return refus(periode.refus);
    return ecrit(session, appel,
                 impressionLigne(session, {ligne.nump, ligne.nom}, periode.debut, periode.fin));
}

int imprimeEnsemble(Session &session, const Appel &appel)
{
    const QString dossier = appel.arguments.valeur("dossier");
    const PeriodeLue periode = litPeriode(session, appel.mots[0], appel.mots[1]);
    const QString impossible = refusEnsemble(session, periode, dossier);
    if (!impossible.isEmpty()) return refus(impossible);
    return ecrit(session, appel, impressionEnsemble(session, periode.debut, periode.fin, dossier));
}

int imprimeSemaine(Session &session, const Appel &appel)
{
    const QString dossier = appel.arguments.valeur("dossier");
    PeriodeLue semaine = litPeriode(session, appel.mots[0], appel.mots[0]);
    semaine.fin = semaine.debut.addDays(jours - 1);
    const QString impossible = refusEnsemble(session, semaine, dossier);
    if (!impossible.isEmpty()) return refus(impossible);
    const ChoixSemaine choix{semaine.debut, dossier, appel.arguments.a("valorisees"),
                             appel.arguments.a("couleur")};
    return ecrit(session, appel, impressionSemaine(session, choix));
}

int imprimeHoraires(Session &session, const Appel &appel)
{
    const PeriodeLue periode = litPeriode(session, appel.mots[0], appel.mots[1]);
    if (!periode.refus.isEmpty()) return refus(periode.refus);
    const HorairesPratiques rapport = horairesPratiques(session, periode.debut, periode.fin);
    const QString defaut = defautHoraires(rapport);
    if (!defaut.isEmpty()) return refus(defaut);
    return ecrit(session, appel,
                 impressionHoraires(rapport.horaires, periode.debut, periode.fin, session.nometab));
}

int commandeImprimerLigne(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return imprimeLigne(session, appel); });
}

int commandeImprimerEnsemble(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return imprimeEnsemble(session, appel); });
}

int commandeImprimerSemaine(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return imprimeSemaine(session, appel); });
}

int commandeImprimerHoraires(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return imprimeHoraires(session, appel); });
}

int commandeImprimerCodes(const Appel &appel)
{
    return surSession(appel,
                      [&](Session &session) { return ecrit(session, appel, impressionCodes(session)); });
}

} // namespace

std::vector<Commande> commandesImpressions()
{
    const Option pdf{"pdf", "FICHIER", false, true};
    return {
        {"imprimer ligne",
         "NUMP DEBUT FIN",
         "écrit le planning d'une ligne dans un fichier PDF",
         3,
         3,
         {pdf},
         commandeImprimerLigne},
        {"imprimer ensemble",
         "DEBUT FIN",
         "écrit le planning de chaque ligne dans un fichier PDF",
         2,
         2,
         {{"dossier", "NOM"}, pdf},
         commandeImprimerEnsemble},
        {"imprimer semaine",
         "DATE",
         "écrit le tableau de sept jours dans un fichier PDF",
         1,
         1,
         {{"dossier", "NOM"}, {"valorisees"}, {"couleur"}, pdf},
         commandeImprimerSemaine},
        {"imprimer horaires",
         "DEBUT FIN",
         "écrit les horaires pratiqués entre deux dates dans un fichier PDF",
         2,
         2,
         {pdf},
         commandeImprimerHoraires},
        {"imprimer codes",
         "",
         "écrit la liste des codes absence dans un fichier PDF",
         0,
         0,
         {pdf},
         commandeImprimerCodes},
    };
}

} // namespace velmora::cli
