#include "month/code_entry.h"

#include "foncgen/field_wiring.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QKeyEvent>

namespace velmora
{

namespace
{

constexpr int longueurCode = 2;

} // namespace

SaisieCode::SaisieCode(QWidget *grille, QWidget *cadre)
    : QObject(cadre), m_grille(grille), m_text1(nomme(new QLineEdit(cadre), "Text1")),
      m_frame2(nomme(new QFrame(cadre), "Frame2")), m_labeli1(etiquette(m_frame2, "Labeli1", {})),
      m_labeli2(etiquette(m_frame2, "Labeli2",
                          QStringLiteral("Terminer votre saisie                 <ESC>=abandon")))
{
    auto *const rangee = new QHBoxLayout(m_frame2);
    rangee->addWidget(m_labeli1);
    rangee->addStretch();
    rangee->addWidget(m_labeli2);
    rangee->setContentsMargins(4, 0, 4, 0);
    m_frame2->setFrameShape(QFrame::StyledPanel);
    m_frame2->hide();
    m_text1->setAlignment(Qt::AlignCenter);
    m_text1->setAccessibleName(QStringLiteral("Code absence"));
    m_text1->hide();
    wireField(m_text1, nullptr, nullptr, FieldType::Capitals, longueurCode);
    m_text1->installEventFilter(this);
    connect(m_text1, &QLineEdit::textChanged, this, [this](const QString &texte) {
        if (texte.size() >= longueurCode && enCours()) emit codeTape(texte);
    });
}

void SaisieCode::commence(const QRect &cellule, const QString &touche, const QString &titreSaisie)
{
    m_labeli1->setText(titreSaisie);
    place(cellule);
    m_text1->raise();
    m_text1->setText(touche.toUpper());
    m_text1->show();
    m_frame2->show();
    m_text1->setFocus();
    m_text1->end(false);
}

void SaisieCode::place(const QRect &cellule)
{
    m_text1->setGeometry({m_grille->mapTo(m_text1->parentWidget(), cellule.topLeft()), cellule.size()});
}

void SaisieCode::recommence()
{
    m_text1->clear();
    m_text1->setFocus();
}

void SaisieCode::termine()
{
    m_text1->hide();
    m_frame2->hide();
}

/// Enter and Escape are the entry's own; every other key is the field's.
bool SaisieCode::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const int touche = static_cast<QKeyEvent *>(event)->key();
    if (touche == Qt::Key_Escape) {
        emit abandon();
        return true;
    }
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
        emit codeTape(m_text1->text());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
