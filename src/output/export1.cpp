#include "output/export1.h"

#include "session/values.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QProgressBar>
#include <QScrollBar>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto apresOuverture = 5ms;
constexpr int joursParPage = 7;
constexpr int largeurBarre = 30; // in characters

QScrollBar *barreDeDates(QWidget *parent, const char *nom, const QString &accessible)
{
    auto *const barre = nomme(new QScrollBar(Qt::Horizontal, parent), nom);
    barre->setFocusPolicy(Qt::StrongFocus);
    barre->setPageStep(joursParPage);
    // A lying bar would else go to the left on the key to the right.
    barre->setInvertedControls(false);
    barre->setAccessibleName(accessible);
    barre->setMinimumWidth(barre->fontMetrics().averageCharWidth() * largeurBarre);
    return barre;
}

} // namespace

Export1::Export1(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_datedeb(session.impdeb), m_datefin(session.impfin),
      m_barres(m_datedeb, m_datefin)
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    relie();
    m_timer1.setSingleShot(true);
    m_timer1.start(apresOuverture);
}

void Export1::construit()
{
    setObjectName(QStringLiteral("Export1"));
    setWindowTitle(QStringLiteral("Exportation vers Excel"));
    m_vs1 = barreDeDates(this, "VS1", QStringLiteral("Première date"));
    m_label1 = etiquette(this, "Label1", {});
    m_vs2 = barreDeDates(this, "VS2", QStringLiteral("Dernière date"));
    m_label2 = etiquette(this, "Label2", {});
    m_pgb = nomme(new QProgressBar(this), "Pgb");
    m_pgb->setTextVisible(false);
    m_pgb->setAccessibleName(QStringLiteral("Avancement de l'export"));
    m_command1 = bouton(this, "Command1", QStringLiteral("Exporter"));
    m_command1->setDefault(true);
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
    m_command2->setAutoDefault(false);
}

QGroupBox *Export1::cadre(const char *nom, const QString &texte, QScrollBar *barre, QLabel *date)
{
    auto *const groupe = nomme(new QGroupBox(texte, this), nom);
    QFont gras = date->font();
    gras.setBold(true);
    date->setFont(gras);
    date->setAlignment(Qt::AlignCenter);
    auto *const colonne = new QVBoxLayout(groupe);
    colonne->addWidget(date);
    colonne->addWidget(barre);
    return groupe;
}

void Export1::dispose()
{
    auto *const dates = new QHBoxLayout;
    dates->setSpacing(14);
    dates->addWidget(cadre("Frame4", QStringLiteral("Dates"), m_vs1, m_label1));
    dates->addWidget(cadre("Frame8", QStringLiteral("A (compris)"), m_vs2, m_label2));
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
    page->addLayout(dates);
    page->addWidget(portee);
    page->addStretch();
    page->addLayout(commandes);
}

void Export1::relie()
{
    connect(&m_timer1, &QTimer::timeout, this, &Export1::prepareBarres);
    connect(m_command1, &QPushButton::clicked, this, &Export1::command1Click);
    connect(m_command2, &QPushButton::clicked, this, &Export1::reject);
}

void Export1::prepareBarres()
{
    m_vs1->setRange(BarresPeriode::minimum1, m_barres.maximum1());
    m_vs2->setRange(BarresPeriode::minimum2, m_barres.maximum2());
    montreDates();
    connect(m_vs1, &QScrollBar::valueChanged, this, [this](int position) {
        m_barres.deplaceVs1(position);
        montreDates();
    });
    connect(m_vs2, &QScrollBar::valueChanged, this, [this](int position) {
        m_barres.deplaceVs2(position);
        montreDates();
    });
}

void Export1::montreDates()
{
    m_vs1->setValue(m_barres.vs1());
    m_vs2->setValue(m_barres.vs2());
    m_label1->setText(Foncgen::dtoc(m_barres.premier()));
    m_label2->setText(Foncgen::dtoc(m_barres.dernier()));
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
    if (!faite.lecture.ok() || !faite.fichierEcrit) m_session.host.message(defautExport(faite), titre);
    remet(m_session, faite, [](const QString &texte) {
        QGuiApplication::clipboard()->clear();
        QGuiApplication::clipboard()->setText(texte);
    });
    m_pgb->setValue(0);
    m_pgb->hide();
    m_command1->setEnabled(true);
    unsetCursor();
}

} // namespace velmora
