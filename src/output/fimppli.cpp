#include "output/fimppli.h"

#include "output/line_print.h"
#include "output/period_box.h"

#include <QBoxLayout>

namespace velmora
{

Fimppli::Fimppli(Session &session, QWidget *parent)
    : DialogueImpression(session, parent), m_ligne{static_cast<int>(session.saisligne), session.saisdeb},
      m_dates(new CadreDates(session.impdeb, session.impfin, this))
{
    setObjectName(QStringLiteral("Fimppli"));
    // The bracket is wanted.
    setWindowTitle(QStringLiteral(" Velmora Impression: planning individuel]"));
    auto *const demandes = new QVBoxLayout;
    demandes->addWidget(m_dates);
    compose(m_ligne.nom, demandes);
}

Impression Fimppli::impression() const
{
    return impressionLigne(m_session, m_ligne, m_dates->premier(), m_dates->dernier());
}

} // namespace velmora
