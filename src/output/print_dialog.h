#pragma once

#include "output/paper_output.h"

#include <QDialog>

class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QProgressBar;
class QPushButton;

namespace velmora
{

/// What the print dialogs share: the choice of the printer and its font, the copies, the progress and the
/// commands. A dialog adds what it asks for and says what it prints.
class DialogueImpression : public QDialog
{
    Q_OBJECT

public:
    /// Escape and the close box wait for the end of a print.
    void reject() override;

protected:
    DialogueImpression(Session &session, QWidget *parent);

    /// Lays the dialog out: a title of its own, unless that is empty, and what it asks for above the frame of
    /// the printer.
    void compose(const QString &intitule, QLayout *demandes);
    /// The print that the controls ask for.
    [[nodiscard]] virtual Impression impression() const = 0;

    Session &m_session;

private:
    void construit();
    [[nodiscard]] QLayout *disposeImprimante();
    [[nodiscard]] QLayout *disposeCommandes();
    void ordonneTouches();
    void relie();
    void montreImprimante();
    void permetCommandes(bool permises);
    [[nodiscard]] int copies() const;
    void imprime();

    SortiePapier m_sortie;
    bool m_enCours = false;

    QGroupBox *m_frame6 = nullptr;     ///< "Choix d'imprimante"
    QLabel *m_label5 = nullptr;        ///< the printer
    QLabel *m_label4 = nullptr;        ///< "Police : " and the font
    QLineEdit *m_cotext = nullptr;     ///< "Copies"
    QPushButton *m_command1 = nullptr; ///< "Imprimer"
    QPushButton *m_command2 = nullptr; ///< "Quitter"
    QPushButton *m_command3 = nullptr; ///< "Autre Imprim."
    QPushButton *m_command4 = nullptr; ///< "Autre Police"
    QPushButton *m_apercu = nullptr;   ///< "Aperçu"
    QProgressBar *m_pgb = nullptr;
};

} // namespace velmora
