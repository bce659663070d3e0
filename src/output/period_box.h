#pragma once

#include "output/period_bars.h"

#include <QGroupBox>

class QLabel;
class QScrollBar;

namespace velmora
{

/// "Dates": two bars that choose the first and the last date of a print within a month.
class CadreDates : public QGroupBox
{
    Q_OBJECT

public:
    CadreDates(const QDate &premier, const QDate &dernier, QWidget *parent = nullptr);

    [[nodiscard]] QDate premier() const { return m_barres.premier(); }
    [[nodiscard]] QDate dernier() const { return m_barres.dernier(); }

private:
    [[nodiscard]] QGroupBox *cadre(const char *nom, const QString &titre, QLabel *date, QScrollBar *barre);
    void montre();

    BarresPeriode m_barres;
    QLabel *m_label1; ///< first date
    QScrollBar *m_vs1;
    QLabel *m_label2; ///< last date
    QScrollBar *m_vs2;
};

} // namespace velmora
