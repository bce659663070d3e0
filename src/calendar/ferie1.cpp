#include "calendar/ferie1.h"

#include "calendar/ferie2.h"
#include "calendar/holiday_list.h"
#include "foncgen/foncgen.h"
#include "session/batch.h"
#include "session/help.h"
#include "session/records.h"
#include "workstation/controls.h"
#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QListWidget>

namespace velmora
{

namespace
{

constexpr int lettresLibelle = 30;

} // namespace

void ouvreferies(Session &session, QWidget *parent, const DemandeFeries &demande)
{
    if (!chargeferies(session, demande).ok()) return ditEchecDisque(session);
    Ferie1 feries(session, parent);
    feries.exec();
}

Ferie1::Ferie1(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    construit();
    dispose();
    relie();
    remplit();
}

void Ferie1::construit()
{
    setObjectName(QStringLiteral("Ferie1"));
    setWindowTitle(QStringLiteral("Jours fériés et fermetures"));
    m_list1 = nomme(new QListWidget(this), "List1");
    m_list1->setAccessibleName(windowTitle());
    m_frame1 = nomme(new QGroupBox(QStringLiteral("Jour Férié sélectionné"), this), "Frame1");
    m_text1 = affichage(m_frame1, "Text1", QStringLiteral("Jour"));
    m_text3 = affichage(m_frame1, "Text3", QStringLiteral("Libellé"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Ajouter"));
    m_command4 = bouton(this, "Command4", QStringLiteral("Modifier"));
    m_command3 = bouton(this, "Command3", QStringLiteral("Supprimer"));
    m_command1 = bouton(this, "Command1", QStringLiteral("Terminer"));
    m_command5 = bouton(this, "Command5", QStringLiteral("?"));
}

void Ferie1::dispose()
{
    auto *const volet = new QVBoxLayout(m_frame1);
    volet->addWidget(new QLabel(QStringLiteral("Jour :"), m_frame1));
    volet->addWidget(m_text1);
    volet->addWidget(new QLabel(QStringLiteral("Libellé"), m_frame1));
    volet->addWidget(m_text3);
    m_frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    const int lettre = fontMetrics().averageCharWidth();
    m_list1->setMinimumSize(lettre * (lettresLibelle + 28), fontMetrics().height() * 20);
    m_text3->setMinimumWidth(lettre * (lettresLibelle + 4));
    disposeListe(this, {m_list1, m_frame1, m_command2, m_command4, m_command3, m_command1, m_command5});
}

void Ferie1::relie()
{
    connect(m_list1, &QListWidget::itemSelectionChanged, this, &Ferie1::choisit);
    // A button that is disabled doesn't answer the click.
    connect(m_list1, &QListWidget::itemDoubleClicked, m_command4, &QPushButton::click);
    connect(m_command2, &QPushButton::clicked, this, &Ferie1::ajoute);
    connect(m_command4, &QPushButton::clicked, this, &Ferie1::modifie);
    connect(m_command3, &QPushButton::clicked, this, &Ferie1::supprime);
    connect(m_command1, &QPushButton::clicked, this, &Ferie1::accept);
    connect(m_command5, &QPushButton::clicked, this, [this] { ouvreaide(m_session, {}); });
}

void Ferie1::remplit()
{
    m_list1->clear();
    m_list1->addItems(listeferies(m_session));
    montreVolet(false);
}

void Ferie1::choisit()
{
    const auto choisies = m_list1->selectedItems();
    if (choisies.isEmpty()) return;
    m_choisie = dateDeLigne(choisies.first()->text());
    montreVolet(jourferie(m_session, m_choisie));
}

void Ferie1::montreVolet(bool trouve)
{
    if (trouve) {
        m_text1->setText(Foncgen::dtoc(m_session.base.ferie.row().datedeb));
        m_text3->setText(m_session.base.ferie.row().lib);
    }
    m_frame1->setVisible(trouve);
    m_command3->setEnabled(trouve);
    m_command4->setEnabled(trouve);
}

void Ferie1::ajoute()
{
    m_session.modeajout = true;
    {
        Ferie2 saisie(m_session, this);
        saisie.exec();
    }
    if (!m_session.dlgvalide) return;
    const JourFerie jour = m_session.base.ferie.row();
    remplit();
    for (const QListWidgetItem *ajoutee : m_list1->findItems(ligneferie(jour), Qt::MatchExactly))
        m_list1->scrollToItem(ajoutee);
    m_list1->setCurrentRow(ligneAjoutee(listeferies(m_session), jour));
}

void Ferie1::modifie()
{
    choisit();
    if (!m_command4->isEnabled()) return;
    m_session.modeajout = false;
    {
        Ferie2 saisie(m_session, this);
        saisie.exec();
    }
    if (!m_session.dlgvalide) return;
    m_list1->selectedItems().first()->setText(ligneferie(m_session.base.ferie.row()));
    choisit();
}

void Ferie1::supprime()
{
    if (supprferie(m_session, m_choisie)) remplit();
}

} // namespace velmora
