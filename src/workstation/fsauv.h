#pragma once

#include "workstation/backup.h"

#include <QDialog>

class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace velmora
{

/// "Sauvegarde": asks for the folder that both databases are copied to, and copies them. No month may be
/// open, since the databases are closed meanwhile.
class Fsauv : public QDialog
{
    Q_OBJECT

public:
    explicit Fsauv(Session &session, QWidget *parent = nullptr);

    /// Copies to the folder typed; a folder that can't be one is said and the dialog stays. `dlgvalide` tells
    /// whether a backup was run, whatever came of it.
    void accept() override;
    void reject() override;

    /// False when the databases could not be opened again: the system has to close.
    [[nodiscard]] bool rouvertes() const { return m_rouvertes; }

private:
    void construit();
    void dispose();
    [[nodiscard]] Sauvegarde copie(const QString &dossier);

    Session &m_session;
    bool m_rouvertes = true;
    QString m_cible; ///< the target

    QGroupBox *m_frame1 = nullptr;
    QLabel *m_label1 = nullptr;        ///< "Saisir un lecteur (et éventuellement un répertoire)"
    QLabel *m_label2 = nullptr;        ///< "Exemple: F:"
    QLineEdit *m_text1 = nullptr;      ///< the target as it is typed
    QProgressBar *m_avance = nullptr;  ///< shows while the copies are made
    QPushButton *m_command1 = nullptr; ///< "Ok sauv."
    QPushButton *m_command2 = nullptr; ///< "Annuler"
};

} // namespace velmora
