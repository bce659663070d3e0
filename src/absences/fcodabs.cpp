#include "absences/fcodabs.h"

#include "absences/code_sample.h"
#include "absences/majcodabs.h"
#include "session/help.h"
#include "session/records.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QShortcut>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int lettresListe = 44;
constexpr int lettresFiche = 34;

void engraisse(QLabel *label)
{
    QFont gras = label->font();
    gras.setBold(true);
    label->setFont(gras);
}

} // namespace

Fcodabs::Fcodabs(Session &session, Impression imprime, QWidget *parent)
    : QDialog(parent), m_session(session), m_imprime(std::move(imprime))
{
    setObjectName(QStringLiteral("Fcodabs"));
    setWindowTitle(QStringLiteral("Définition des Absences"));
    construit();
    construitFiche();
    dispose();
    relie();
    relieTouches();
    remplit({});
}

void Fcodabs::construit()
{
    m_list1 = nomme(new QListWidget(this), "List1");
    m_list1->setAccessibleName(QStringLiteral("Codes absence"));
    m_list1->setMinimumWidth(fontMetrics().averageCharWidth() * lettresListe);
    m_list1->setMinimumHeight(fontMetrics().height() * 14);
    m_command3 = bouton(this, "Command3", QStringLiteral("Ajouter"));
    m_command4 = bouton(this, "Command4", QStringLiteral("Modifier"));
    m_command5 = bouton(this, "Command5", QStringLiteral("Supprimer"));
    m_command6 = bouton(this, "Command6", QStringLiteral("Imprimer"));
    m_command6->setEnabled(bool(m_imprime));
    m_command8 = bouton(this, "Command8", QStringLiteral("Terminer"));
    m_caid = bouton(this, "Caid", QStringLiteral("?"));
    m_caid->setToolTip(QStringLiteral("Aide"));
    m_caid->setAccessibleName(m_caid->toolTip());
}

void Fcodabs::construitFiche()
{
    m_frame1 = nomme(new QGroupBox(QStringLiteral("Absence Sélectionnée"), this), "Frame1");
    m_label1 = etiquette(m_frame1, "Label1", {});
    m_label2 = etiquette(m_frame1, "Label2", {});
    m_label3 = etiquette(m_frame1, "Label3", {});
    m_label4 = etiquette(m_frame1, "Label4", QStringLiteral("Archivé"));
    m_text1 = champEchantillon(m_frame1, "Text1");
    m_label3->setWordWrap(true);
    engraisse(m_label1);
    engraisse(m_label4);
}

void Fcodabs::dispose()
{
    m_frame1->setLayout(disposeFiche());
    auto *const milieu = new QHBoxLayout;
    milieu->setSpacing(18);
    milieu->addWidget(m_list1, 1);
    milieu->addWidget(m_frame1);
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    page->addLayout(milieu, 1);
    page->addLayout(disposeCommandes());
}

QLayout *Fcodabs::disposeFiche()
{
    m_frame1->setFixedWidth(fontMetrics().averageCharWidth() * lettresFiche);
    auto *const tete = new QHBoxLayout;
    tete->addWidget(m_label1);
    tete->addStretch();
    tete->addWidget(m_text1);
    auto *const colonne = new QVBoxLayout;
    colonne->setSpacing(12);
    colonne->addLayout(tete);
    colonne->addWidget(m_label2);
    colonne->addWidget(m_label3);
    colonne->addWidget(m_label4);
    colonne->addStretch();
    return colonne;
}

QLayout *Fcodabs::disposeCommandes()
{
    m_caid->setFixedWidth(m_caid->sizeHint().height() + 8);
    auto *const commandes = new QHBoxLayout;
    for (QPushButton *commande : {m_command3, m_command4, m_command5, m_command6})
        commandes->addWidget(commande);
    commandes->addStretch(1);
    commandes->addWidget(m_command8);
    commandes->addWidget(m_caid);
    return commandes;
}

void Fcodabs::relie()
{
    connect(m_list1, &QListWidget::currentRowChanged, this, &Fcodabs::montre);
    connect(m_list1, &QListWidget::itemDoubleClicked, this, &Fcodabs::modifie);
    connect(m_command3, &QPushButton::clicked, this, [this] { edite(FicheCode{}); });
    connect(m_command4, &QPushButton::clicked, this, &Fcodabs::modifie);
    connect(m_command5, &QPushButton::clicked, this, &Fcodabs::supprime);
    connect(m_command6, &QPushButton::clicked, this, [this] { m_imprime(m_session, this); });
    connect(m_command8, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_caid, &QPushButton::clicked, this,
            [this] { ouvreaide(m_session, QStringLiteral("codes-absences.htm")); });
}

void Fcodabs::relieTouches()
{
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, m_caid,
            &QPushButton::click);
    auto *const suppression = new QShortcut(QKeySequence::Delete, m_list1);
    suppression->setContext(Qt::WidgetShortcut);
    connect(suppression, &QShortcut::activated, m_command5, &QPushButton::click);
}

/// Reads the codes again and selects one, or the first.
void Fcodabs::remplit(const QString &choisi)
{
    m_codes = codesDeLaListe(m_session);
    {
        const QSignalBlocker silence(m_list1);
        m_list1->clear();
        for (const CodeAbsence &code : m_codes)
            ajouteLigne(code);
        const auto trouve = std::find_if(m_codes.begin(), m_codes.end(),
                                         [&](const CodeAbsence &code) { return code.codabs == choisi; });
        m_list1->setCurrentRow(trouve == m_codes.end() ? 0 : static_cast<int>(trouve - m_codes.begin()));
    }
    montre();
}

void Fcodabs::ajouteLigne(const CodeAbsence &code)
{
    auto *const ligne = new QListWidgetItem(code.codabs + QLatin1Char('\t') + code.libelong, m_list1);
    if (code.barc) ligne->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
}

const CodeAbsence *Fcodabs::choisi() const
{
    const int ligne = m_list1->currentRow();
    return ligne < 0 ? nullptr : &m_codes[static_cast<std::size_t>(ligne)];
}

/// What the selected code is, and what can be done with it.
void Fcodabs::montre()
{
    const CodeAbsence *const code = choisi();
    const CodeAbsence montre = code ? *code : CodeAbsence{};
    m_label1->setText(montre.codabs);
    m_label2->setText(montre.libecour);
    m_label3->setText(montre.libelong);
    m_label4->setVisible(montre.barc);
    montreEchantillon(m_text1, ficheDe(montre));
    m_command4->setEnabled(code);
    m_command5->setEnabled(code);
    (code ? m_command4 : m_command3)->setDefault(true);
}

void Fcodabs::edite(const FicheCode &fiche)
{
    Majcodabs editeur(m_session, fiche, this);
    if (editeur.exec() == QDialog::Accepted) remplit(m_session.base.codabs.row().codabs);
    m_list1->setFocus();
}

void Fcodabs::modifie()
{
    const CodeAbsence *const code = choisi();
    if (!code) return;
    // The row as it is now: another workstation may have changed it since the list was filled.
    const QString choisie = code->codabs;
    if (cherchecode(m_session, choisie))
        edite(ficheDe(m_session.base.codabs.row()));
    else
        remplit(choisie);
}

void Fcodabs::supprime()
{
    const CodeAbsence *const code = choisi();
    if (!code) return;
    const int ligne = m_list1->currentRow();
    const QString choisie = code->codabs;
    const bool partie = supprimeCode(m_session, choisie);
    remplit(choisie);
    if (partie && m_list1->count() > 0) m_list1->setCurrentRow(qMin(ligne, m_list1->count() - 1));
    m_list1->setFocus();
}

} // namespace velmora
