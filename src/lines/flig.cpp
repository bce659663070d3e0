#include "lines/flig.h"

#include "foncgen/field_wiring.h"
#include "lines/control_fields.h"
#include "lines/lifecycle.h"

#include <QLineEdit>

namespace velmora
{

Flig::Flig(Session &session, QWidget *parent)
    : DialogueLigne(session, "Flig", QStringLiteral("Ouvrir une ligne de planning"), parent),
      m_text1(ajouteNom(QStringLiteral("Appellation de la ligne"))),
      m_text2(ajouteDate(QStringLiteral("Ligne débutant le"))), m_controles(new CadreControles({}))
{
    ajoute(m_controles);
    m_controles->enchaine(m_text2, boutonOk());
    FieldWiring::of(m_text2)->setNext([this] { return m_controles->champ(ChampLigne::Maxs); });
    termine();
}

IssueLigne Flig::execute()
{
    return nouvelleLigne(m_session, m_text1->text(), Foncgen::ctod(m_text2->text()), m_controles->champs());
}

QLineEdit *Flig::champ(ChampLigne lequel) const
{
    QLineEdit *const controle = m_controles->champ(lequel);
    return controle ? controle : DialogueLigne::champ(lequel);
}

} // namespace velmora
