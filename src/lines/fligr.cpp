#include "lines/fligr.h"

#include "lines/lifecycle.h"

#include <QLineEdit>

namespace velmora
{

Fligr::Fligr(Session &session, Ligne ligne, QWidget *parent)
    : DialogueLigne(session, "Fligr", QStringLiteral("Renommer une ligne de planning"), parent),
      m_ligne(std::move(ligne))
{
    ajouteLabel("Label1", QStringLiteral("Nom actuel: ") + m_ligne.nom);
    m_text1 = ajouteNom(QStringLiteral("Appellation nouvelle de la ligne"));
    termine();
}

IssueLigne Fligr::execute()
{
    return renommeLigne(m_session, m_ligne, m_text1->text());
}

} // namespace velmora
