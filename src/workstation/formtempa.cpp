#include "workstation/formtempa.h"

#include "workstation/colours.h"
#include "workstation/controls.h"
#include "workstation/icons.h"

#include <QHBoxLayout>
#include <QStyle>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto delaiChargement = 1ms;
constexpr int lettresEnLargeur = 30;

} // namespace

Formtempa::Formtempa(Session &session, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint), m_session(session)
{
    setWindowTitle(QStringLiteral("VELMORA - PLANNING AGENTS: chargement"));
    setObjectName(QStringLiteral("Formtempa"));
    dispose();
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
    connect(&m_timer1, &QTimer::timeout, this, &Formtempa::charge);
    m_timer1.start(delaiChargement);
}

void Formtempa::dispose()
{
    auto *const image = nomme(new QLabel(this), "Image1");
    image->setPixmap(iconeVelmora().pixmap(2 * style()->pixelMetric(QStyle::PM_LargeIconSize)));
    auto *const label = etiquette(this, "Label1", QStringLiteral("PATIENTEZ"));
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setLetterSpacing(QFont::PercentageSpacing, 108);
    label->setFont(font);
    auto *const ligne = new QHBoxLayout(this);
    const int marge = fontMetrics().height() * 2;
    ligne->setContentsMargins(marge, marge, marge, marge);
    ligne->setSpacing(fontMetrics().height());
    ligne->addStretch();
    ligne->addWidget(image);
    ligne->addWidget(label);
    ligne->addStretch();
    setMinimumWidth(fontMetrics().averageCharWidth() * 2 * lettresEnLargeur);
}

void Formtempa::charge()
{
    setCursor(Qt::WaitCursor);
    gescolor(m_session, palette().color(QPalette::WindowText).rgb());
    if (!m_defaut) {
        m_session.dlgvalide = true;
        unsetCursor();
    }
    hide();
}

} // namespace velmora
