#include "output/fimpplii.h"

#include "folders/folder_choice.h"
#include "output/line_print.h"
#include "output/period_box.h"

#include <QBoxLayout>
#include <QLabel>

namespace velmora
{

Fimpplii::Fimpplii(Session &session, QWidget *parent)
    : DialogueImpression(session, parent), m_dates(new CadreDates(session.impdeb, session.impfin, this)),
      m_list1(new ListeDossiers(session, this))
{
    setObjectName(QStringLiteral("Fimpplii"));
    setWindowTitle(QStringLiteral("  Velmora: Impression plannings individuels (ensemble de lignes)"));
    auto *const demandes = new QVBoxLayout;
    demandes->addWidget(m_dates);
    demandes->addWidget(m_list1, 1);
    compose(titreEnsemble(), demandes);
}

Impression Fimpplii::impression() const
{
    return impressionEnsemble(m_session, m_dates->premier(), m_dates->dernier(), m_list1->dossier());
}

} // namespace velmora
