#include "calendar/ferie2.h"

#include "calendar/holiday_list.h"
#include "foncgen/field_wiring.h"
#include "session/help.h"
#include "workstation/controls.h"
#include "workstation/list_window.h"

#include <QBoxLayout>
#include <QFormLayout>

namespace velmora
{

namespace
{

constexpr int longueurDate = 10;
constexpr int longueurLibelle = 30;

} // namespace

Ferie2::Ferie2(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    relie();
    ouvre();
}

void Ferie2::construit()
{
    setObjectName(QStringLiteral("Ferie2"));
    setWindowTitle(QStringLiteral("Saisie d'un jour Férié "));
    m_text1 = nomme(new QLineEdit(this), "Text1");
    m_text3 = nomme(new QLineEdit(this), "Text3");
    m_command1 = bouton(this, "Command1", QStringLiteral("OK"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command3 = bouton(this, "Command3", QStringLiteral("?"));
}

void Ferie2::dispose()
{
    const int lettre = fontMetrics().averageCharWidth();
    m_text1->setFixedWidth(lettre * (longueurDate + 6));
    m_text3->setMinimumWidth(lettre * (longueurLibelle + 8));
    auto *const champs = new QFormLayout;
    champs->addRow(QStringLiteral("Date "), m_text1);
    champs->addRow(QStringLiteral("Libellé"), m_text3);
    QVBoxLayout *const page = pageDialogue(this);
    page->addLayout(champs);
    page->addStretch();
    page->addLayout(rangeeCommandes(this, m_command3, {m_command1, m_command2}));
}

void Ferie2::relie()
{
    wireField(m_text1, nullptr, m_text3, FieldType::Date, longueurDate);
    wireField(m_text3, m_text1, m_command1, FieldType::Free, longueurLibelle);
    connect(m_command1, &QPushButton::clicked, this, &Ferie2::ok);
    connect(m_command2, &QPushButton::clicked, this, &Ferie2::reject);
    connect(m_command3, &QPushButton::clicked, this, [this] { ouvreaide(m_session, {}); });
}

void Ferie2::ouvre()
{
    const JourFerie &courant = m_session.base.ferie.row();
    const bool ajout = m_session.modeajout;
    m_text1->setText(Foncgen::dtoc(ajout ? m_session.host.today() : courant.datedeb));
    m_text1->setEnabled(ajout);
    if (!ajout) m_text3->setText(courant.lib);
    (ajout ? m_text1 : m_text3)->setFocus();
}

void Ferie2::ok()
{
    const QDate date = Foncgen::ctod(m_text1->text());
    const bool stocke = m_session.modeajout ? ajouteferie(m_session, date, m_text3->text())
                                            : modifieferie(m_session, date, m_text3->text());
    if (!stocke) return m_text1->setFocus();
    m_session.dlgvalide = true;
    accept();
}

} // namespace velmora
