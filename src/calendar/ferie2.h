#pragma once

#include "session/session.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

namespace velmora
{

/// "Saisie d'un jour Férié ": adds a holiday or changes the label of the current one, as the session's
/// `modeajout` says; `dlgvalide` tells whether it was stored.
class Ferie2 : public QDialog
{
    Q_OBJECT

public:
    explicit Ferie2(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();
    void ouvre();
    void ok();

    Session &m_session;
    QLineEdit *m_text1 = nullptr;      ///< "Date "
    QLineEdit *m_text3 = nullptr;      ///< "Libellé"
    QPushButton *m_command3 = nullptr; ///< help
    QPushButton *m_command1 = nullptr; ///< "OK"
    QPushButton *m_command2 = nullptr; ///< "Annuler"
};

} // namespace velmora
