#include "output/print_dialog.h"

#include "foncgen/field_wiring.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QScopedValueRollback>

namespace velmora
{

namespace
{

constexpr int chiffresCopies = 2;
constexpr int lettresImprimante = 42;

} // namespace

DialogueImpression::DialogueImpression(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_sortie(session, this)
{
    construit();
    relie();
    montreImprimante();
}

void DialogueImpression::construit()
{
    m_frame6 = nomme(new QGroupBox(QStringLiteral("Choix d'imprimante"), this), "Frame6");
    m_label5 = etiquette(m_frame6, "Label5", {});
    m_label5->setWordWrap(true);
    m_label5->setMinimumWidth(fontMetrics().averageCharWidth() * lettresImprimante);
    m_label4 = etiquette(m_frame6, "Label4", {});
    m_cotext = nomme(new QLineEdit(QStringLiteral("1"), m_frame6), "Cotext");
    m_cotext->setMaximumWidth(m_cotext->fontMetrics().averageCharWidth() * (chiffresCopies + 6));
    wireField(m_cotext, nullptr, nullptr, FieldType::Number, chiffresCopies);
    m_command3 = bouton(m_frame6, "Command3", QStringLiteral("Autre Imprim."));
    m_command4 = bouton(m_frame6, "Command4", QStringLiteral("Autre Police"));
    m_pgb = nomme(new QProgressBar(this), "Pgb");
    m_pgb->setTextVisible(false);
    QSizePolicy garde = m_pgb->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    m_pgb->setSizePolicy(garde);
    m_pgb->hide();
    m_apercu = bouton(this, "apercu", QStringLiteral("Aperçu"));
    m_command1 = bouton(this, "Command1", QStringLiteral("Imprimer"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Quitter"));
    m_command1->setDefault(true);
    for (QPushButton *autre : {m_command2, m_command3, m_command4, m_apercu})
        autre->setAutoDefault(false);
}

void DialogueImpression::compose(const QString &intitule, QLayout *demandes)
{
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    if (!intitule.isEmpty()) {
        auto *const label = etiquette(this, "titre", intitule);
        QFont gras = label->font();
        gras.setBold(true);
        label->setFont(gras);
        label->setWordWrap(true);
        page->addWidget(label);
    }
    if (demandes) page->addLayout(demandes, 1);
    m_frame6->setLayout(disposeImprimante());
    page->addWidget(m_frame6);
    page->addLayout(disposeCommandes());
    ordonneTouches();
}

/// The keys go from the questions on to the printer and end with the commands.
void DialogueImpression::ordonneTouches()
{
    const QList<QWidget *> suite{m_command3, m_command4, m_cotext, m_apercu, m_command1, m_command2};
    QWidget *premiere = nullptr;
    QWidget *avant = nullptr;
    for (QWidget *une = nextInFocusChain(); une != this; une = une->nextInFocusChain()) {
        if (une->focusPolicy() == Qt::NoFocus || suite.contains(une)) continue;
        if (!premiere) premiere = une;
        avant = une;
    }
    for (QWidget *suivant : suite) {
        if (avant) setTabOrder(avant, suivant);
        avant = suivant;
    }
    (premiere ? premiere : m_command1)->setFocus();
}

QLayout *DialogueImpression::disposeImprimante()
{
    auto *const copies = new QLabel(QStringLiteral("Copies"), m_frame6);
    copies->setBuddy(m_cotext);
    m_cotext->setAccessibleName(copies->text());
    auto *const nombre = new QHBoxLayout;
    nombre->addWidget(copies);
    nombre->addWidget(m_cotext);
    nombre->addStretch();
    auto *const grille = new QGridLayout;
    grille->setColumnStretch(0, 1);
    grille->addWidget(m_label5, 0, 0);
    grille->addWidget(m_command3, 0, 1);
    grille->addWidget(m_label4, 1, 0);
    grille->addWidget(m_command4, 1, 1);
    grille->addLayout(nombre, 2, 0, 1, 2);
    return grille;
}

QLayout *DialogueImpression::disposeCommandes()
{
    auto *const ligne = new QHBoxLayout;
    ligne->addWidget(m_pgb, 1);
    ligne->addWidget(m_apercu);
    ligne->addWidget(m_command1);
    ligne->addWidget(m_command2);
    return ligne;
}

void DialogueImpression::relie()
{
    connect(m_command1, &QPushButton::clicked, this, &DialogueImpression::imprime);
    connect(m_command2, &QPushButton::clicked, this, &DialogueImpression::reject);
    connect(m_command3, &QPushButton::clicked, this, [this] {
        m_sortie.choisitImprimante();
        montreImprimante();
    });
    connect(m_command4, &QPushButton::clicked, this, [this] {
        m_sortie.choisitPolice();
        montreImprimante();
    });
    connect(m_apercu, &QPushButton::clicked, this, [this] { m_sortie.apercu(impression()); });
}

void DialogueImpression::montreImprimante()
{
    m_label5->setText(m_sortie.texteImprimante());
    m_label4->setText(QStringLiteral("Police : ") + m_sortie.police());
}

void DialogueImpression::permetCommandes(bool permises)
{
    for (QPushButton *commande : {m_command1, m_command2, m_command3, m_command4, m_apercu})
        commande->setEnabled(permises);
    m_pgb->setValue(0);
    m_pgb->setVisible(!permises);
}

int DialogueImpression::copies() const
{
    return std::max(1, m_cotext->text().toInt());
}

void DialogueImpression::imprime()
{
    const QScopedValueRollback enCours(m_enCours, true);
    const Impression demandee = impression();
    if (!m_sortie.prepare(demandee)) return;
    permetCommandes(false);
    m_sortie.imprime(demandee, copies(), [this](int fait, int total) {
        m_pgb->setMaximum(total);
        m_pgb->setValue(fait);
    });
    permetCommandes(true);
    m_command1->setFocus();
    montreImprimante();
}

void DialogueImpression::reject()
{
    if (!m_enCours) QDialog::reject();
}

} // namespace velmora
