#pragma once

#include "session/session.h"

#include <QDialog>
#include <QTimer>

class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace velmora
{

/// "Paramètrage de base": enters a new parameter set or changes the current one, as the session's `modeajout`
/// says. A set that is stored begins the holidays anew and shows them; `dlgvalide` tells whether one was.
class Fparcgs : public QDialog
{
    Q_OBJECT

public:
    explicit Fparcgs(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();
    void charge();
    void ok();

    Session &m_session;
    bool m_pret = false; ///< `pret`: the fields hold what the entry starts with

    QGroupBox *m_frame2 = nullptr;     ///< "Application au "
    QLineEdit *m_text1 = nullptr;      ///< date of application
    QGroupBox *m_frame5 = nullptr;     ///< "France métropole, Dom Tom ..."
    QComboBox *m_combo2 = nullptr;     ///< the regions
    QLabel *m_label4 = nullptr;        ///< the warning
    QGroupBox *m_frame11 = nullptr;    ///< "Etablissement"
    QLineEdit *m_text2 = nullptr;      ///< name of the establishment
    QPushButton *m_command3 = nullptr; ///< help
    QPushButton *m_command1 = nullptr; ///< "OK"
    QPushButton *m_command2 = nullptr; ///< "Annuler"
    QTimer m_timer1{this};             ///< the load that follows the display
};

} // namespace velmora
