#pragma once

#include "folders/composition.h"

#include <QDialog>
#include <QTimer>

class QGroupBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora
{

/// "Dossier": names a new folder or changes the composition of one, as the session's `modeajout` and
/// `dossiersel` say; `dlgvalide` tells whether it was stored.
class Planshgroup : public QDialog
{
    Q_OBJECT

public:
    explicit Planshgroup(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();
    void ouvre();
    void remplit();
    void montreLignes();
    void ok();

    Session &m_session;
    CompositionDossier m_composition;
    bool m_pret = false; ///< `pret`: the list holds the lines

    QGroupBox *m_cadreNom = nullptr;    ///< "Désignation du dossier (15 caract. maxi)"
    QLineEdit *m_text1 = nullptr;       ///< name of the folder
    QGroupBox *m_cadreLignes = nullptr; ///< "Composition du dossier (cochez) "
    QListWidget *m_list1 = nullptr;     ///< all lines
    QPushButton *m_command1 = nullptr;  ///< "OK"
    QPushButton *m_command2 = nullptr;  ///< "Annuler"
    QTimer m_timer1{this};              ///< the filling that follows the display
};

} // namespace velmora
