#pragma once

#include "session/session.h"

#include <QDialog>

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace velmora
{

/// "Dossiers": the list of the folders with the lines of the selected one.
class Groupt : public QDialog
{
    Q_OBJECT

public:
    explicit Groupt(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();

    void remplit();
    void choisit();
    void montreMembres();
    void ajoute();
    void modifie();
    void supprime();
    /// Shows the entry. False when it was cancelled.
    [[nodiscard]] bool saisit(bool ajout);

    Session &m_session;
    QString m_choisi; ///< name of the selected folder

    QListWidget *m_list1 = nullptr;    ///< the folders
    QGroupBox *m_frame1 = nullptr;     ///< "Dossier Sélectionné"
    QLabel *m_label3 = nullptr;        ///< "Code  :"
    QLabel *m_mgroup = nullptr;        ///< `mgroup`: the name
    QListWidget *m_list2 = nullptr;    ///< the members
    QPushButton *m_command3 = nullptr; ///< "Ajouter"
    QPushButton *m_command4 = nullptr; ///< "Modifier"
    QPushButton *m_command5 = nullptr; ///< "Supprimer"
    QPushButton *m_caid = nullptr;     ///< `Caid`: help
    QPushButton *m_command1 = nullptr; ///< "Terminer"
};

} // namespace velmora
