#include "output/absli.h"

#include "output/code_print.h"

namespace velmora
{

Absli::Absli(Session &session, QWidget *parent) : DialogueImpression(session, parent)
{
    setObjectName(QStringLiteral("Absli"));
    setWindowTitle(QStringLiteral("Impression des codes absence"));
    compose({}, nullptr);
}

Impression Absli::impression() const
{
    return impressionCodes(m_session);
}

void ouvreImpressionCodes(Session &session, QWidget *parent)
{
    Absli(session, parent).exec();
}

} // namespace velmora
