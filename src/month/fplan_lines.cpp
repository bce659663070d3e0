#include "lines/flig.h"
#include "lines/fligc.h"
#include "lines/fligf.h"
#include "lines/fligr.h"
#include "lines/fligs.h"
#include "lines/lifecycle.h"
#include "lines/month_lines.h"
#include "month/fplan.h"
#include "month/refresh.h"

namespace velmora
{

void Fplan::relieLignes()
{
    const auto lie = [this](const char *nom, const std::function<void(const Ligne &)> &commande) {
        m_menus.lie(QLatin1String(nom), this, [this, commande] { surLigne(commande); });
    };
    m_menus.lie(QStringLiteral("mnunewl"), this, &Fplan::ouvreLigne);
    lie("mnufermlig", [this](const Ligne &ligne) {
        if (demande<Fligf>(ligne)) suitDates(m_planning, ligne.nump);
    });
    lie("mnureouv", [this](const Ligne &ligne) {
        if (reouvreLigne(m_session, ligne).faite && !m_ferme) suitDates(m_planning, ligne.nump);
    });
    lie("mnucont", [this](const Ligne &ligne) {
        if (demande<Fligc>(ligne)) suitControles(m_planning, ligne.nump);
    });
    lie("mnurenlig", [this](const Ligne &ligne) {
        if (demande<Fligr>(ligne)) suitNom(m_planning, ligne.nump);
    });
    lie("mnusuplig", [this](const Ligne &ligne) {
        if (ligneSupprimable(m_planning) && demande<Fligs>(ligne)) suitSuppression(m_planning, ligne.nump);
    });
}

/// Shows the dialog of a new line. True when a line was opened and the month still is.
bool Fplan::demandeLigne()
{
    m_session.saisdeb.clear();
    Flig dialogue(m_session, this);
    dialogue.exec();
    return !m_ferme && m_session.dlgvalide;
}

bool Fplan::ligneDuMoisVide()
{
    if (!demandeLigne()) return false;
    ajouteLignesAbsentes(m_planning);
    return true;
}

void Fplan::ouvreLigne()
{
    m_timer2.stop();
    m_timer3.stop();
    m_planning.suivi = false;
    if (ligneAdmise(m_planning) && demandeLigne()) suitNouvelleLigne(m_planning);
    termineLigne();
}

/// Runs a command on the line of the current cell. A line that another workstation has deleted is told, and
/// the command doesn't run: it would act on whatever line was read before.
void Fplan::surLigne(const std::function<void(const Ligne &)> &commande)
{
    m_timer2.stop();
    m_timer3.stop();
    m_planning.suivi = false;
    if (positionneLigne())
        commande(Ligne(m_session.base.ligmois.row()));
    else if (m_planning.grille.estLigne(m_planning.curseur.ligne))
        ditErreurBase(m_planning);
    termineLigne();
}

/// Shows a dialog on a line. True when it was confirmed and the month is still open.
template <class Dialogue> bool Fplan::demande(const Ligne &ligne)
{
    Dialogue dialogue(m_session, ligne, this);
    dialogue.exec();
    return !m_ferme && m_session.dlgvalide;
}

void Fplan::termineLigne()
{
    if (m_ferme) return;
    m_planning.suivi = true;
    celluleAtteinte();
}

} // namespace velmora
