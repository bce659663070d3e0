#pragma once

#include "absences/codes.h"

#include <QDialog>

#include <functional>

class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace velmora
{

/// "Définition des Absences": the list of the absence codes, with the commands on the selected one.
class Fcodabs : public QDialog
{
    Q_OBJECT

public:
    /// Shows the print of the codes and returns once it has gone.
    using Impression = std::function<void(Session &, QWidget *parent)>;

    /// Without a print its command is disabled.
    explicit Fcodabs(Session &session, Impression imprime = {}, QWidget *parent = nullptr);

private:
    void construit();
    void construitFiche();
    void dispose();
    QLayout *disposeFiche();
    QLayout *disposeCommandes();
    void relie();
    void relieTouches();

    void remplit(const QString &choisi);
    void ajouteLigne(const CodeAbsence &code);
    void montre();
    void edite(const FicheCode &fiche);
    void modifie();
    void supprime();
    [[nodiscard]] const CodeAbsence *choisi() const;

    Session &m_session;
    Impression m_imprime;
    std::vector<CodeAbsence> m_codes; ///< by row of the list

    QListWidget *m_list1 = nullptr;
    QGroupBox *m_frame1 = nullptr;     ///< "Absence Sélectionnée"
    QLabel *m_label1 = nullptr;        ///< code
    QLabel *m_label2 = nullptr;        ///< short label
    QLabel *m_label3 = nullptr;        ///< long label
    QLabel *m_label4 = nullptr;        ///< "Archivé"
    QLineEdit *m_text1 = nullptr;      ///< sample
    QPushButton *m_command3 = nullptr; ///< "Ajouter"
    QPushButton *m_command4 = nullptr; ///< "Modifier"
    QPushButton *m_command5 = nullptr; ///< "Supprimer"
    QPushButton *m_command6 = nullptr; ///< "Imprimer"
    QPushButton *m_command8 = nullptr; ///< "Terminer"
    QPushButton *m_caid = nullptr;     ///< help
};

} // namespace velmora
