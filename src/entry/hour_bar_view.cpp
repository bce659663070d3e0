#include "entry/hour_bar_view.h"

#include "entry/hour_bar.h"

#include <QPainter>

namespace velmora
{

namespace
{

constexpr int margeCote = 8;
constexpr int margeHaut = 3;
constexpr QSize tailleIdeale(576, 64);
constexpr QSize tailleMinimale(360, 56);

} // namespace

HourBarView::HourBarView(const QColor &heures, const QColor &echelle, QWidget *parent)
    : QWidget(parent), m_heures(heures), m_echelle(echelle)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void HourBarView::montre(bool nuit, const std::vector<Trait> &traits)
{
    if (m_nuit == nuit && m_traits == traits) return;
    m_nuit = nuit;
    m_traits = traits;
    update();
}

QSize HourBarView::sizeHint() const
{
    return tailleIdeale;
}

QSize HourBarView::minimumSizeHint() const
{
    return tailleMinimale;
}

QRectF HourBarView::place() const
{
    return QRectF(rect()).adjusted(margeCote, margeHaut, -margeCote, -margeHaut);
}

QPixmap HourBarView::echelle(bool nuit) const
{
    QPixmap image(size() * devicePixelRatioF());
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::white); // whatever the desktop's theme: the bar's colours are made for it
    QPainter painter(&image);
    painter.setFont(font());
    peintEchelle(painter, place(), nuit ? echellenuit() : echellejour(), m_echelle);
    return image;
}

void HourBarView::dessineEchelles()
{
    if (m_pich.size() == size() * devicePixelRatioF()) return;
    m_pich = echelle(false);
    m_pichn = echelle(true);
}

void HourBarView::paintEvent(QPaintEvent *)
{
    dessineEchelles();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_nuit ? m_pichn : m_pich);
    for (const Trait &trait : m_traits)
        if (const auto segment = tracetranche(m_nuit, trait.a, trait.b))
            peintTranche(painter, place(), *segment, m_heures);
}

} // namespace velmora
