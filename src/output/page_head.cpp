#include "output/page_head.h"

#include "folders/month_choice.h"
#include "foncgen/foncgen.h"

namespace velmora
{

namespace
{

constexpr double tailleEntete = 8;
constexpr int gaucheEntete = 300;
constexpr int hautEntete = 100;
constexpr int placeNumero = 2000; // from the right edge
constexpr int ecart = 200;

constexpr double tailleTitre = 12;
constexpr int hautTitre = 584;
constexpr int pasTitre = 320;
constexpr int gaucheTitreLong = 500;
constexpr int retraitTitre = 500; // from the right edge
constexpr int hautCadre = 484;
constexpr int hauteurCadre = 442;
constexpr int sousCadre = 120;

/// The frame goes around both titles where there are two.
int basCadre(const EntetePage &entete)
{
    return hautCadre + hauteurCadre + (entete.titre2.isEmpty() ? 0 : pasTitre);
}

/// The establishment's name is the session's: empty until the dialog of a parameter set has opened, and
/// prints made before bear none. Wanted.
void ecritMoment(Imprimante &imprimante, const QString &nometab)
{
    const QDateTime &moment = imprimante.moment();
    const QString heureimp = Foncgen::fwhl(60 * moment.time().hour() + moment.time().minute(), 5);
    const QString imprime = QStringLiteral("  [imprimé le ") + Foncgen::dtoc(moment.date()) +
                            QStringLiteral("  à ") + heureimp + QLatin1Char(']');
    const double place = imprimante.largeurPage() - placeNumero - gaucheEntete - ecart;
    const QString nom = imprimante.abrege(nometab, place - imprimante.largeurTexte(imprime));
    imprimante.ecrit(gaucheEntete, hautEntete, nom + imprime);
}

void ecritNumero(Imprimante &imprimante, int nbpages)
{
    QString numero = QStringLiteral("Page :") + nombreAvecBlanc(imprimante.numpage());
    if (nbpages > 1) numero += QStringLiteral(" - ") + QString::number(nbpages);
    imprimante.ecrit(imprimante.largeurPage() - placeNumero, hautEntete, numero);
}

/// Centred in the frame, or from a fixed place on when it is too long for that.
void ecritTitre(Imprimante &imprimante, int haut, const QString &titre)
{
    const int droite = imprimante.largeurPage() - retraitTitre;
    const double largeur = imprimante.largeurTexte(titre);
    if (largeur <= droite) return imprimante.ecrit((droite - largeur) / 2, haut, titre);
    const double place = droite - gaucheTitreLong - ecart;
    imprimante.ecrit(gaucheTitreLong, haut, imprimante.abrege(titre, place));
}

void encadreTitres(Imprimante &imprimante, int bas)
{
    const int droite = imprimante.largeurPage() - retraitTitre;
    imprimante.trait(0, hautCadre, droite, hautCadre);
    imprimante.trait(droite, hautCadre, droite, bas);
    imprimante.trait(droite, bas, 0, bas);
    imprimante.trait(0, bas, 0, hautCadre);
}

} // namespace

int entetepage(Imprimante &imprimante, const EntetePage &entete)
{
    imprimante.nouvellePage();
    imprimante.fixePolice(tailleEntete);
    ecritMoment(imprimante, entete.nometab);
    ecritNumero(imprimante, entete.nbpages);
    imprimante.fixePolice(tailleTitre);
    ecritTitre(imprimante, hautTitre, entete.titre1);
    if (!entete.titre2.isEmpty()) ecritTitre(imprimante, hautTitre + pasTitre, entete.titre2);
    encadreTitres(imprimante, basCadre(entete));
    return premiereLigne(entete);
}

int premiereLigne(const EntetePage &entete)
{
    const int libre = basCadre(entete) + sousCadre;
    return (libre + papier::hauteurLigne - 1) / papier::hauteurLigne + 1;
}

} // namespace velmora
