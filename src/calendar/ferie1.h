#pragma once

#include "calendar/holiday_generation.h"

#include <QDialog>

class QGroupBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora
{

/// "Jours fériés et fermetures": the list of the holidays, by date, where one is added, its label changed, or
/// it is deleted.
class Ferie1 : public QDialog
{
    Q_OBJECT

public:
    explicit Ferie1(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();

    void remplit();
    void choisit();
    void montreVolet(bool trouve);
    void ajoute();
    void modifie();
    void supprime();

    Session &m_session;
    QDate m_choisie; ///< date of the selected row

    QListWidget *m_list1 = nullptr;
    QGroupBox *m_frame1 = nullptr;     ///< "Jour Férié sélectionné"
    QLineEdit *m_text1 = nullptr;      ///< "Jour :"
    QLineEdit *m_text3 = nullptr;      ///< "Libellé"
    QPushButton *m_command2 = nullptr; ///< "Ajouter"
    QPushButton *m_command4 = nullptr; ///< "Modifier"
    QPushButton *m_command3 = nullptr; ///< "Supprimer"
    QPushButton *m_command5 = nullptr; ///< help
    QPushButton *m_command1 = nullptr; ///< "Terminer"
};

/// Generates the holidays as asked, then shows the list until the user closes it. A failure of the store is
/// told, and the window doesn't open.
void ouvreferies(Session &session, QWidget *parent, const DemandeFeries &demande);

} // namespace velmora
