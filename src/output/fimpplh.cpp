#include "output/fimpplh.h"

#include "folders/folder_choice.h"
#include "foncgen/field_wiring.h"
#include "foncgen/foncgen.h"
#include "output/week_print.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLineEdit>
#include <QScrollBar>

namespace velmora
{

namespace
{

constexpr int jours = 7;
constexpr int lettresDate = 10;

} // namespace

Fimpplh::Fimpplh(Session &session, QWidget *parent) : DialogueImpression(session, parent)
{
    setObjectName(QStringLiteral("Fimpplh"));
    setWindowTitle(QStringLiteral("  Velmora Impression planning hebdomadaire"));
    construit();
    dispose();
    relie();
    montreDate();
}

void Fimpplh::construit()
{
    m_titreDate = etiquette(this, "Label1", QStringLiteral("7 jours à dater de:"));
    m_text1 = nomme(new QLineEdit(this), "Text1");
    m_text1->setAlignment(Qt::AlignCenter);
    m_text1->setMaximumWidth(m_text1->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000    ")));
    m_text1->setAccessibleName(m_titreDate->text());
    m_titreDate->setBuddy(m_text1);
    m_vs1 = nomme(new QScrollBar(Qt::Horizontal, this), "VS1");
    m_vs1->setFocusPolicy(Qt::StrongFocus);
    m_vs1->setAccessibleName(m_titreDate->text());
    const auto grille = static_cast<int>(m_session.impdeb.daysTo(m_session.impfin)) + 1;
    m_vs1->setRange(0, std::max(0, grille - jours));
    m_vs1->setPageStep(jours);
    // A lying bar would else go to the left on the key to the right.
    m_vs1->setInvertedControls(false);
    m_vs1->setValue(static_cast<int>(m_session.impdeb.daysTo(m_session.impdate)));
    m_list1 = new ListeDossiers(m_session, this);
    m_check1 = nomme(new QCheckBox(QStringLiteral("Absences valorisées"), this), "Check1");
    m_check2 = nomme(new QCheckBox(QStringLiteral("Absences en couleur"), this), "Check2");
}

void Fimpplh::dispose()
{
    auto *const date = new QHBoxLayout;
    date->addWidget(m_titreDate);
    date->addWidget(m_text1);
    date->addWidget(m_vs1, 1);
    auto *const absences = new QHBoxLayout;
    absences->addWidget(m_check1);
    absences->addWidget(m_check2);
    absences->addStretch();
    auto *const demandes = new QVBoxLayout;
    demandes->addLayout(date);
    demandes->addWidget(m_list1, 1);
    demandes->addLayout(absences);
    compose({}, demandes);
}

void Fimpplh::relie()
{
    wireField(m_text1, nullptr, m_list1, FieldType::Date, lettresDate);
    connect(m_vs1, &QScrollBar::valueChanged, this, &Fimpplh::montreDate);
    connect(m_text1, &QLineEdit::editingFinished, this, &Fimpplh::dateTapee);
}

QDate Fimpplh::premier() const
{
    return m_session.impdeb.addDays(m_vs1->value());
}

void Fimpplh::montreDate()
{
    m_text1->setText(Foncgen::dtoc(premier()));
}

/// A date that can't be read, or has no seven days in the grid, gives way to the nearest that has.
void Fimpplh::dateTapee()
{
    const QDate date = Foncgen::ctod(m_text1->text());
    if (date.isValid()) m_vs1->setValue(static_cast<int>(m_session.impdeb.daysTo(date)));
    montreDate();
}

Impression Fimpplh::impression() const
{
    return impressionSemaine(m_session,
                             {premier(), m_list1->dossier(), m_check1->isChecked(), m_check2->isChecked()});
}

} // namespace velmora
