#pragma once

#include "lines/controls.h"

#include <QWidget>

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace velmora
{

/// The control fields of a line, the same in the dialogs that open a line and that redefine its controls.
class CadreControles : public QWidget
{
    Q_OBJECT

public:
    explicit CadreControles(const ChampsControles &champs, QWidget *parent = nullptr);

    /// What the fields hold now. A field that is switched off keeps what was typed.
    [[nodiscard]] ChampsControles champs() const;
    /// The text field of a control, or null for the dialog's other fields.
    [[nodiscard]] QLineEdit *champ(ChampLigne lequel) const;
    /// Where the keys go from the first field back, or null, and from the last one on.
    void enchaine(QWidget *precedent, QWidget *suivant);

private:
    [[nodiscard]] QGroupBox *construitHeures(const ChampsControles &champs);
    [[nodiscard]] QGroupBox *construitRepos(const ChampsControles &champs);
    [[nodiscard]] QGroupBox *construitPauses(const ChampsControles &champs);
    QLineEdit *construitChamp(std::size_t rang, const ChampsControles &champs);
    void ajouteRangee(QGridLayout *grille, std::size_t rang, const ChampsControles &champs);
    void relie();
    void permet();

    std::array<QLineEdit *, champsControles.size()> m_textes{}; // Text3 to Text9
    QCheckBox *m_check1 = nullptr;                              // the limits of hours apply
    QCheckBox *m_check2 = nullptr;                              // the counts of rests apply
    QCheckBox *m_check3 = nullptr;                              // "Plus de 6 jours de travail sans repos"
    std::array<QRadioButton *, 2> m_option1{}; // "Non contrôlées ou payées", "Non payées..."
};

} // namespace velmora
