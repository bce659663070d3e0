#include "month/fplan.h"

#include "month/print_dates.h"
#include "output/fimpplh.h"
#include "output/fimppli.h"
#include "output/fimpplii.h"

// The prints of the month. They change nothing, so the grid isn't filled again after them.
namespace velmora
{

void Fplan::relieImpressions()
{
    m_menus.lie(QStringLiteral("mnuimpi"), this, &Fplan::imprimeLigne);
    m_menus.lie(QStringLiteral("mnupie"), this, &Fplan::imprimeEnsemble);
    m_menus.lie(QStringLiteral("mnuimph"), this, &Fplan::imprimeSemaine);
}

void Fplan::imprimeLigne()
{
    if (!m_planning.grille.estLigne(m_planning.curseur.ligne)) return;
    datesDeLigne(m_planning);
    Fimppli(m_session, this).exec();
}

void Fplan::imprimeEnsemble()
{
    datesDuMois(m_planning);
    Fimpplii(m_session, this).exec();
}

void Fplan::imprimeSemaine()
{
    datesDeSemaine(m_planning);
    Fimpplh(m_session, this).exec();
}

} // namespace velmora
