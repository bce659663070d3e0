#include "output/horairp.h"

#include "month/bars_table.h"
#include "month/twips.h"
#include "output/practised_print.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QHeaderView>
#include <QProgressBar>
#include <QTableView>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto apresOuverture = 5ms;
constexpr int largeurColonne = 800; // twips
constexpr QSize tailleDepart(1200, 580);
constexpr QSize tailleMinimale(860, 320);

/// A picture of the scale that stands beside the program takes the place of the drawn one.
QPixmap imageEchelle()
{
    return QPixmap(QCoreApplication::applicationDirPath() + QStringLiteral("/imgj.bmp"));
}

std::vector<RangeeBarres> rangeesDe(const std::vector<HorairePratique> &horaires)
{
    std::vector<RangeeBarres> rangees;
    rangees.reserve(horaires.size());
    for (const HorairePratique &horaire : horaires) {
        rangees.push_back(
            {textesHoraire(horaire), barresSurLHorloge({horaire.heurdeb, horaire.hideb, horaire.hifin,
                                                        horaire.heurfin, horaire.hideb2, horaire.hifin2})});
    }
    return rangees;
}

} // namespace

Horairp::Horairp(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session), m_debut(session.impdate), m_fin(session.impdeb),
      m_sortie(session, this)
{
    m_session.dlgvalide = false;
    construit();
    dispose();
    relie();
    m_timer1.setSingleShot(true);
    m_timer1.start(apresOuverture);
}

void Horairp::construit()
{
    setObjectName(QStringLiteral("Horairp"));
    setWindowTitle(QStringLiteral("Horaires pratiqués"));
    m_mg = new TableauBarres({"mg", "Picture1", "Picture2"}, graduationsJour(), this);
    m_mg->table()->setAccessibleName(windowTitle());
    m_mg->table()->horizontalHeader()->setSectionsClickable(true);
    m_mg->table()->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    m_mg->table()->horizontalHeader()->setSortIndicatorShown(true);
    m_mg->echelle()->prend(imageEchelle());
    for (int colonne = 0; colonne < titresHoraires().size(); ++colonne)
        m_mg->modele().aligne(colonne, Qt::AlignCenter);
    m_mg->montre(titresHoraires(), {});
    m_pgb = nomme(new QProgressBar(this), "Pgb");
    m_pgb->setTextVisible(false);
    m_pgb->setAccessibleName(QStringLiteral("Avancement"));
    m_command2 = bouton(this, "Command2", QStringLiteral("Imprimer"));
    m_command2->setAutoDefault(false);
    m_apercu = bouton(this, "Apercu", QStringLiteral("Aperçu"));
    m_apercu->setAutoDefault(false);
    for (QPushButton *une : {m_command2, m_apercu})
        une->setEnabled(false);
    m_command1 = bouton(this, "Command1", QStringLiteral("Terminer"));
    m_command1->setDefault(true);
}

void Horairp::dispose()
{
    m_mg->serreColonnes(pixels(largeurColonne, *this));
    QSizePolicy place = m_pgb->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    m_pgb->setSizePolicy(place);
    auto *const commandes = new QHBoxLayout;
    commandes->addWidget(m_pgb, 1);
    commandes->addSpacing(14);
    commandes->addWidget(m_apercu);
    commandes->addWidget(m_command2);
    commandes->addWidget(m_command1);
    auto *const page = new QVBoxLayout(this);
    page->setContentsMargins(14, 12, 14, 12);
    page->setSpacing(10);
    auto *const periode = etiquette(this, "periode", titreHoraires(m_debut, m_fin));
    QFont gras = periode->font();
    gras.setBold(true);
    periode->setFont(gras);
    page->addWidget(periode);
    page->addWidget(m_mg, 1);
    page->addLayout(commandes);
    setMinimumSize(tailleMinimale);
    resize(tailleDepart);
}

void Horairp::relie()
{
    connect(&m_timer1, &QTimer::timeout, this, &Horairp::compte);
    connect(m_mg->table()->horizontalHeader(), &QHeaderView::sectionClicked, this, &Horairp::trie);
    connect(m_command1, &QPushButton::clicked, this, &Horairp::reject);
    connect(m_command2, &QPushButton::clicked, this, &Horairp::imprime);
    connect(m_apercu, &QPushButton::clicked, this, [this] { m_sortie.apercu(impression()); });
}

void Horairp::compte()
{
    setCursor(Qt::WaitCursor);
    m_pgb->setRange(0, m_session.base.ligmois.recordCount());
    m_rapport = horairesPratiques(m_session, m_debut, m_fin, [this](int lues) { m_pgb->setValue(lues); });
    m_pgb->hide();
    unsetCursor();
    const QString defaut = defautHoraires(m_rapport);
    if (!defaut.isEmpty()) {
        m_session.host.message(defaut, titreNonGenere);
        return reject();
    }
    for (QPushButton *une : {m_command2, m_apercu})
        une->setEnabled(true);
    montre();
}

void Horairp::montre()
{
    m_mg->montre(titresHoraires(), rangeesDe(m_rapport.horaires));
}

/// A click on a title sorts by its column, a second one the other way round.
void Horairp::trie(int colonne)
{
    const auto sens = m_mg->table()->horizontalHeader()->sortIndicatorOrder();
    trieHoraires(m_rapport.horaires, colonne, sens == Qt::AscendingOrder);
    montre();
}

Impression Horairp::impression() const
{
    return impressionHoraires(m_rapport.horaires, m_debut, m_fin, m_session.nometab);
}

/// One copy, on the printer that was chosen last or into a file.
void Horairp::imprime()
{
    const Impression rapport = impression();
    if (m_sortie.prepare(rapport)) m_sortie.imprime(rapport, 1);
}

} // namespace velmora
