#include "folders/planshgroup.h"

#include "foncgen/field_wiring.h"
#include "workstation/controls.h"
#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QListWidget>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto delaiRemplissage = 5ms;
constexpr int longueurNom = 15;
constexpr int lettresLigne = 52;
constexpr int rangees = 18;

} // namespace

Planshgroup::Planshgroup(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_composition(session)
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    relie();
    ouvre();
}

void Planshgroup::construit()
{
    setObjectName(QStringLiteral("Planshgroup"));
    setWindowTitle(QStringLiteral("Dossier"));
    m_cadreNom = new QGroupBox(QStringLiteral("Désignation du dossier (15 caract. maxi)"), this);
    m_text1 = nomme(new QLineEdit(m_cadreNom), "Text1");
    m_text1->setAccessibleName(m_cadreNom->title());
    m_cadreLignes = new QGroupBox(QStringLiteral("Composition du dossier (cochez) "), this);
    m_list1 = nomme(new QListWidget(m_cadreLignes), "List1");
    m_list1->setAccessibleName(m_cadreLignes->title());
    m_list1->setUniformItemSizes(true);
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
}

void Planshgroup::dispose()
{
    const int lettre = fontMetrics().averageCharWidth();
    m_text1->setFixedWidth(lettre * (longueurNom + 14));
    m_list1->setMinimumSize(lettre * lettresLigne, fontMetrics().height() * rangees);
    (new QVBoxLayout(m_cadreNom))->addWidget(m_text1);
    (new QVBoxLayout(m_cadreLignes))->addWidget(m_list1);
    QVBoxLayout *const page = pageDialogue(this);
    page->addWidget(m_cadreNom);
    page->addWidget(m_cadreLignes, 1);
    page->addLayout(rangeeCommandes(this, nullptr, {m_command1, m_command2}));
}

void Planshgroup::relie()
{
    wireField(m_text1, nullptr, m_list1, FieldType::Capitals, longueurNom);
    connect(&m_timer1, &QTimer::timeout, this, &Planshgroup::remplit);
    connect(m_command1, &QPushButton::clicked, this, &Planshgroup::ok);
    connect(m_command2, &QPushButton::clicked, this, &Planshgroup::reject);
}

void Planshgroup::ouvre()
{
    const bool ajout = m_session.modeajout;
    m_text1->setText(m_composition.designation());
    m_text1->setEnabled(ajout);
    (ajout ? static_cast<QWidget *>(m_text1) : m_list1)->setFocus();
    if (ajout)
        remplit();
    else
        m_timer1.start(delaiRemplissage);
}

void Planshgroup::remplit()
{
    m_list1->hide();
    m_pret = m_composition.remplit();
    // The dialog may not show yet; it closes as soon as it does.
    if (!m_pret) QMetaObject::invokeMethod(this, &Planshgroup::reject, Qt::QueuedConnection);
    montreLignes();
    m_list1->show();
    m_list1->scrollToTop();
    if (!m_text1->isEnabled()) m_list1->setFocus();
}

void Planshgroup::montreLignes()
{
    m_list1->clear();
    for (const LigneCochable &ligne : m_composition.lignes()) {
        auto *const rangee = new QListWidgetItem(ligne.texte, m_list1);
        rangee->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        rangee->setCheckState(ligne.cochee ? Qt::Checked : Qt::Unchecked);
    }
}

void Planshgroup::ok()
{
    if (!m_pret) return;
    for (int rang = 0; rang < m_list1->count(); ++rang)
        m_composition.coche(rang, m_list1->item(rang)->checkState() == Qt::Checked);
    if (!m_composition.valide(m_text1->text())) return m_text1->setFocus();
    if (!m_composition.enregistre(m_text1->text())) return;
    m_session.dlgvalide = true;
    accept();
}

} // namespace velmora
