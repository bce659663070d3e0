#include "calendar/fparcgs.h"

#include "calendar/ferie1.h"
#include "calendar/holiday_rules.h"
#include "calendar/parameter_sets.h"
#include "foncgen/field_wiring.h"
#include "session/help.h"
#include "workstation/controls.h"
#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto delaiCharge = 5ms;
constexpr int longueurDate = 10;
constexpr int longueurNom = 25;

/// A frame around one control.
QGroupBox *cadre(QWidget *parent, const char *nom, const QString &titre)
{
    auto *const boite = nomme(new QGroupBox(titre, parent), nom);
    boite->setLayout(new QVBoxLayout);
    return boite;
}

} // namespace

Fparcgs::Fparcgs(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    relie();
    m_timer1.start(delaiCharge);
}

void Fparcgs::construit()
{
    setObjectName(QStringLiteral("Fparcgs"));
    setWindowTitle(QStringLiteral("Paramètrage de base"));
    m_frame2 = cadre(this, "Frame2", QStringLiteral("Application au "));
    m_text1 = nomme(new QLineEdit(m_frame2), "Text1");
    m_frame5 = cadre(this, "Frame5", QStringLiteral("France métropole, Dom Tom ..."));
    m_combo2 = nomme(new QComboBox(m_frame5), "Combo2");
    m_combo2->addItems(regions());
    m_label4 = etiquette(this, "Label4",
                         QStringLiteral("ATTENTION: un changement réinitialise la table des jours fériés à "
                                        "partir de la date d'application."));
    m_label4->setWordWrap(true);
    m_frame11 = cadre(this, "Frame11", QStringLiteral("Etablissement"));
    m_text2 = nomme(new QLineEdit(m_frame11), "Text2");
    m_text1->setAccessibleName(m_frame2->title());
    m_combo2->setAccessibleName(m_frame5->title());
    m_text2->setAccessibleName(m_frame11->title());
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command3 = bouton(this, "Command3", QStringLiteral("?"));
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
}

void Fparcgs::dispose()
{
    const int lettre = fontMetrics().averageCharWidth();
    m_text1->setFixedWidth(lettre * (longueurDate + 6));
    m_text2->setMinimumWidth(lettre * (longueurNom + 20));
    m_frame2->layout()->addWidget(m_text1);
    m_frame5->layout()->addWidget(m_combo2);
    m_frame11->layout()->addWidget(m_text2);
    QVBoxLayout *const page = pageDialogue(this);
    for (QWidget *un : {static_cast<QWidget *>(m_frame2), static_cast<QWidget *>(m_frame5),
                        static_cast<QWidget *>(m_label4), static_cast<QWidget *>(m_frame11)})
        page->addWidget(un);
    page->addStretch();
    page->addLayout(rangeeCommandes(this, m_command3, {m_command1, m_command2}));
}

void Fparcgs::relie()
{
    wireField(m_text1, nullptr, m_combo2, FieldType::Date, longueurDate);
    wireField(m_text2, m_combo2, m_command1, FieldType::Free, longueurNom);
    connect(&m_timer1, &QTimer::timeout, this, &Fparcgs::charge);
    connect(m_command1, &QPushButton::clicked, this, &Fparcgs::ok);
    connect(m_command2, &QPushButton::clicked, this, &Fparcgs::reject);
    connect(m_command3, &QPushButton::clicked, this, [this] { ouvreaide(m_session, {}); });
}

void Fparcgs::charge()
{
    const SaisieJeu depart = saisieDepart(m_session);
    m_text1->setText(depart.dat);
    m_text1->setEnabled(m_session.modeajout);
    m_combo2->setCurrentIndex(depart.region);
    m_text2->setText(depart.nometab);
    (m_session.modeajout ? static_cast<QWidget *>(m_text1) : m_combo2)->setFocus();
    if (m_session.modeajout) m_text1->selectAll(); // the focus may have come before the text
    m_pret = true;
}

void Fparcgs::ok()
{
    if (!m_pret) return;
    if (!enregistrejeu(m_session,
                       {m_text1->text(), regionDuLibelle(m_combo2->currentText()), m_text2->text()}))
        return m_text1->setFocus();
    auto &parcg = m_session.base.parcg;
    const auto stocke = parcg.bookmark();
    ouvreferies(m_session, this, demandeDuJeu(m_session));
    parcg.goTo(stocke); // the generation moves over the sets
    m_session.dlgvalide = true;
    accept();
}

} // namespace velmora
