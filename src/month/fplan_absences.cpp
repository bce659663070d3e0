#include "month/fplan.h"

#include "absences/saisabs.h"
#include "month/refresh.h"
#include "month/selection.h"

namespace velmora
{

void Fplan::relieAbsences()
{
    connect(m_code, &SaisieCode::codeTape, this, &Fplan::verifieCode);
    connect(m_code, &SaisieCode::abandon, this, &Fplan::finitCode);
    m_menus.lie(QStringLiteral("mnuabs"), this, [this] {
        m_session.abscode.clear();
        saisitAbsence();
    });
}

void Fplan::verifieCode(const QString &code)
{
    if (codeok(m_session, code)) return saisitAbsence();
    m_code->recommence();
}

/// The field of a code typed in a cell stays over it until the dialog has closed.
void Fplan::saisitAbsence()
{
    m_timer2.stop();
    m_timer3.stop();
    const Place place = m_planning.curseur;
    if (!m_planning.grille.estLigne(place.ligne)) return lanceCycle();
    // A line deleted elsewhere: its number may become another's.
    if (!positionneLigne()) {
        ditErreurBase(m_planning);
        return finitCode();
    }
    const Selection &selection = m_planning.selection;
    const auto fin = selection.selact ? std::optional(m_planning.date(selection.selfin)) : std::nullopt;
    prepareAbsence(m_session, m_planning.grille.lit(place.ligne, Grille::colonneNom).texte,
                   m_planning.grille.numligne(place.ligne), m_planning.date(place.colonne), fin);
    m_planning.suivi = false;
    {
        Saisabs dialogue(m_session, this);
        dialogue.exec();
    }
    if (m_ferme) return;
    m_code->termine();
    selvide(m_planning);
    if (m_session.dlgvalide) refaitLigne(place.ligne);
    finitCode();
}

} // namespace velmora
