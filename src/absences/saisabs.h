#pragma once

#include "absences/absence_entry.h"

#include <QDialog>
#include <QTimer>

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace velmora
{

/// Places an absence on a line. It is titled with the line's name and the code typed in the month.
class Saisabs : public QDialog
{
    Q_OBJECT

public:
    /// Opens on what the session was given for it; `dlgvalide` tells whether an absence was placed.
    explicit Saisabs(Session &session, QWidget *parent = nullptr);
    ~Saisabs() override;

    void reject() override;

private:
    void construit();
    void dispose();
    QLayout *disposeChamps();
    QLayout *disposeCommandes();
    void relie();
    void ouvre();
    void ok();

    Session &m_session;
    OuvertureAbsence m_ouverture;

    QLabel *m_label1;
    QLineEdit *m_text1; // first day
    QLabel *m_label3;   // "(Jour de reprise)"
    QLineEdit *m_text3;
    QLabel *m_label2; // "Code absence"
    QComboBox *m_combo1;
    QPushButton *m_command1; // "OK"
    QPushButton *m_command2; // "Annuler"
    QPushButton *m_command3; // "?"
    QTimer m_timer1{this};   // the choice of the code and the focus, which follow the display
};

} // namespace velmora
