#include "output/period_box.h"

#include "foncgen/foncgen.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>

namespace velmora
{

namespace
{

constexpr int joursParPage = 7;

QScrollBar *barreJours(QWidget *parent, const char *nom, int minimum, int maximum)
{
    auto *const barre = nomme(new QScrollBar(Qt::Horizontal, parent), nom);
    barre->setFocusPolicy(Qt::StrongFocus);
    barre->setRange(minimum, maximum);
    barre->setPageStep(joursParPage);
    // A lying bar would else go to the left on the key to the right.
    barre->setInvertedControls(false);
    return barre;
}

} // namespace

CadreDates::CadreDates(const QDate &premier, const QDate &dernier, QWidget *parent)
    : QGroupBox(QStringLiteral("Dates"), parent), m_barres(premier, dernier),
      m_label1(etiquette(this, "Label1", {})),
      m_vs1(barreJours(this, "VS1", BarresPeriode::minimum1, m_barres.maximum1())),
      m_label2(etiquette(this, "Label2", {})),
      m_vs2(barreJours(this, "VS2", BarresPeriode::minimum2, m_barres.maximum2()))
{
    setObjectName(QStringLiteral("Frame4"));
    auto *const page = new QHBoxLayout(this);
    page->addWidget(cadre("Frame7", QStringLiteral("Du"), m_label1, m_vs1));
    page->addWidget(cadre("Frame8", QStringLiteral("A (compris)"), m_label2, m_vs2));
    montre();
    connect(m_vs1, &QScrollBar::valueChanged, this, [this](int position) {
        m_barres.deplaceVs1(position);
        montre();
    });
    connect(m_vs2, &QScrollBar::valueChanged, this, [this](int position) {
        m_barres.deplaceVs2(position);
        montre();
    });
}

QGroupBox *CadreDates::cadre(const char *nom, const QString &titre, QLabel *date, QScrollBar *barre)
{
    auto *const boite = nomme(new QGroupBox(titre, this), nom);
    date->setAlignment(Qt::AlignCenter);
    barre->setAccessibleName(titre);
    auto *const colonne = new QVBoxLayout(boite);
    colonne->addWidget(date);
    colonne->addWidget(barre);
    return boite;
}

void CadreDates::montre()
{
    const QSignalBlocker sans1(m_vs1);
    const QSignalBlocker sans2(m_vs2);
    m_vs1->setValue(m_barres.vs1());
    m_vs2->setValue(m_barres.vs2());
    m_label1->setText(Foncgen::dtoc(m_barres.premier()));
    m_label2->setText(Foncgen::dtoc(m_barres.dernier()));
}

} // namespace velmora
