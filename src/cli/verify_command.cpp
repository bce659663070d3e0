#include "cli/families.h"

#include "cli/output.h"
#include "session/velmoral.h"
#include "store/verification.h"

namespace velmora::cli
{

namespace
{

int commandeVerifie(const Appel &appel)
{
    int fautes = 0;
    for (const store::Constat &constat : store::verifieFichiers(avecSeparateur(appel.poste.journal))) {
        const bool faute = constat.gravite == store::Constat::Gravite::Faute;
        imprimeChamps({faute ? constat.phrase : QStringLiteral("Remarque, ") + constat.phrase});
        fautes += faute ? 1 : 0;
    }
    if (fautes > 0) return refuse;
    imprime(QStringLiteral("Les deux fichiers sont en ordre."));
    return reussi;
}

} // namespace

std::vector<Commande> commandesVerification()
{
    return {{"verifie", "", "contrôle les deux fichiers sans y écrire", 0, 0, {}, commandeVerifie}};
}

} // namespace velmora::cli
