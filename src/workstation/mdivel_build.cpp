// The main window's menus, toolbar, sliders and centre, as they are built once.
#include "workstation/controls.h"
#include "workstation/icons.h"
#include "workstation/mdivel.h"

#include <QBoxLayout>
#include <QMenuBar>
#include <QSlider>
#include <QStackedWidget>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int maximumh = 200;
constexpr int maximumv = 100;
constexpr int pasCurseur = 2;
constexpr int lettresCurseur = 18;
constexpr QSize tailleDepart(1200, 680);

/// Where the toolbar's groups end.
constexpr Bouton finsDeGroupe[] = {Bouton::Save, Bouton::Zoom, Bouton::Coller, Bouton::Do};

bool finitGroupe(Bouton bouton)
{
    return std::find(std::begin(finsDeGroupe), std::end(finsDeGroupe), bouton) != std::end(finsDeGroupe);
}

} // namespace

Mdivel::Mdivel(Session &session, Ouvertures ouvertures, QWidget *parent)
    : QMainWindow(parent), m_session(session), m_ouvertures(std::move(ouvertures))
{
    setObjectName(QStringLiteral("mdivel"));
    setWindowTitle(QStringLiteral("Velmora: suivi d'heures"));
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
    connect(&m_timer1, &QTimer::timeout, this, &Mdivel::timer1);
    construitMenus();
    construitBarre();
    construitCurseurs();
    construitCentre();
    applique(ToolbarState::withoutMonth());
    montreCurseurs(false);
    resize(tailleDepart);
}

/// The month goes first: what it says as it closes still finds the whole window.
Mdivel::~Mdivel()
{
    delete m_mois.data();
}

void Mdivel::construitMenus()
{
    const Ouvertures &ouvre = m_ouvertures;
    m_menus = {
        menu("mnupla", QStringLiteral("  &Planning"),
             {{"mnuoldfen", QStringLiteral("&Ouvrir un planning (mois)"), &Mdivel::mnuoldfen,
               bool(ouvre.mois), QKeySequence::Open},
              {"mnusave", QStringLiteral("Sauvegarde Fichier"), &Mdivel::mnusave, bool(ouvre.sauvegarde)}}),
        menu(
            "mnupar", QStringLiteral("   &Paramètrage"),
            {{"mnupg", QStringLiteral("Paramètres Généraux"), &Mdivel::mnupg, bool(ouvre.parametres)},
             {"mnudos", QStringLiteral("Dossiers (équipe, groupe..)"), &Mdivel::mnudos, bool(ouvre.dossiers)},
             {"mnucodabs", QStringLiteral("Codes absence"), &Mdivel::mnucodabs, bool(ouvre.codesAbsence)},
             {"mnuferie", QStringLiteral("&Fériés"), &Mdivel::mnuferie, bool(ouvre.feries)}}),
        entree({"mnuferm", QStringLiteral("   &Fermeture"), &Mdivel::mnuferm, true, QKeySequence::Quit}),
        entree({"mnuaid", QStringLiteral("  &?"), &Mdivel::mnuaid, true, QKeySequence::HelpContents}),
    };
    montreMenus(m_menus);
}

QAction *Mdivel::menu(const char *nom, const QString &caption, const QList<Entree> &entrees)
{
    auto *const menu = nomme(new QMenu(caption, this), nom);
    for (const Entree &definition : entrees)
        menu->addAction(entree(definition));
    return menu->menuAction();
}

QAction *Mdivel::entree(const Entree &definition)
{
    auto *const action = nomme(new QAction(definition.caption, this), definition.nom);
    action->setShortcut(definition.raccourci);
    // Leaving works over an open month too, whose menus have taken the place of these.
    if (definition.raccourci == QKeySequence(QKeySequence::Quit)) addAction(action);
    action->setEnabled(definition.disponible);
    connect(action, &QAction::triggered, this, definition.action);
    return action;
}

void Mdivel::montreMenus(const QList<QAction *> &actions)
{
    menuBar()->clear();
    menuBar()->addActions(actions);
}

void Mdivel::construitBarre()
{
    m_toolbar1 = nomme(new QToolBar(this), "Toolbar1");
    m_toolbar1->setWindowTitle(QStringLiteral("Commandes"));
    m_toolbar1->setMovable(false);
    m_toolbar1->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const BoutonDef &definition : boutons())
        ajouteBouton(definition);
    addToolBar(m_toolbar1);
}

void Mdivel::ajouteBouton(const BoutonDef &definition)
{
    QAction *const action = m_toolbar1->addAction(iconeBouton(definition.bouton), definition.bulle);
    action->setObjectName(definition.cle);
    m_toolbar1->widgetForAction(action)->setObjectName(definition.cle);
    connect(action, &QAction::triggered, this, [this, cle = definition.cle] { toolbarClick(cle); });
    m_boutons[static_cast<std::size_t>(definition.bouton)] = action;
    if (finitGroupe(definition.bouton)) m_separateurs << m_toolbar1->addSeparator();
}

void Mdivel::construitCurseurs()
{
    auto *const vide = new QWidget(m_toolbar1);
    vide->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolbar1->addWidget(vide);
    m_hscroll1 = curseur("Frameh", "HScroll1", QStringLiteral("Largeur"));
    m_hscroll1->setRange(0, maximumh);
    m_hscroll1->setValue(departh);
    m_vscroll1 = curseur("Framev", "VScroll1", QStringLiteral("Hauteur"));
    m_vscroll1->setRange(0, maximumv);
    m_vscroll1->setValue(departv);
    connect(m_hscroll1, &QSlider::valueChanged, this, &Mdivel::hscroll1Change);
    connect(m_vscroll1, &QSlider::valueChanged, this, &Mdivel::vscroll1Change);
}

/// A slider under its caption in its frame. It acts once a drag has ended: a month of many lines takes its
/// time to be laid out.
QSlider *Mdivel::curseur(const char *nomCadre, const char *nom, const QString &caption)
{
    auto *const cadre = nomme(new QFrame(m_toolbar1), nomCadre);
    cadre->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    auto *const titreCadre = new QLabel(caption, cadre);
    auto *const slider = nomme(new QSlider(Qt::Horizontal, cadre), nom);
    slider->setSingleStep(pasCurseur);
    slider->setPageStep(pasCurseur);
    slider->setTracking(false);
    slider->setAccessibleName(caption);
    slider->setFixedWidth(fontMetrics().averageCharWidth() * lettresCurseur);
    auto *const ligne = new QHBoxLayout(cadre);
    ligne->setContentsMargins(fontMetrics().averageCharWidth(), 0, fontMetrics().averageCharWidth(), 0);
    ligne->addWidget(titreCadre);
    ligne->addWidget(slider);
    m_cadres << m_toolbar1->addWidget(cadre);
    return slider;
}

void Mdivel::montreCurseurs(bool visibles)
{
    for (QAction *cadre : m_cadres)
        cadre->setVisible(visibles);
}

void Mdivel::construitCentre()
{
    m_centre = new QStackedWidget(this);
    m_centre->addWidget(construitAccueil());
    setCentralWidget(m_centre);
}

/// What stands in the window while no month is open: the way to one.
QWidget *Mdivel::construitAccueil()
{
    auto *const page = new QWidget(m_centre);
    auto *const image = new QLabel(page);
    image->setPixmap(iconeVelmora().pixmap(3 * style()->pixelMetric(QStyle::PM_LargeIconSize)));
    image->setAlignment(Qt::AlignCenter);
    auto *const ouvrir = new QPushButton(iconeBouton(Bouton::Open), boutons().front().bulle, page);
    ouvrir->setObjectName(QStringLiteral("accueilOuvrir"));
    ouvrir->setMinimumHeight(fontMetrics().height() * 2);
    ouvrir->setEnabled(bool(m_ouvertures.mois));
    connect(ouvrir, &QPushButton::clicked, this, &Mdivel::mnuoldfen);
    auto *const colonne = new QVBoxLayout(page);
    colonne->setSpacing(fontMetrics().height());
    colonne->addStretch(2);
    colonne->addWidget(image);
    colonne->addWidget(ouvrir, 0, Qt::AlignHCenter);
    colonne->addStretch(3);
    return page;
}

void Mdivel::applique(const ToolbarState &state)
{
    m_etat = state;
    for (const BoutonDef &definition : boutons()) {
        QAction *const action = m_boutons[static_cast<std::size_t>(definition.bouton)];
        action->setVisible(state[definition.bouton].visible);
        action->setEnabled(state[definition.bouton].enabled);
    }
    for (QAction *separateur : m_separateurs)
        separateur->setVisible(state[Bouton::Absence].visible);
    if (!m_ouvertures.sauvegarde) m_boutons[static_cast<std::size_t>(Bouton::Save)]->setEnabled(false);
}

void Mdivel::changeBulle(const QString &cle, const QString &bulle)
{
    if (const auto bouton = boutonDeCle(cle)) m_boutons[static_cast<std::size_t>(*bouton)]->setText(bulle);
}

} // namespace velmora
