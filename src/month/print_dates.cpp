#include "month/print_dates.h"

namespace velmora
{

void datesDuMois(Planning &planning)
{
    Session &session = planning.session;
    session.impdate = planning.date(planning.curseur.colonne);
    session.impdeb = session.impdate.addDays(1 - session.impdate.day());
    session.impfin = session.impdate;
    while (session.impfin.addDays(1).month() == session.impdate.month())
        session.impfin = session.impfin.addDays(1);
}

void datesDeLigne(Planning &planning)
{
    datesDuMois(planning);
    const int ligne = planning.curseur.ligne;
    planning.session.saisdeb = planning.grille.lit(ligne, Grille::colonneNom).texte;
    planning.session.saisligne = static_cast<float>(planning.grille.numligne(ligne));
}

void datesDeSemaine(Planning &planning)
{
    planning.session.impdate = planning.date(planning.curseur.colonne);
    planning.session.impdeb = planning.periode.debgrille;
    planning.session.impfin = planning.periode.fingrille;
}

void datesDHoraires(Planning &planning)
{
    planning.session.impdate = planning.periode.debgrille;
    planning.session.impdeb = planning.periode.fingrille;
}

} // namespace velmora
