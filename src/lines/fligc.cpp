#include "lines/fligc.h"

#include "lines/control_fields.h"
#include "lines/lifecycle.h"

namespace velmora
{

Fligc::Fligc(Session &session, Ligne ligne, QWidget *parent)
    : DialogueLigne(session, "Fligc", QStringLiteral("Définir / Redéfinir les contrôles"), parent),
      m_ligne(std::move(ligne)), m_controles(new CadreControles(controlesDe(m_ligne)))
{
    ajouteLabel("Label2", QStringLiteral("Ligne : ") + m_ligne.nom);
    ajoute(m_controles);
    m_controles->enchaine(nullptr, boutonOk());
    termine();
}

IssueLigne Fligc::execute()
{
    return redefinitControles(m_session, m_ligne, m_controles->champs());
}

QLineEdit *Fligc::champ(ChampLigne lequel) const
{
    return m_controles->champ(lequel);
}

} // namespace velmora
