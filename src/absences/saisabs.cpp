#include "absences/saisabs.h"

#include "absences/placing.h"
#include "foncgen/field_wiring.h"
#include "session/help.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QShortcut>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto apresAffichage = 5ms;
constexpr int longueurDate = 10;
constexpr int lettresCode = 32;

QLineEdit *champDate(QWidget *parent, const char *nom)
{
    auto *const champ = nomme(new QLineEdit(parent), nom);
    champ->setAlignment(Qt::AlignCenter);
    champ->setFixedWidth(champ->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 32);
    return champ;
}

} // namespace

Saisabs::Saisabs(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_ouverture(ouvreSaisieAbsence(session))
{
    m_session.dlgvalide = false;
    setObjectName(QStringLiteral("Saisabs"));
    setWindowTitle(m_ouverture.titre);
    construit();
    dispose();
    relie();
    m_timer1.start(apresAffichage);
}

Saisabs::~Saisabs()
{
    hide(); // the focus leaves its field while what the field's events use is still there
}

void Saisabs::construit()
{
    m_label1 = etiquette(this, "Label1", QStringLiteral("&Premier jour d'absence"));
    m_text1 = champDate(this, "Text1");
    m_text1->setText(m_session.absdebut);
    m_label1->setBuddy(m_text1);
    m_label3 = etiquette(this, "Label3", QStringLiteral("(Jour de reprise)"));
    m_text3 = champDate(this, "Text3");
    m_text3->setText(m_session.absreprise);
    m_label3->setBuddy(m_text3);
    m_label2 = etiquette(this, "Label2", QStringLiteral("Code absence"));
    m_combo1 = nomme(new QComboBox(this), "Combo1");
    m_combo1->addItems(m_ouverture.codes);
    m_combo1->setCurrentIndex(-1);
    m_combo1->setMinimumContentsLength(lettresCode);
    m_combo1->setPlaceholderText(QStringLiteral("Choisir un code"));
    m_label2->setBuddy(m_combo1);
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command3 = bouton(this, "Command3", QStringLiteral("?"));
    m_command1->setDefault(true);
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
}

void Saisabs::dispose()
{
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(18);
    page->setContentsMargins(18, 16, 18, 14);
    page->addLayout(disposeChamps());
    page->addStretch(1);
    page->addLayout(disposeCommandes());
}

QLayout *Saisabs::disposeChamps()
{
    auto *const grille = new QGridLayout;
    grille->setHorizontalSpacing(12);
    grille->setVerticalSpacing(10);
    int rangee = 0;
    for (const auto &[label, champ] : std::initializer_list<std::pair<QLabel *, QWidget *>>{
             {m_label1, m_text1}, {m_label3, m_text3}, {m_label2, m_combo1}}) {
        grille->addWidget(label, rangee, 0);
        grille->addWidget(champ, rangee++, 1, champ == m_combo1 ? Qt::Alignment() : Qt::AlignLeft);
    }
    grille->setColumnStretch(1, 1);
    return grille;
}

QLayout *Saisabs::disposeCommandes()
{
    m_command3->setFixedWidth(m_command3->sizeHint().height() + 8);
    m_command3->setToolTip(QStringLiteral("Aide"));
    m_command3->setAccessibleName(m_command3->toolTip());
    auto *const commandes = new QHBoxLayout;
    commandes->addStretch(1);
    for (QPushButton *commande : {m_command1, m_command2, m_command3})
        commandes->addWidget(commande);
    return commandes;
}

void Saisabs::relie()
{
    wireField(m_text1, nullptr, m_text3, FieldType::Date, longueurDate);
    wireField(m_text3, m_text1, m_combo1, FieldType::Date, longueurDate);
    connect(&m_timer1, &QTimer::timeout, this, &Saisabs::ouvre);
    connect(m_command1, &QPushButton::clicked, this, &Saisabs::ok);
    connect(m_command2, &QPushButton::clicked, this, &Saisabs::reject);
    connect(m_command3, &QPushButton::clicked, this,
            [this] { ouvreaide(m_session, QStringLiteral("absences-conges.htm")); });
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, m_command3,
            &QPushButton::click);
}

void Saisabs::ouvre()
{
    using Focus = OuvertureAbsence::Focus;
    m_combo1->setCurrentIndex(m_ouverture.position);
    if (m_ouverture.focus == Focus::Code) return m_combo1->setFocus(Qt::OtherFocusReason);
    (m_ouverture.focus == Focus::Debut ? m_text1 : m_text3)->setFocus(Qt::OtherFocusReason);
}

void Saisabs::ok()
{
    m_timer1.stop();
    QWidget *const focus = focusWidget();
    // Storing may let events run; nothing else is to be decided meanwhile.
    setEnabled(false);
    const bool placee = saisieabs(m_session, {m_text1->text(), m_text3->text(), m_combo1->currentText()});
    setEnabled(true);
    if (placee) return accept();
    if (focus) focus->setFocus(Qt::OtherFocusReason);
}

void Saisabs::reject()
{
    m_session.dlgvalide = false;
    QDialog::reject();
}

} // namespace velmora
