#pragma once

#include "folders/month_choice.h"

#include <QDialog>

#include <array>

class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace velmora
{

class ListeDossiers;

/// "Critères affichage mois": asks which month to show, for which folder, and what the cells hold. It sets
/// session values only, the month and the folder as they are moved to.
class Smois : public QDialog
{
    Q_OBJECT

public:
    explicit Smois(Session &session, QWidget *parent = nullptr);

    /// OK and cancel: `dlgvalide` tells which.
    void accept() override;
    void reject() override;

private:
    void construit();
    void construitOptions();
    void dispose();
    QLayout *disposeDossiers();
    QLayout *disposeMois();
    void relie();

    void ouvre();
    void montreMois();
    void vs1Change(int position);
    void list1Click();

    Session &m_session;
    EchelleMois m_echelle;
    bool m_pret = false; ///< `pret`: the controls are the user's to change

    QLabel *m_label2 = nullptr; ///< "Dossier à sélectionner :"
    ListeDossiers *m_list1 = nullptr;
    QLabel *m_label3 = nullptr;    ///< the chosen row
    QGroupBox *m_frame2 = nullptr; ///< "Mois à afficher"
    QLineEdit *m_text1 = nullptr;  ///< month
    QLabel *m_label1 = nullptr;    ///< "/"
    QLineEdit *m_text2 = nullptr;  ///< year
    QScrollBar *m_vs1 = nullptr;   ///< moves over the months
    QGroupBox *m_frame3 = nullptr; ///< "Contenu des cellules"
    std::array<QRadioButton *, 3> m_option1{};
    QPushButton *m_command1 = nullptr; ///< "OK"
    QPushButton *m_command2 = nullptr; ///< "Annuler"
    QPushButton *m_command3 = nullptr; ///< help
};

} // namespace velmora
