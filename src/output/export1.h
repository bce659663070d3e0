#pragma once

#include "output/export.h"
#include "output/period_bars.h"

#include <QDialog>
#include <QTimer>

class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QScrollBar;

namespace velmora
{

/// "Exportation vers Excel": exports the month that the session holds in `impdeb` and `impfin`. It stays open
/// after an export.
class Export1 : public QDialog
{
    Q_OBJECT

public:
    explicit Export1(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();
    [[nodiscard]] QGroupBox *cadre(const char *nom, const QString &texte, QScrollBar *barre, QLabel *date);

    void prepareBarres();
    void montreDates();
    void command1Click();

    Session &m_session;
    QDate m_datedeb; ///< `datedeb` and `datefin`: the month exported
    QDate m_datefin;
    /// What the two bars stand on. They serve the display only: the export always spans the whole month, and
    /// that is wanted.
    BarresPeriode m_barres;

    QScrollBar *m_vs1 = nullptr;       ///< first day of the display, in `Frame4` "Dates"
    QLabel *m_label1 = nullptr;        ///< its date
    QScrollBar *m_vs2 = nullptr;       ///< last day of the display, in `Frame8` "A (compris)"
    QLabel *m_label2 = nullptr;        ///< its date
    QProgressBar *m_pgb = nullptr;     ///< rows of `ligmois` gone through
    QPushButton *m_command1 = nullptr; ///< "Exporter"
    QPushButton *m_command2 = nullptr; ///< "Annuler"
    QTimer m_timer1{this};             ///< sets up the bars
};

} // namespace velmora
