#pragma once

#include "entry/slices.h"

#include <QPixmap>
#include <QWidget>

#include <vector>

namespace velmora
{

/// The hour bar of the day entry. Both scales are drawn once for a size and a screen; showing other hours
/// copies one of them and paints the slices over it.
class HourBarView : public QWidget
{
public:
    HourBarView(const QColor &heures, const QColor &echelle, QWidget *parent);

    void montre(bool nuit, const std::vector<Trait> &traits);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRectF place() const;
    void dessineEchelles();
    [[nodiscard]] QPixmap echelle(bool nuit) const;

    QColor m_heures;
    QColor m_echelle;
    QPixmap m_pich;  // the day scale
    QPixmap m_pichn; // the night scale
    std::vector<Trait> m_traits;
    bool m_nuit = false;
};

} // namespace velmora
