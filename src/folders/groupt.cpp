#include "folders/groupt.h"

#include "folders/folder_list.h"
#include "folders/planshgroup.h"
#include "session/help.h"
#include "workstation/controls.h"
#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QListWidget>

namespace velmora
{

namespace
{

constexpr int lettresNom = 24;
constexpr int lettresMembre = 46;
constexpr int rangees = 18;

} // namespace

Groupt::Groupt(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    construit();
    dispose();
    relie();
    remplit();
    choisit();
}

void Groupt::construit()
{
    setObjectName(QStringLiteral("Groupt"));
    setWindowTitle(QStringLiteral("Dossiers"));
    m_list1 = nomme(new QListWidget(this), "List1");
    m_list1->setAccessibleName(windowTitle());
    m_frame1 = nomme(new QGroupBox(QStringLiteral("Dossier Sélectionné"), this), "Frame1");
    m_label3 = etiquette(m_frame1, "Label3", QStringLiteral("Code  :"));
    m_mgroup = etiquette(m_frame1, "mgroup", {});
    m_list2 = nomme(new QListWidget(m_frame1), "List2");
    m_list2->setSelectionMode(QAbstractItemView::NoSelection);
    m_list2->setAccessibleName(QStringLiteral("Lignes du dossier"));
    m_command3 = bouton(this, "Command3", QStringLiteral("Ajouter"));
    m_command4 = bouton(this, "Command4", QStringLiteral("Modifier"));
    m_command5 = bouton(this, "Command5", QStringLiteral("Supprimer"));
    m_command1 = bouton(this, "Command1", QStringLiteral("Terminer"));
    m_caid = bouton(this, "Caid", QStringLiteral("?"));
}

void Groupt::dispose()
{
    QFont gras = m_mgroup->font();
    gras.setBold(true);
    m_mgroup->setFont(gras);
    auto *const code = new QHBoxLayout;
    code->addWidget(m_label3);
    code->addWidget(m_mgroup, 1);
    auto *const volet = new QVBoxLayout(m_frame1);
    volet->addLayout(code);
    volet->addWidget(m_list2, 1);
    const int lettre = fontMetrics().averageCharWidth();
    m_list1->setMinimumSize(lettre * lettresNom, fontMetrics().height() * rangees);
    m_list2->setMinimumWidth(lettre * lettresMembre);
    disposeListe(this, {m_list1, m_frame1, m_command3, m_command4, m_command5, m_command1, m_caid});
}

void Groupt::relie()
{
    connect(m_list1, &QListWidget::itemSelectionChanged, this, &Groupt::choisit);
    connect(m_list1, &QListWidget::itemDoubleClicked, m_command4, &QPushButton::click);
    connect(m_command3, &QPushButton::clicked, this, &Groupt::ajoute);
    connect(m_command4, &QPushButton::clicked, this, &Groupt::modifie);
    connect(m_command5, &QPushButton::clicked, this, &Groupt::supprime);
    connect(m_command1, &QPushButton::clicked, this, &Groupt::accept);
    connect(m_caid, &QPushButton::clicked, this,
            [this] { ouvreaide(m_session, QStringLiteral("dossiers.htm")); });
}

void Groupt::remplit()
{
    m_list1->clear();
    m_list1->addItems(nomsDossiers(m_session));
}

void Groupt::choisit()
{
    const auto choisis = m_list1->selectedItems();
    m_choisi = choisis.isEmpty() ? QString() : choisis.first()->text();
    const bool trouve = !choisis.isEmpty() && placedossier(m_session, m_choisi);
    if (trouve) montreMembres();
    m_frame1->setVisible(trouve);
    m_command4->setEnabled(trouve);
    m_command5->setEnabled(trouve);
}

void Groupt::montreMembres()
{
    m_mgroup->setText(m_choisi);
    m_list2->clear();
    for (const Ligne &ligne : membres(m_session, m_choisi))
        m_list2->addItem(textemembre(ligne));
}

bool Groupt::saisit(bool ajout)
{
    m_session.modeajout = ajout;
    m_session.dossiersel = m_choisi;
    Planshgroup saisie(m_session, this);
    saisie.exec();
    return m_session.dlgvalide;
}

void Groupt::ajoute()
{
    if (saisit(true)) {
        const QString nom = m_session.base.groupe.row().groupe;
        remplit();
        for (QListWidgetItem *nouveau : m_list1->findItems(nom, Qt::MatchExactly | Qt::MatchCaseSensitive))
            m_list1->setCurrentItem(nouveau);
    }
    choisit();
}

void Groupt::modifie()
{
    static_cast<void>(saisit(false));
    choisit();
}

void Groupt::supprime()
{
    if (supprdossier(m_session, m_choisi)) remplit();
    choisit();
}

} // namespace velmora
