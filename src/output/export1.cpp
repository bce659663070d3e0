#include "output/export1.h"

#include "output/period_box.h"
#include "session/values.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QProgressBar>

namespace velmora
{

Export1::Export1(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_datedeb(session.impdeb), m_datefin(session.impfin)
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    relie();
}

void Export1::construit()
{
    setObjectName(QStringLiteral("Export1"));
    setWindowTitle(QStringLiteral("Exportation vers Excel"));
    m_frame4 = new CadreDates(m_datedeb, m_datefin, this);
    m_pgb = nomme(new QProgressBar(this), "Pgb");
    m_pgb->setTextVisible(false);
    m_pgb->setAccessibleName(QStringLiteral("Avancement de l'export"));
    m_command1 = bouton(this, "Command1", QStringLiteral("Exporter"));
    m_command1->setDefault(true);
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command2->setAutoDefault(false);
}

void Export1::dispose()
{
    // The bars don't narrow the export, and nobody should have to find that out from the result.
    auto *const portee = etiquette(
        this, "portee", QStringLiteral("Le mois entier est exporté :") + periodetexte(m_datedeb, m_datefin));
    QSizePolicy place = m_pgb->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    m_pgb->setSizePolicy(place);
    m_pgb->hide();
    auto *const commandes = new QHBoxLayout;
    commandes->addWidget(m_pgb, 1);
    commandes->addSpacing(14);
    commandes->addWidget(m_command1);
    commandes->addWidget(m_command2);
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    page->addWidget(m_frame4);
    page->addWidget(portee);
    page->addStretch();
    page->addLayout(commandes);
}

void Export1::relie()
{
    connect(m_command1, &QPushButton::clicked, this, &Export1::command1Click);
    connect(m_command2, &QPushButton::clicked, this, &Export1::reject);
}

void Export1::command1Click()
{
    setCursor(Qt::WaitCursor);
    m_command1->setEnabled(false);
    m_pgb->setRange(0, static_cast<int>(m_session.base.ligmois.recordCount()));
    m_pgb->setValue(0);
    m_pgb->show();
    const Exportation faite =
        exporte(m_session, m_datedeb, m_datefin, [this](int lues) { m_pgb->setValue(lues); });
    unsetCursor();
    if (!faite.lecture.ok() || !faite.fichierEcrit) m_session.host.message(defautExport(faite), titre);
    remet(m_session, faite, [](const QString &texte) {
        QGuiApplication::clipboard()->clear();
        QGuiApplication::clipboard()->setText(texte);
    });
    m_pgb->setValue(0);
    m_pgb->hide();
    m_command1->setEnabled(true);
    m_command1->setFocus();
}

} // namespace velmora
