#pragma once

#include "output/export.h"

#include <QDialog>

class QProgressBar;
class QPushButton;

namespace velmora
{

class CadreDates;

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

    void command1Click();

    Session &m_session;
    QDate m_datedeb; ///< `datedeb` and `datefin`: the month exported
    QDate m_datefin;

    /// `Frame4` "Dates" with `VS1` and `VS2`. Its dates serve the display only: the export always spans the
    /// whole month, and that is wanted.
    CadreDates *m_frame4 = nullptr;
    QProgressBar *m_pgb = nullptr;     ///< rows of `ligmois` gone through
    QPushButton *m_command1 = nullptr; ///< "Exporter"
    QPushButton *m_command2 = nullptr; ///< "Annuler"
};

} // namespace velmora
