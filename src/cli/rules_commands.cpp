#include "cli/families.h"
#include "cli/output.h"
#include "cli/start.h"
#include "month/line_state.h"
#include "rules/controls.h"
#include "rules/walk.h"
#include "session/batch.h"

#include <limits>

namespace velmora::cli
{

namespace
{

/// What is judged: lines, with controls or without, between two dates.
struct Demande {
    QDate debut;
    QDate fin;
    std::vector<Ligne> lignes;
    QString refus; ///< why it can't be, in a sentence; empty when it can
};

QString refusDates(const Demande &demande, const Appel &appel)
{
    if (!demande.debut.isValid()) return dateIllisible(appel.mots[0]);
    if (!demande.fin.isValid()) return dateIllisible(appel.mots[1]);
    return demande.fin < demande.debut ? QStringLiteral("La date de fin est avant la date de début.")
                                       : QString();
}

/// The lines of the numbers, in their order; every line by name without a number.
void litLignes(Session &session, const QStringList &numeros, Demande &demande)
{
    for (const QString &nump : numeros) {
        if (!placeLigne(session, nump)) {
            demande.refus = ligneInconnue(nump);
            return;
        }
        demande.lignes.push_back(session.base.ligmois.row());
    }
    if (!numeros.isEmpty()) return;
    auto lignes = session.base.ligmois.range("ligmois02", {}, {});
    while (lignes.next())
        demande.lignes.push_back(lignes.row());
    if (!lignes.status().ok()) demande.refus = QStringLiteral("Les lignes ne peuvent pas être lues.");
}

Demande litDemande(Session &session, const Appel &appel)
{
    Demande demande{Foncgen::ctod(appel.mots[0]), Foncgen::ctod(appel.mots[1]), {}, {}};
    demande.refus = refusDates(demande, appel);
    if (demande.refus.isEmpty()) litLignes(session, appel.mots.mid(2), demande);
    return demande;
}

void imprimeControle(Session &session, const Demande &demande, const Ligne &ligne, bool rapport)
{
    const SuiteJours jours = joursControles(session, ligne, demande.debut, demande.fin);
    const Controle controle = controlligne(ligne, jours, demande.debut, demande.fin);
    if (!controle.presents) return;
    imprimeChamps({QString::number(ligne.nump), ligne.nom, Foncgen::dtoc(controle.echec),
                   etatDe(controle, demande.debut, session.host.today()).texte});
    if (!rapport) return;
    const QString texte = rapportcontrole(ligne, jours, demande.debut, demande.fin);
    // The text ends its own last line.
    if (!texte.isEmpty()) imprime(texte.chopped(1));
}

int controle(Session &session, const Appel &appel)
{
    const ReadPass lecture(session.base.engine);
    const Demande demande = litDemande(session, appel);
    if (!demande.refus.isEmpty()) return refus(demande.refus);
    for (const Ligne &ligne : demande.lignes)
        imprimeControle(session, demande, ligne, appel.arguments.a("rapport"));
    return reussi;
}

int commandeControle(const Appel &appel)
{
    return surSession(appel, [&](Session &session) { return controle(session, appel); });
}

} // namespace

std::vector<Commande> commandesControle()
{
    return {{"controle",
             "DEBUT FIN [NUMP...]",
             "contrôle les lignes entre deux dates, avec leur rapport si on le demande",
             2,
             std::numeric_limits<int>::max(),
             {{"rapport"}},
             commandeControle}};
}

} // namespace velmora::cli
