#include "absences/code_sample.h"

#include "month/palette.h"
#include "workstation/controls.h"

#include <QPalette>

namespace velmora
{

namespace
{

constexpr QRgb opaque = 0xff000000U;

} // namespace

void montreEchantillon(QLineEdit *champ, const FicheCode &fiche)
{
    QPalette couleurs = champ->palette();
    const QRgb fond = fiche.bcouleur ? opaque | static_cast<QRgb>(fiche.backc) : palette::fond;
    const QRgb encre = fiche.bcouleur ? opaque | static_cast<QRgb>(fiche.forec) : palette::encre;
    couleurs.setColor(QPalette::Base, QColor(fond));
    couleurs.setColor(QPalette::Text, QColor(encre));
    champ->setPalette(couleurs);
    champ->setText(fiche.codabs.trimmed());
}

QLineEdit *champEchantillon(QWidget *parent, const char *nom)
{
    auto *const champ = nomme(new QLineEdit(parent), nom);
    champ->setReadOnly(true);
    champ->setFocusPolicy(Qt::NoFocus);
    champ->setAlignment(Qt::AlignCenter);
    champ->setFixedWidth(champ->fontMetrics().horizontalAdvance(QStringLiteral("00h00 - 00h00")));
    champ->setAccessibleName(QStringLiteral("Aspect dans le planning"));
    return champ;
}

} // namespace velmora
