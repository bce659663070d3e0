#pragma once

#include "entry/normalisation.h"
#include "entry/request.h"

#include <QDialog>
#include <QTimer>

#include <array>
#include <functional>

class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace velmora
{

class HourBarView;

/// "Heures - Horaire": enters the hours of a line for a day or a run of days. It shows what `SaisieHoraire`
/// holds and hands it every event of its fields.
class Partielm : public QDialog
{
    Q_OBJECT

public:
    /// Writes the hours on each date of the entry. False when the entry was given up: the dialog then stays
    /// open with what was typed.
    using Ecrihor = std::function<bool(const JourneeSaisie &, const JourSit &)>;

    /// Opens on what the session was given for it; `dlgvalide` tells whether hours were stored.
    Partielm(Session &session, Ecrihor ecrihor, QWidget *parent = nullptr);
    ~Partielm() override;

    /// Marks the situation as abnormal before the dialog shows: it then says so and closes. Reserved, nothing
    /// asks for it.
    void marqueAnormale() { m_anormale = true; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void construit();
    void construitChamps();
    void couleursDeReference();
    void dispose();
    QLayout *disposeTitres();
    QLayout *disposeTranches();
    QLayout *disposeTotal();
    QLayout *disposeCommandes();
    void relie();
    void cableChamp(int champ);
    bool toucheBaissee(int champ, quint16 touche);

    void charge();
    void montre();
    void montreChamp(int champ);
    void donneFocus(int cible);
    void quitte(int champ);
    void delai();
    void toucheText6();
    void ok();

    [[nodiscard]] QLineEdit *champ(int numero) const
    {
        return m_champs[static_cast<std::size_t>(numero - 1)];
    }
    [[nodiscard]] bool toutSelectionne(int numero) const;

    Session &m_session;
    Ecrihor m_ecrihor;
    JourneeSaisie m_journee;
    SaisieHoraire m_saisie;
    bool m_anormale = false;
    bool m_enQuittant = false; // a field is being left: the focus can't be moved before it has gone

    QLabel *m_label1;    // name of the line
    QLabel *m_label2;    // title of the entry
    QLabel *m_label5;    // "de                        à"
    QLabel *m_label6;    // "et"
    QLabel *m_label9;    // "et"
    QLabel *m_labtot;    // "Soit"
    QLabel *m_labpr;     // "Heures"
    QGroupBox *m_frame4; // "Horaire"
    HourBarView *m_picha;
    std::array<QLineEdit *, SaisieHoraire::nbChamps> m_champs{}; // Text1 to Text6
    QLineEdit *m_totext;
    QLineEdit *m_textcom;    // its background is the colour of the hours
    QLineEdit *m_textref;    // its background is the colour of the bar's scale
    QPushButton *m_command1; // "OK"
    QPushButton *m_command2; // "Annuler"
    QPushButton *m_command3; // "?"
    QTimer m_timer1{this};   // the load that follows the display
    QTimer m_timer2{this};   // the wait for more keys in the last field
};

} // namespace velmora
