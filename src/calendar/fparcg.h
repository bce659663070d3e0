#pragma once

#include "session/session.h"

#include <QDialog>
#include <QTimer>

class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora
{

/// "Jeu de paramètres": the list of the parameter sets, by date. It doesn't close without a set that applies
/// today, unless the user leaves all the same.
class Fparcg : public QDialog
{
    Q_OBJECT

public:
    explicit Fparcg(Session &session, QWidget *parent = nullptr);

    /// Every way of closing the window asks the same.
    void reject() override;

private:
    void construit();
    void dispose();
    void relie();

    void choisit();
    void montreVolet(bool trouve);
    void ajoute();
    void modifie();
    void supprime();
    /// Shows the entry. False when it was cancelled.
    [[nodiscard]] bool saisit(bool ajout);

    Session &m_session;
    QDate m_choisie; ///< date of the selected set

    QLabel *m_label1 = nullptr;
    QListWidget *m_list1 = nullptr;
    QGroupBox *m_frame1 = nullptr;     ///< "Paramètres applicables au:"
    QLineEdit *m_text1 = nullptr;      ///< date of the selected set
    QPushButton *m_command2 = nullptr; ///< "Ajouter"
    QPushButton *m_command3 = nullptr; ///< "Modifier"
    QPushButton *m_command4 = nullptr; ///< "Supprimer"
    QPushButton *m_command5 = nullptr; ///< help
    QPushButton *m_command1 = nullptr; ///< "Terminer"
    QTimer m_timer1{this};             ///< places the focus once the window stands
};

} // namespace velmora
