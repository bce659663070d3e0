#include "session/long_message.h"

#include "workstation/controls.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QStyle>

namespace velmora
{

namespace
{

constexpr int colonnesVisibles = 64;

QLabel *icone(QWidget *parent)
{
    auto *const label = etiquette(parent, "icone", {});
    const int cote = parent->style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    label->setPixmap(parent->style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(cote));
    return label;
}

QPlainTextEdit *lecteur(QWidget *parent, const QString &texte, const QString &intitule)
{
    auto *const lu = nomme(new QPlainTextEdit(texte, parent), "texte");
    lu->setReadOnly(true);
    lu->setTabChangesFocus(true);
    lu->setAccessibleName(intitule);
    const QFontMetrics metrique = lu->fontMetrics();
    lu->setMinimumSize(metrique.averageCharWidth() * colonnesVisibles,
                       metrique.lineSpacing() * static_cast<int>(MessageLong::lignesMaxi));
    return lu;
}

} // namespace

MessageLong::MessageLong(const QString &texte, const QString &intitule, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(intitule);
    auto *const boutons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto *const contenu = new QHBoxLayout;
    contenu->addWidget(icone(this), 0, Qt::AlignTop);
    contenu->addWidget(lecteur(this, texte, intitule), 1);
    auto *const colonne = new QVBoxLayout(this);
    colonne->addLayout(contenu, 1);
    colonne->addWidget(boutons);
    boutons->button(QDialogButtonBox::Ok)->setFocus();
}

} // namespace velmora
