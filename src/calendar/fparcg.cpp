#include "calendar/fparcg.h"

#include "calendar/fparcgs.h"
#include "calendar/holiday_list.h"
#include "calendar/parameter_sets.h"
#include "foncgen/foncgen.h"
#include "session/help.h"
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

constexpr auto delaiFocus = 5ms;
constexpr int lettresLigne = 44;
constexpr int lettresDate = 16;

} // namespace

Fparcg::Fparcg(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    construit();
    dispose();
    relie();
    montreVolet(false);
    m_list1->addItems(listejeux(session));
    m_timer1.start(delaiFocus);
}

void Fparcg::construit()
{
    setObjectName(QStringLiteral("Fparcg"));
    setWindowTitle(QStringLiteral("Jeu de paramètres"));
    m_label1 = etiquette(this, "Label1",
                         QStringLiteral("Ce paramètrage permet de générer automatiquement les jours fériés "
                                        "selon votre pays ou région."));
    m_label1->setWordWrap(true);
    m_list1 = nomme(new QListWidget(this), "List1");
    m_list1->setAccessibleName(windowTitle());
    m_frame1 = nomme(new QGroupBox(QStringLiteral("Paramètres applicables au:"), this), "Frame1");
    m_text1 = affichage(m_frame1, "Text1", m_frame1->title());
    m_command2 = bouton(this, "Command2", QStringLiteral("Ajouter"));
    m_command3 = bouton(this, "Command3", QStringLiteral("Modifier"));
    m_command4 = bouton(this, "Command4", QStringLiteral("Supprimer"));
    m_command1 = bouton(this, "Command1", QStringLiteral("Terminer"));
    m_command5 = bouton(this, "Command5", QStringLiteral("?"));
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
}

void Fparcg::dispose()
{
    const int lettre = fontMetrics().averageCharWidth();
    m_list1->setMinimumSize(lettre * lettresLigne, fontMetrics().height() * 10);
    m_text1->setFixedWidth(lettre * lettresDate);
    auto *const volet = new QVBoxLayout(m_frame1);
    volet->addWidget(m_text1);
    m_frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    disposeListe(this, {m_list1, m_frame1, m_command2, m_command3, m_command4, m_command1, m_command5},
                 m_label1);
}

void Fparcg::relie()
{
    connect(&m_timer1, &QTimer::timeout, this,
            [this] { (m_list1->count() > 0 ? static_cast<QWidget *>(m_list1) : m_command2)->setFocus(); });
    connect(m_list1, &QListWidget::itemSelectionChanged, this, &Fparcg::choisit);
    connect(m_list1, &QListWidget::itemDoubleClicked, m_command3, &QPushButton::click);
    connect(m_command2, &QPushButton::clicked, this, &Fparcg::ajoute);
    connect(m_command3, &QPushButton::clicked, this, &Fparcg::modifie);
    connect(m_command4, &QPushButton::clicked, this, &Fparcg::supprime);
    connect(m_command1, &QPushButton::clicked, this, &Fparcg::reject);
    connect(m_command5, &QPushButton::clicked, this, [this] { ouvreaide(m_session, {}); });
}

void Fparcg::choisit()
{
    const auto choisies = m_list1->selectedItems();
    m_choisie = choisies.isEmpty() ? QDate() : dateDeLigne(choisies.first()->text());
    montreVolet(m_choisie.isValid() && placejeu(m_session, m_choisie));
}

void Fparcg::montreVolet(bool trouve)
{
    if (trouve) m_text1->setText(Foncgen::dtoc(m_choisie));
    m_frame1->setVisible(trouve);
    m_command3->setEnabled(trouve);
    // The first set of the list can't go, whatever its date.
    m_command4->setEnabled(trouve && m_list1->row(m_list1->selectedItems().first()) > 0);
}

bool Fparcg::saisit(bool ajout)
{
    m_session.modeajout = ajout;
    Fparcgs saisie(m_session, this);
    saisie.exec();
    return m_session.dlgvalide;
}

void Fparcg::ajoute()
{
    if (saisit(true)) m_list1->addItem(lignejeu(m_session.base.parcg.row()));
}

void Fparcg::modifie()
{
    choisit();
    if (!m_command3->isEnabled() || !saisit(false)) return;
    m_list1->selectedItems().first()->setText(lignejeu(m_session.base.parcg.row()));
}

void Fparcg::supprime()
{
    if (!supprjeu(m_session, m_choisie)) return;
    qDeleteAll(m_list1->selectedItems());
    m_list1->setCurrentRow(-1);
    choisit();
}

void Fparcg::reject()
{
    if (peutfermer(m_session)) QDialog::reject();
}

} // namespace velmora
