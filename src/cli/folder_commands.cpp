#include "cli/families.h"
#include "cli/output.h"
#include "cli/start.h"
#include "folders/composition.h"
#include "folders/folder_list.h"
#include "foncgen/gestext.h"

#include <limits>
#include <set>

namespace velmora::cli
{

namespace
{

constexpr int longueurNom = 15; // the length of the dialog's field

int liste(Session &session)
{
    for (const QString &nom : nomsDossiers(session)) {
        QStringList numeros;
        for (const Ligne &ligne : membres(session, nom))
            numeros << QString::number(ligne.nump);
        imprimeChamps({nom, numeros.join(QLatin1Char(' '))});
    }
    return reussi;
}

int commandeDossierListe(const Appel &appel)
{
    return surSession(appel, liste);
}

/// Ticks the lines of the given numbers, and no other.
void coche(CompositionDossier &composition, const std::set<int> &numeros)
{
    const auto &lignes = composition.lignes();
    for (std::size_t rang = 0; rang < lignes.size(); ++rang)
        composition.coche(static_cast<int>(rang), numeros.count(lignes[rang].nump) > 0);
}

int compose(Session &session, const QString &nom, const QStringList &nump)
{
    std::set<int> numeros;
    for (const QString &un : nump) {
        if (!placeLigne(session, un)) return refus(ligneInconnue(un));
        numeros.insert(session.base.ligmois.row().nump);
    }
    CompositionDossier composition(session);
    if (!composition.remplit()) return refuse;
    coche(composition, numeros);
    return composition.valide(nom) && composition.enregistre(nom) ? reussi : refuse;
}

/// A name as the dialog's field takes it: capitals, and no control characters. Blanks around it stay.
QString nomSaisi(const QString &mot)
{
    return admissible(FieldType::Capitals, static_cast<int>(mot.size()), mot);
}

int commandeDossierAjouter(const Appel &appel)
{
    const QString nom = nomSaisi(appel.mots[0]);
    if (nom.size() > longueurNom) return refus(tropLong(longueurNom, appel.mots[0]));
    return surSession(appel, [&](Session &session) {
        session.modeajout = true;
        return compose(session, nom, appel.mots.mid(1));
    });
}

int commandeDossierModifier(const Appel &appel)
{
    return surSession(appel, [&](Session &session) {
        session.modeajout = false;
        session.dossiersel = appel.mots[0];
        if (!placedossier(session, session.dossiersel)) return refus(dossierInconnu(session.dossiersel));
        return compose(session, session.dossiersel, appel.mots.mid(1));
    });
}

int commandeDossierSupprimer(const Appel &appel)
{
    return surSession(appel, [&](Session &session) {
        const QString &nom = appel.mots[0];
        if (!placedossier(session, nom)) return refus(dossierInconnu(nom));
        return supprdossier(session, nom) ? reussi : refuse;
    });
}

} // namespace

std::vector<Commande> commandesDossiers()
{
    constexpr int sansLimite = std::numeric_limits<int>::max();
    return {{"dossier liste",
             "",
             "affiche les dossiers et les numéros de leurs lignes",
             0,
             0,
             {},
             commandeDossierListe},
            {"dossier ajouter",
             "NOM NUMP...",
             "crée un dossier avec les lignes données",
             1,
             sansLimite,
             {},
             commandeDossierAjouter},
            {"dossier modifier",
             "NOM NUMP...",
             "donne à un dossier ces lignes et elles seules",
             1,
             sansLimite,
             {},
             commandeDossierModifier},
            {"dossier supprimer",
             "NOM",
             "supprime un dossier, après une question",
             1,
             1,
             {},
             commandeDossierSupprimer}};
}

} // namespace velmora::cli
