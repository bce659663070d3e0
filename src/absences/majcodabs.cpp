#include "absences/majcodabs.h"

#include "absences/code_sample.h"
#include "foncgen/field_wiring.h"
#include "session/help.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QShortcut>

namespace velmora
{

namespace
{

// One more than a code has: the blank before a single letter gives way to a second one.
constexpr int longueurChampCode = 3;
constexpr int longueurHeure = 5;
constexpr int formatHeure = 3; // the place of the "h"
constexpr int rgb = 0xffffff;

QLineEdit *champ(QWidget *parent, const char *nom, int lettres)
{
    auto *const texte = nomme(new QLineEdit(parent), nom);
    texte->setFixedWidth(texte->fontMetrics().averageCharWidth() * lettres + 24);
    return texte;
}

} // namespace

Majcodabs::Majcodabs(Session &session, const FicheCode &fiche, QWidget *parent)
    : QDialog(parent), m_session(session), m_fiche(fiche)
{
    setObjectName(QStringLiteral("Majcodabs"));
    setWindowTitle(fiche.nouveau ? QStringLiteral("NOUVEAU CODE ABSENCE")
                                 : QStringLiteral("MISE A JOUR DU CODE ABSENCE"));
    construit();
    construitValorisation();
    construitAspect();
    dispose();
    relie();
    cableChamps();
    ouvre();
}

Majcodabs::~Majcodabs()
{
    hide(); // the focus leaves its field while what the field's events use is still there
}

void Majcodabs::construit()
{
    m_mcodabs = champ(this, "mcodabs", 4);
    m_mlibecour = champ(this, "mlibecour", longueurLibecour);
    m_mlibelong = champ(this, "mlibelong", longueurLibelong);
    m_check3 = nomme(new QCheckBox(QStringLiteral("Archivé"), this), "Check3");
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command1->setDefault(true);
}

void Majcodabs::construitValorisation()
{
    m_frame1 = nomme(new QGroupBox(QStringLiteral("Valorisation"), this), "Frame1");
    m_options = new QButtonGroup(this);
    const std::array<QString, 3> captions{QStringLiteral("Horaires prévus"), QStringLiteral("Valeur fixe"),
                                          QStringLiteral("Jamais ( 0h00)")};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        m_option1[i] = new QRadioButton(captions[i], m_frame1);
        m_option1[i]->setObjectName(QStringLiteral("Option1_%1").arg(i));
        m_options->addButton(m_option1[i], static_cast<int>(i));
    }
    m_text2 = champ(m_frame1, "Text2", longueurHeure);
    m_text2->setAlignment(Qt::AlignCenter);
    m_label1 = etiquette(m_frame1, "Label1", QStringLiteral("Valeur d'une journée"));
    m_label1->setBuddy(m_text2);
}

void Majcodabs::construitAspect()
{
    m_frame2 = nomme(new QGroupBox(QStringLiteral("Aspect dans le planning"), this), "Frame2");
    m_check1 = nomme(new QCheckBox(QStringLiteral("Couleur"), m_frame2), "Check1");
    m_command3 = bouton(m_frame2, "Command3", QStringLiteral("Fond"));
    m_command4 = bouton(m_frame2, "Command4", QStringLiteral("Carac."));
    m_command4->setToolTip(QStringLiteral("Couleur des caractères"));
    m_text1 = champEchantillon(m_frame2, "Text1");
    for (QPushButton *commande : {m_command3, m_command4})
        commande->setAutoDefault(false);
}

void Majcodabs::dispose()
{
    m_frame1->setLayout(disposeValorisation());
    m_frame2->setLayout(disposeAspect());
    auto *const milieu = new QHBoxLayout;
    milieu->setSpacing(14);
    milieu->addWidget(m_frame1);
    milieu->addWidget(m_frame2, 1);
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    page->addLayout(disposeLibelles());
    page->addLayout(milieu);
    page->addWidget(m_check3);
    page->addStretch(1);
    page->addLayout(disposeCommandes());
}

QLayout *Majcodabs::disposeLibelles()
{
    auto *const libelles = new QFormLayout;
    libelles->setHorizontalSpacing(12);
    libelles->addRow(QStringLiteral("&Code"), m_mcodabs);
    libelles->addRow(QStringLiteral("&Libellé court"), m_mlibecour);
    libelles->addRow(QStringLiteral("Libellé lon&g"), m_mlibelong);
    return libelles;
}

QLayout *Majcodabs::disposeValorisation()
{
    auto *const colonne = new QVBoxLayout;
    for (QRadioButton *option : m_option1)
        colonne->addWidget(option);
    auto *const valeur = new QHBoxLayout;
    valeur->addWidget(m_label1);
    valeur->addWidget(m_text2);
    colonne->addLayout(valeur);
    return colonne;
}

QLayout *Majcodabs::disposeAspect()
{
    auto *const choix = new QHBoxLayout;
    choix->addWidget(m_command3);
    choix->addWidget(m_command4);
    choix->addStretch(1);
    auto *const colonne = new QVBoxLayout;
    colonne->addWidget(m_check1);
    colonne->addLayout(choix);
    colonne->addWidget(m_text1);
    colonne->addStretch(1);
    return colonne;
}

QLayout *Majcodabs::disposeCommandes()
{
    auto *const commandes = new QHBoxLayout;
    commandes->addStretch(1);
    commandes->addWidget(m_command1);
    commandes->addWidget(m_command2);
    return commandes;
}

void Majcodabs::relie()
{
    connect(m_mcodabs, &QLineEdit::textChanged, this, &Majcodabs::codeChange);
    connect(m_options, &QButtonGroup::idClicked, this, &Majcodabs::option1Click);
    connect(m_check1, &QCheckBox::toggled, this, [this](bool choisie) {
        m_fiche.bcouleur = choisie;
        montreAspect();
    });
    connect(m_command3, &QPushButton::clicked, this,
            [this] { choisitCouleur(&FicheCode::backc, QStringLiteral("Couleur du fond")); });
    connect(m_command4, &QPushButton::clicked, this,
            [this] { choisitCouleur(&FicheCode::forec, QStringLiteral("Couleur des caractères")); });
    connect(m_command1, &QPushButton::clicked, this, &Majcodabs::ok);
    connect(m_command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            [this] { ouvreaide(m_session, QStringLiteral("codes-absences.htm")); });
}

void Majcodabs::cableChamps()
{
    wireField(m_mcodabs, nullptr, m_mlibecour, FieldType::Capitals, longueurChampCode);
    wireField(m_mlibecour, m_mcodabs, m_mlibelong, FieldType::Free, longueurLibecour);
    wireField(m_mlibelong, m_mlibecour, nullptr, FieldType::Free, longueurLibelong)->setNext([this] {
        QAbstractButton *const choisie = m_options->checkedButton();
        return choisie ? choisie : m_option1.front();
    });
    wireField(m_text2, nullptr, m_command1, FieldType::Hour, longueurHeure, formatHeure);
}

void Majcodabs::ouvre()
{
    m_mcodabs->setText(m_fiche.codabs);
    m_mcodabs->setEnabled(m_fiche.nouveau);
    m_mlibecour->setText(m_fiche.libecour);
    m_mlibelong->setText(m_fiche.libelong);
    if (QAbstractButton *const option = m_options->button(static_cast<int>(m_fiche.valorisation)))
        option->setChecked(true);
    m_check1->setChecked(m_fiche.bcouleur);
    m_check3->setChecked(m_fiche.barc);
    montreValeur();
    montreAspect();
    (m_fiche.nouveau ? m_mcodabs : m_mlibecour)->setFocus();
}

void Majcodabs::montreValeur()
{
    m_text2->setText(m_fiche.valeur);
    m_text2->setEnabled(m_fiche.valeurPermise());
    m_label1->setEnabled(m_fiche.valeurPermise());
}

void Majcodabs::montreAspect()
{
    m_command3->setEnabled(m_fiche.bcouleur);
    m_command4->setEnabled(m_fiche.bcouleur);
    montreEchantillon(m_text1, m_fiche);
}

void Majcodabs::codeChange(const QString &texte)
{
    m_fiche.codabs = codeSaisi(texte);
    if (m_fiche.codabs != texte) {
        const QSignalBlocker silence(m_mcodabs);
        m_mcodabs->setText(m_fiche.codabs);
    }
    montreAspect();
}

void Majcodabs::option1Click(int option)
{
    m_fiche.valeur = m_text2->text();
    m_fiche.choisit(static_cast<Valorisation>(option));
    montreValeur();
}

void Majcodabs::choisitCouleur(int FicheCode::*couleur, const QString &titreChoix)
{
    QColorDialog choix(QColor(static_cast<QRgb>(m_fiche.*couleur)), this);
    choix.setWindowTitle(titreChoix);
    if (choix.exec() != QDialog::Accepted) return;
    m_fiche.*couleur = static_cast<int>(choix.selectedColor().rgb() & rgb);
    montreAspect();
}

void Majcodabs::ok()
{
    m_fiche.libecour = m_mlibecour->text();
    m_fiche.libelong = m_mlibelong->text();
    m_fiche.valeur = m_text2->text();
    m_fiche.barc = m_check3->isChecked();
    if (enregistreCode(m_session, m_fiche)) accept();
}

} // namespace velmora
