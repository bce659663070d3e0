#include "workstation/fsauv.h"

#include "foncgen/field_wiring.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QProgressBar>

namespace velmora
{

namespace
{

constexpr int longueurCible = 50;

} // namespace

Fsauv::Fsauv(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_cible(derniereCible(session))
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    m_text1->setText(m_cible);
    m_text1->setFocus();
    connect(m_command1, &QPushButton::clicked, this, &Fsauv::accept);
    connect(m_command2, &QPushButton::clicked, this, &Fsauv::reject);
}

void Fsauv::construit()
{
    setObjectName(QStringLiteral("Fsauv"));
    setWindowTitle(QStringLiteral("Sauvegarde"));
    // The ending is doubled: wanted so.
    m_frame1 = nomme(new QGroupBox(QStringLiteral("Effectuer une sauvegarde des bases de données velmora et "
                                                  "velmoralog.mdb.mdb"),
                                   this),
                     "Frame1");
    m_label1 =
        etiquette(m_frame1, "Label1", QStringLiteral("Saisir un lecteur (et éventuellement un répertoire)"));
    m_label2 = etiquette(m_frame1, "Label2", QStringLiteral("Exemple: F:"));
    m_text1 = nomme(new QLineEdit(m_frame1), "Text1");
    m_text1->setAccessibleName(m_label1->text());
    m_text1->setAccessibleDescription(m_label2->text());
    m_label1->setBuddy(m_text1);
    // A target from elsewhere may be longer than what is typed here; half of it could be another folder.
    wireField(m_text1, nullptr, nullptr, FieldType::Free, qMax(longueurCible, int(m_cible.size())));
    m_avance = nomme(new QProgressBar(m_frame1), "avance");
    m_avance->setAccessibleName(windowTitle());
    m_command1 = bouton(this, "Command1", QStringLiteral("Ok sauv."));
    m_command2 = bouton(this, "Command2", QStringLiteral("Annuler"));
}

void Fsauv::dispose()
{
    // The bar keeps its place while it is hidden, so that nothing moves under the mouse.
    QSizePolicy place = m_avance->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    m_avance->setSizePolicy(place);
    m_avance->hide();
    auto *const cadre = new QVBoxLayout(m_frame1);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_label1, m_text1, m_label2, m_avance})
        cadre->addWidget(widget);
    m_command1->setDefault(true);
    m_command2->setAutoDefault(false);
    auto *const commandes = new QHBoxLayout;
    commandes->addStretch();
    commandes->addWidget(m_command1);
    commandes->addWidget(m_command2);
    auto *const page = new QVBoxLayout(this);
    page->setSpacing(14);
    page->setContentsMargins(18, 16, 18, 14);
    page->addWidget(m_frame1);
    page->addStretch();
    page->addLayout(commandes);
    m_text1->setMinimumWidth(fontMetrics().averageCharWidth() * longueurCible);
}

void Fsauv::accept()
{
    const CibleSauvegarde cible = cibleSauvegarde(m_session, m_text1->text());
    if (!cible.refus.isEmpty()) {
        m_session.host.message(cible.refus, titre);
        m_text1->setFocus();
        m_text1->selectAll();
        return;
    }
    m_cible = cible.dossier;
    const Sauvegarde faite = copie(m_cible);
    m_rouvertes = faite.rouvertes;
    m_session.host.message(faite.bilan, titre);
    m_session.dlgvalide = true;
    QDialog::accept();
}

/// The bar is drawn at once, since no event may come in while the databases are closed.
Sauvegarde Fsauv::copie(const QString &dossier)
{
    setCursor(Qt::WaitCursor);
    m_avance->setValue(0);
    m_avance->show();
    repaint();
    const Sauvegarde faite = sauvegarde(m_session, dossier, [this](int fait, int total) {
        m_avance->setMaximum(total);
        m_avance->setValue(fait);
        m_avance->repaint();
    });
    unsetCursor();
    return faite;
}

void Fsauv::reject()
{
    m_session.dlgvalide = false;
    QDialog::reject();
}

} // namespace velmora
