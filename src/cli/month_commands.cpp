#include "cli/month_commands.h"

#include "cli/output.h"
#include "cli/start.h"
#include "folders/folder_list.h"
#include "folders/month_choice.h"
#include "foncgen/foncgen.h"
#include "month/cells.h"
#include "month/loading.h"
#include "month/text_form.h"

namespace velmora::cli
{

namespace
{

constexpr int modesCellule = 3;

/// The value of --cellules; the mode of a new session without it.
std::optional<int> cellules(const Appel &appel)
{
    return entier(appel.arguments.valeur("cellules", QStringLiteral("1")), 0, modesCellule - 1);
}

int mauvaisesCellules()
{
    return mauvaisUsage(QStringLiteral("--cellules vaut 0, 1 ou 2"));
}

int imprimeMois(Session &session)
{
    Planning planning(session, session.moisvue, session.anvue);
    if (!chargi(planning, {})) return refuse;
    for (const QString &rangee : texteGrille(planning))
        imprime(rangee);
    return reussi;
}

int mois(Session &session, const Appel &appel)
{
    QString impossible = refusMois(session, appel.mots.first());
    const QString dossier = appel.arguments.valeur("dossier");
    if (impossible.isEmpty()) impossible = refusDossier(session, dossier);
    if (!impossible.isEmpty()) return refus(impossible);
    session.dossiervue = dossier;
    session.totcent = appel.arguments.a("centiemes");
    const int statut = imprimeMois(session);
    if (statut != reussi || !appel.arguments.a("png")) return statut;
    const QString image = appel.arguments.valeur("png");
    return appel.peint(session, image)
               ? reussi
               : refus(QStringLiteral("L'image %1 ne peut pas être écrite.").arg(image));
}

int statut(Session &session, const QString &nump, const QString &date)
{
    if (!placeLigne(session, nump)) return refus(ligneInconnue(nump));
    const QDate jour = Foncgen::ctod(date);
    if (!jour.isValid()) return refus(dateIllisible(date));
    imprimeChamps({textestatut(session, session.base.ligmois.row().nump, jour)});
    return reussi;
}

} // namespace

QString refusMois(Session &session, const QString &texte)
{
    const QDate premier = Foncgen::ctod(QStringLiteral("01/") + texte);
    if (!premier.isValid()) return QStringLiteral("Mois illisible : ") + texte;
    const EchelleMois echelle(session.datemin, session.datemax);
    const int position = echelle.position({premier.month(), premier.year()});
    if (position < echelle.minimum() || position > echelle.maximum()) {
        return QStringLiteral("Les mois vont du %1 au %2.")
            .arg(Foncgen::dtoc(session.datemin), Foncgen::dtoc(session.datemax));
    }
    session.moisvue = premier.month();
    session.anvue = premier.year();
    return {};
}

int commandeMois(const Appel &appel)
{
    const auto mode = cellules(appel);
    if (!mode) return mauvaisesCellules();
    return surSession(appel, [&](Session &session) {
        session.modecellule = *mode;
        return mois(session, appel);
    });
}

int commandeStatut(const Appel &appel)
{
    const auto mode = cellules(appel);
    if (!mode) return mauvaisesCellules();
    return surSession(appel, [&](Session &session) {
        session.modecellule = *mode;
        return statut(session, appel.mots[0], appel.mots[1]);
    });
}

} // namespace velmora::cli
