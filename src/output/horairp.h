#pragma once

#include "output/paper_output.h"
#include "output/practised.h"

#include <QDialog>
#include <QTimer>

class QProgressBar;
class QPushButton;

namespace velmora
{

class TableauBarres;

/// "Horaires pratiqués": which schedules were practised from `impdate` to `impdeb` of the session, and how
/// often, with a bar for each on a scale of 24 hours.
class Horairp : public QDialog
{
    Q_OBJECT

public:
    explicit Horairp(Session &session, QWidget *parent = nullptr);

private:
    void construit();
    void dispose();
    void relie();

    void compte();
    void montre();
    void trie(int colonne);
    [[nodiscard]] Impression impression() const;
    void imprime();

    Session &m_session;
    QDate m_debut;
    QDate m_fin;
    HorairesPratiques m_rapport;
    SortiePapier m_sortie;

    TableauBarres *m_mg = nullptr;     ///< `mg`, its bars `Picture1` and their scale `Picture2`
    QProgressBar *m_pgb = nullptr;     ///< the scan
    QPushButton *m_command1 = nullptr; ///< "Terminer"
    QPushButton *m_command2 = nullptr; ///< "Imprimer"
    QPushButton *m_apercu = nullptr;   ///< "Aperçu"
    QTimer m_timer1{this};             ///< the scan that follows the display
};

} // namespace velmora
