#include "folders/smois.h"

#include "folders/folder_choice.h"
#include "session/help.h"
#include "workstation/controls.h"
#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>

namespace velmora
{

namespace
{

constexpr int moisParPage = 12;

QLineEdit *chiffres(QWidget *parent, const char *nom, const QString &accessible, int nombre)
{
    auto *const texte = affichage(parent, nom, accessible);
    texte->setAlignment(Qt::AlignCenter);
    texte->setMaximumWidth(texte->fontMetrics().horizontalAdvance(QString(nombre + 4, QLatin1Char('0'))));
    return texte;
}

} // namespace

Smois::Smois(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_echelle(session.datemin, session.datemax)
{
    m_session.dlgvalide = false;
    construit();
    construitOptions();
    dispose();
    ouvre();
    relie();
    m_pret = true;
}

void Smois::construit()
{
    setObjectName(QStringLiteral("Smois"));
    setWindowTitle(QStringLiteral("Critères affichage mois"));
    m_label2 = etiquette(this, "Label2", QStringLiteral("Dossier à sélectionner :"));
    m_list1 = new ListeDossiers(m_session, this);
    m_list1->setAccessibleName(m_label2->text());
    m_label2->setBuddy(m_list1);
    m_label3 = etiquette(this, "Label3", m_list1->texte());
    m_frame2 = nomme(new QGroupBox(QStringLiteral("Mois à afficher"), this), "Frame2");
    m_text1 = chiffres(m_frame2, "Text1", QStringLiteral("Mois"), 2);
    m_label1 = etiquette(m_frame2, "Label1", QStringLiteral("/"));
    m_text2 = chiffres(m_frame2, "Text2", QStringLiteral("Année"), 4);
    m_vs1 = nomme(new QScrollBar(Qt::Horizontal, m_frame2), "VS1");
    m_vs1->setFocusPolicy(Qt::StrongFocus);
    m_vs1->setPageStep(moisParPage);
    // A lying bar would else go to the left on the key to the right.
    m_vs1->setInvertedControls(false);
    m_vs1->setAccessibleName(m_frame2->title());
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command3 = bouton(this, "Command3", QStringLiteral("?"));
}

void Smois::construitOptions()
{
    m_frame3 = nomme(new QGroupBox(QStringLiteral("Contenu des cellules"), this), "Frame3");
    const std::array<QString, 3> captions{
        QStringLiteral("Horaire   ex: 8h20 - 21h30  [14h00-18h00]"),
        QStringLiteral("Heures faites- à faire    Exemple 9h10"),
        QStringLiteral("Tranches horaires ex: 8h20 - 14h00  18h00-21h30"),
    };
    for (std::size_t i = 0; i < captions.size(); ++i) {
        m_option1[i] = new QRadioButton(captions[i], m_frame3);
        m_option1[i]->setObjectName(QStringLiteral("Option1_%1").arg(i));
    }
}

void Smois::dispose()
{
    auto *const options = new QVBoxLayout(m_frame3);
    for (auto *option : m_option1)
        options->addWidget(option);
    auto *const droite = new QVBoxLayout;
    m_frame2->setLayout(disposeMois());
    droite->addWidget(m_frame2);
    droite->addWidget(m_frame3);
    droite->addStretch();
    auto *const milieu = new QHBoxLayout;
    milieu->setSpacing(18);
    milieu->addLayout(disposeDossiers(), 1);
    milieu->addLayout(droite);
    QVBoxLayout *const page = pageDialogue(this);
    page->addLayout(milieu, 1);
    page->addLayout(rangeeCommandes(this, m_command3, {m_command1, m_command2}));
}

QLayout *Smois::disposeDossiers()
{
    QFont gras = m_label3->font();
    gras.setBold(true);
    m_label3->setFont(gras);
    m_label3->setTextFormat(Qt::PlainText);
    auto *const colonne = new QVBoxLayout;
    colonne->setSpacing(fontMetrics().height() / 2);
    colonne->addWidget(m_label2);
    colonne->addWidget(m_list1, 1);
    colonne->addWidget(m_label3);
    return colonne;
}

QLayout *Smois::disposeMois()
{
    auto *const date = new QHBoxLayout;
    date->addStretch();
    date->addWidget(m_text1);
    date->addWidget(m_label1);
    date->addWidget(m_text2);
    date->addStretch();
    auto *const colonne = new QVBoxLayout;
    colonne->addLayout(date);
    colonne->addWidget(m_vs1);
    return colonne;
}

void Smois::relie()
{
    connect(m_vs1, &QScrollBar::valueChanged, this, &Smois::vs1Change);
    connect(m_list1, &ListeDossiers::choisie, this, &Smois::list1Click);
    connect(m_command1, &QPushButton::clicked, this, &Smois::accept);
    connect(m_command2, &QPushButton::clicked, this, &Smois::reject);
    connect(m_command3, &QPushButton::clicked, this,
            [this] { ouvreaide(m_session, QStringLiteral("acces-planning.htm")); });
}

void Smois::ouvre()
{
    m_option1[static_cast<std::size_t>(optionDuMode(m_session.modecellule))]->setChecked(true);
    m_vs1->setRange(m_echelle.minimum(), m_echelle.maximum());
    const MoisAn depart = moisDeDepart(m_session);
    m_session.moisvue = depart.mois;
    m_session.anvue = depart.an;
    if (m_session.choixmoisdebut == 1) m_frame2->setTitle(QStringLiteral("Mois / An début"));
    m_vs1->setValue(m_echelle.position(depart));
    montreMois();
    m_vs1->setFocus();
}

void Smois::montreMois()
{
    m_text1->setText(nombreAvecBlanc(m_session.moisvue));
    m_text2->setText(nombreAvecBlanc(m_session.anvue));
}

void Smois::vs1Change(int position)
{
    if (!m_pret) return;
    const MoisAn choix = m_echelle.mois(position);
    m_session.moisvue = choix.mois;
    m_session.anvue = choix.an;
    montreMois();
}

void Smois::list1Click()
{
    m_label3->setText(m_list1->texte());
    m_session.dossiervue = m_list1->dossier();
}

void Smois::accept()
{
    for (int option = 0; option < int(m_option1.size()); ++option)
        if (m_option1[static_cast<std::size_t>(option)]->isChecked())
            m_session.modecellule = modeDeLOption(option);
    m_session.dlgvalide = true;
    QDialog::accept();
}

void Smois::reject()
{
    m_session.dlgvalide = false;
    QDialog::reject();
}

} // namespace velmora
