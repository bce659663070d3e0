#pragma once

#include "absences/codes.h"

#include <QDialog>

#include <array>

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace velmora
{

/// The editor of an absence code, new or existing.
class Majcodabs : public QDialog
{
    Q_OBJECT

public:
    /// Accepted when the code was saved; `codabs` is then on it.
    Majcodabs(Session &session, const FicheCode &fiche, QWidget *parent = nullptr);
    ~Majcodabs() override;

private:
    void construit();
    void construitValorisation();
    void construitAspect();
    void dispose();
    QLayout *disposeLibelles();
    QLayout *disposeValorisation();
    QLayout *disposeAspect();
    QLayout *disposeCommandes();
    void relie();
    void cableChamps();

    void ouvre();
    void montreValeur();
    void montreAspect();
    void codeChange(const QString &texte);
    void option1Click(int option);
    void choisitCouleur(int FicheCode::*couleur, const QString &titreChoix);
    void ok();

    Session &m_session;
    FicheCode m_fiche;

    QLineEdit *m_mcodabs = nullptr;
    QLineEdit *m_mlibecour = nullptr;
    QLineEdit *m_mlibelong = nullptr;
    QGroupBox *m_frame1 = nullptr; ///< "Valorisation"
    std::array<QRadioButton *, 3> m_option1{};
    QButtonGroup *m_options = nullptr;
    QLabel *m_label1 = nullptr;   ///< "Valeur d'une journée"
    QLineEdit *m_text2 = nullptr; ///< the day's value
    QGroupBox *m_frame2 = nullptr;
    QCheckBox *m_check1 = nullptr;     ///< "Couleur"
    QPushButton *m_command3 = nullptr; ///< "Fond"
    QPushButton *m_command4 = nullptr; ///< "Carac."
    QLineEdit *m_text1 = nullptr;      ///< sample
    QCheckBox *m_check3 = nullptr;     ///< "Archivé"
    QPushButton *m_command1 = nullptr; ///< "OK"
    QPushButton *m_command2 = nullptr; ///< "Annuler"
};

} // namespace velmora
