#include "lines/fligs.h"

#include "lines/lifecycle.h"

namespace velmora
{

Fligs::Fligs(Session &session, Ligne ligne, QWidget *parent)
    : DialogueLigne(session, "Fligs", QStringLiteral("Supprimer une ligne de planning"), parent),
      m_ligne(std::move(ligne))
{
    ajouteLabel("Label1", m_ligne.nom, QStringLiteral("Supprimer la ligne:"));
    termine();
}

IssueLigne Fligs::execute()
{
    return supprimeLigne(m_session, m_ligne);
}

} // namespace velmora
