#include "month/text_form.h"

namespace velmora
{

QStringList texteGrille(const Planning &planning)
{
    const Grille &grille = planning.grille;
    QStringList lignes;
    for (int ligne = 0; ligne < grille.lignes(); ++ligne) {
        QStringList cases;
        for (int colonne = 0; colonne < grille.colonnes(); ++colonne)
            cases << QString(grille.lit(ligne, colonne).texte)
                         .replace(QLatin1Char('\n'), QStringLiteral(" | "))
                         .replace(QLatin1Char('\t'), QLatin1Char(' '));
        lignes << cases.join(QLatin1Char('\t'));
    }
    return lignes;
}

} // namespace velmora
