#include "lines/fligf.h"

#include "lines/lifecycle.h"

#include <QLineEdit>

namespace velmora
{

Fligf::Fligf(Session &session, Ligne ligne, QWidget *parent)
    : DialogueLigne(session, "Fligf", QStringLiteral("Ouvrir une ligne de planning"), parent),
      m_ligne(std::move(ligne))
{
    ajouteLabel("Label1", m_ligne.nom);
    m_text2 = ajouteDate(QStringLiteral("Fermer cette ligne à partir du :"));
    termine();
}

IssueLigne Fligf::execute()
{
    return fermeLigne(m_session, m_ligne, Foncgen::ctod(m_text2->text()));
}

} // namespace velmora
