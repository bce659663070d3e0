#include "month/fplan.h"

#include "entry/partielm.h"
#include "entry/storing.h"
#include "journal/replay.h"
#include "month/clipboard.h"
#include "month/cursor.h"
#include "month/deletion.h"
#include "month/loading.h"
#include "month/refresh.h"
#include "month/rows.h"
#include "month/selection.h"
#include "month/twips.h"
#include "session/help.h"
#include "session/opening.h"
#include "session/records.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QProgressBar>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto apresAffichage = 5ms;
constexpr auto apresEvenement = 1ms;
// Sizes are taken from these texts.
constexpr const char *texteLargeur = "[10h40-20h40]";
constexpr const char *texteHauteur = "3W";
constexpr int margeLargeur = 300;
constexpr int margeHauteur = 100;
// The progress bar's maximum is the count of lines and this.
constexpr int margeProgres = 5;
// Keys that begin the entry of a code in a cell.
constexpr ushort premiereTouche = 47;
constexpr ushort derniereTouche = 122;

/// The entry of the menus that each button of the toolbar stands for.
const QHash<Bouton, QString> &commandesBoutons()
{
    static const QHash<Bouton, QString> entrees{
        {Bouton::Absence, QStringLiteral("mnuabs")},   {Bouton::Imprimer, QStringLiteral("mnuimpi")},
        {Bouton::Zoom, QStringLiteral("mnuzoom")},     {Bouton::Couper, QStringLiteral("mnucoupe")},
        {Bouton::Copier, QStringLiteral("mnucopier")}, {Bouton::Coller, QStringLiteral("mnucoller")},
        {Bouton::Undo, QStringLiteral("mnuundo")},     {Bouton::Do, QStringLiteral("mnudo")}};
    return entrees;
}

} // namespace

Fplan::Fplan(Session &session, QWidget *parent)
    : MonthView(parent), m_session(session), m_planning(session, session.moisvue, session.anvue),
      m_menus(this), m_label1(etiquette(this, "Label1", QStringLiteral("Planning"))),
      m_dossier(etiquette(this, "dossier", {})), m_date(etiquette(this, "date", {})),
      m_statut(etiquette(this, "statut", {})), m_pgb(nomme(new QProgressBar(this), "Pgb")),
      m_mg(new VueGrille(m_planning, this)), m_code(new SaisieCode(m_mg->viewport(), this)),
      m_maca(m_menus.maca())
{
    setObjectName(QStringLiteral("Fplan"));
    setWindowTitle(QStringLiteral("Planning mois"));
    m_session.moisouvert = true;
    m_session.pagecourante = QStringLiteral("sommaire.htm");
    construit();
    relie();
    m_timer1.start(apresAffichage);
}

Fplan::~Fplan()
{
    ferme();
    // The view reads the planning to its last event.
    delete m_mg;
}

void Fplan::construit()
{
    mesure();
    construitEntete();
    auto *titres = new QHBoxLayout;
    titres->addWidget(m_label1);
    titres->addStretch();
    titres->addWidget(m_pgb);
    titres->addWidget(m_dossier);
    auto *etat = new QHBoxLayout;
    etat->addWidget(m_date);
    etat->addWidget(m_statut, 1);
    etat->addWidget(m_code->frame2(), 1);
    auto *colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(6, 4, 6, 4);
    colonne->addLayout(titres);
    colonne->addWidget(zoneGrille(), 1);
    colonne->addLayout(etat);
}

void Fplan::construitEntete()
{
    const Periode &periode = m_planning.periode;
    m_label1->setText(m_label1->text() + QStringLiteral(" du ") + Foncgen::dtoc(periode.debgrille) +
                      QStringLiteral(" au ") + Foncgen::dtoc(periode.fingrille));
    QFont gras = m_label1->font();
    gras.setBold(true);
    m_label1->setFont(gras);
    if (!m_session.dossiervue.isEmpty())
        m_dossier->setText(QStringLiteral("Dossier : ") + m_session.dossiervue);
    m_statut->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A long text must not widen the window.
    m_statut->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_statut->setMinimumHeight(m_statut->fontMetrics().height());
    m_pgb->setTextVisible(false);
    m_pgb->setMaximumWidth(pixels(4000, *this));
    m_mg->setVisible(compteLignes(m_session, periode) > 0);
}

void Fplan::mesure()
{
    const QFontMetricsF metrique(m_mg->font(), m_mg);
    m_planning.mesures.largcol =
        twips(metrique.horizontalAdvance(QLatin1String(texteLargeur)), *this) + margeLargeur;
    m_planning.mesures.hautentete = twips(metrique.height(), *this) + margeHauteur;
    m_planning.mesures.hautligne =
        2 * twips(metrique.boundingRect(QLatin1String(texteHauteur)).height(), *this) + margeHauteur;
}

void Fplan::relie()
{
    nomme(&m_timer1, "Timer1")->setSingleShot(true);
    nomme(&m_timer2, "Timer2")->setSingleShot(true);
    nomme(&m_timer3, "Timer3")->setSingleShot(true);
    connect(&m_timer1, &QTimer::timeout, this, &Fplan::charge);
    connect(&m_timer2, &QTimer::timeout, this, &Fplan::rafraichit);
    connect(&m_timer3, &QTimer::timeout, this, &Fplan::execute);
    relieGrille();
    relieMenus();
}

void Fplan::relieGrille()
{
    connect(m_mg, &VueGrille::gesteCommence, &m_timer2, &QTimer::stop);
    connect(m_mg, &VueGrille::caseQuittee, this, [this] {
        if (m_planning.selection.selact) selvide(m_planning);
    });
    connect(m_mg, &VueGrille::caseAtteinte, this, &Fplan::celluleAtteinte);
    connect(m_mg, &VueGrille::selectionFinie, this, &Fplan::celluleAtteinte);
    connect(m_mg, &VueGrille::doubleClic, this, &Fplan::saisitHeures);
    connect(m_mg, &VueGrille::touche, this, &Fplan::touchePressee);
    connect(m_mg, &VueGrille::suppression, this, [this] {
        positionneLigne();
        if (jourDeLigne(m_planning))
            supprime();
        else
            lanceCycle();
    });
    connect(m_mg, &VueGrille::sansEffet, this, &Fplan::lanceCycle);
    connect(m_mg, &VueGrille::menuDemande, this, &Fplan::montreMenuGrille);
}

void Fplan::lanceCycle()
{
    m_timer2.start(apresEvenement);
}

void Fplan::celluleAtteinte()
{
    entreCellule(m_planning);
    m_mg->suitCurseur();
    lanceCycle();
}

/// Puts `ligmois` on the line of the current cell: the refresh cycle may not have run since the last move.
/// False when the line is gone; `ligmois` then stays where it was.
bool Fplan::positionneLigne()
{
    m_session.base.ligmois.setIndex("ligmois01");
    return m_session.base.ligmois.seek(store::Cmp::Eq,
                                       {m_planning.grille.numligne(m_planning.curseur.ligne)});
}

void Fplan::refaitLigne(int ligne)
{
    majligne(m_planning, m_planning.grille.numligne(ligne), ligne);
}

void Fplan::montreMenuGrille(const QPoint &point)
{
    if (m_maca->isEnabled() && !m_maca->isEmpty()) m_maca->popup(point);
}

void Fplan::relieMenus()
{
    m_menus.lie(QStringLiteral("mnuhm"), this, [this] { choisitTotaux(false); });
    m_menus.lie(QStringLiteral("mnucent"), this, [this] { choisitTotaux(true); });
    for (const auto &nom : {QStringLiteral("mnucoupe"), QStringLiteral("maccoupe")})
        m_menus.lie(nom, this, [this] { copie(true); });
    for (const auto &nom : {QStringLiteral("mnucopier"), QStringLiteral("maccopier")})
        m_menus.lie(nom, this, [this] { copie(false); });
    for (const auto &nom : {QStringLiteral("mnucoller"), QStringLiteral("maccolle")})
        m_menus.lie(nom, this, &Fplan::colle);
    m_menus.lie(QStringLiteral("mnuundo"), this, [this] { rejoue(annulop); });
    m_menus.lie(QStringLiteral("mnudo"), this, [this] { rejoue(refaitop); });
    m_menus.lie(QStringLiteral("mnusup"), this, &Fplan::supprime);
    m_menus.lie(QStringLiteral("mnusais"), this, &Fplan::saisitHeures);
    relieLignes();
    relieAbsences();
    relieSorties();
    relieZoom();
    m_menus.lie(QStringLiteral("mnuaid"), this,
                [this] { ouvreaide(m_session, QStringLiteral("sommaire.htm")); });
    relieImpressions();
    m_menus.lie(QStringLiteral("mnuferm"), this, [this] { close(); });
}

QList<QAction *> Fplan::menuBarActions() const
{
    return m_menus.barre();
}

void Fplan::charge()
{
    m_pgb->setRange(0, compteLignes(m_session, m_planning.periode) + margeProgres);
    m_pgb->setValue(1);
    const Chargement chargement{.progres = [this](int valeur) { m_pgb->setValue(valeur); },
                                .nouvelleligne = [this] { return ligneDuMoisVide(); }};
    m_mg->hide();
    if (!chargi(m_planning, chargement)) {
        close();
        return;
    }
    m_pgb->hide();
    m_mg->montreGrille();
    m_mg->show();
    m_planning.colonneGauche =
        ajusteGauche(m_planning, [this](int gauche) { return m_mg->curseurVisible(gauche); });
    m_mg->montreGauche();
    montreCommandes();
    emit ready();
    m_timer2.start(apresEvenement);
}

void Fplan::rafraichit()
{
    // A report keeps the cycle waiting; the month may be gone when it returns.
    const QPointer<Fplan> vivante(this);
    cycle(
        m_planning,
        [this] {
            m_date->setText(QStringLiteral("le :") + Foncgen::dtoc(m_planning.dateStatut));
            m_statut->setText(m_planning.texteStatut);
            m_statut->setToolTip(m_planning.texteStatut.toHtmlEscaped());
        },
        [this] { montreCommandes(); });
    if (!vivante || m_ferme) return;
    montreZoom();
    if (m_mg->isVisible() && m_mg->isEnabled()) m_mg->setFocus();
}

void Fplan::montreCommandes()
{
    m_menus.montre(m_planning.commandes);
    ToolbarState state = ToolbarState::onRefresh(m_planning.commandes);
    for (auto commande = commandesBoutons().begin(); commande != commandesBoutons().end(); ++commande)
        if (!m_menus.estLiee(commande.value())) state = state.without(commande.key());
    emit commandsChanged(state);
}

void Fplan::command(const QString &cle)
{
    m_cle = cle;
    m_timer3.start(apresAffichage);
}

void Fplan::execute()
{
    const auto bouton = boutonDeCle(m_cle);
    if (!bouton || !commandesBoutons().contains(*bouton)) return;
    const bool quitteZoom = *bouton == Bouton::Zoom && m_zoomact;
    m_menus.entree(quitteZoom ? QStringLiteral("mnuaffnorm") : commandesBoutons().value(*bouton))->trigger();
}

void Fplan::saisitHeures()
{
    const Place place = m_planning.curseur;
    if (!m_planning.grille.estLigne(place.ligne)) return lanceCycle();
    const int nump = m_planning.grille.numligne(place.ligne);
    const Selection &selection = m_planning.selection;
    const auto fin = selection.selact ? std::optional(m_planning.date(selection.selfin)) : std::nullopt;
    positionneLigne();
    if (prepareSaisie(m_session, m_planning.grille.lit(place.ligne, Grille::colonneNom).texte, nump,
                      m_planning.date(place.colonne), fin)) {
        m_timer2.stop();
        m_timer3.stop();
        m_planning.suivi = false;
        Partielm dialogue(
            m_session,
            [this](const JourneeSaisie &journee, const JourSit &jour) {
                return ecrihor(m_session, journee, jour);
            },
            this);
        dialogue.exec();
        if (m_ferme) return;
        refaitLigne(place.ligne);
    }
    lanceCycle();
}

void Fplan::copie(bool coupe)
{
    m_timer2.stop();
    positionneLigne();
    m_planning.pressepapiers.clipcoupe = coupe;
    clipcopie(m_planning,
              [this] { emit tipChanged(QStringLiteral("Coller"), m_planning.pressepapiers.infobulle); });
    lanceCycle();
}

void Fplan::colle()
{
    m_timer2.stop();
    positionneLigne();
    clipcolle(m_planning);
    celluleAtteinte();
}

void Fplan::supprime()
{
    m_timer2.stop();
    positionneLigne();
    m_mg->setCursor(Qt::WaitCursor);
    supcell(m_planning);
    m_mg->unsetCursor();
    celluleAtteinte();
}

void Fplan::rejoue(bool (*replay)(Session &))
{
    m_timer2.stop();
    replay(m_session);
    refaitLignesRejouees(m_planning);
    celluleAtteinte();
}

void Fplan::touchePressee(const QString &texte)
{
    m_timer2.stop();
    positionneLigne();
    const ushort code = texte.front().unicode();
    if (texte == QLatin1String("*"))
        saisitHeures();
    else if (code >= premiereTouche && code <= derniereTouche && jourDeLigne(m_planning))
        commenceCode(texte);
    else
        lanceCycle();
}

void Fplan::commenceCode(const QString &touche)
{
    const Place place = m_planning.curseur;
    m_mg->suitCurseur();
    m_planning.suivi = false;
    m_mg->setEnabled(false);
    m_menus.permetMenus(false);
    m_date->hide();
    m_statut->hide();
    emit commandsChanged(ToolbarState::onRefresh(m_planning.commandes).allOff());
    m_code->commence(m_mg->rectCurseur(), touche,
                     m_planning.grille.lit(place.ligne, Grille::colonneNom).texte +
                         QStringLiteral("  à dater ") + Foncgen::dtoc(m_planning.date(place.colonne)));
}

void Fplan::finitCode()
{
    m_code->termine();
    m_mg->setEnabled(true);
    m_menus.permetMenus(true);
    m_date->show();
    m_statut->show();
    m_planning.suivi = true;
    lanceCycle();
}

void Fplan::choisitTotaux(bool centiemes)
{
    choisitCentiemes(m_planning, centiemes);
    lanceCycle();
}

bool Fplan::stretchColumns(int twips)
{
    const bool etirees = etireColonnes(m_planning.grille, twips);
    m_code->place(m_mg->rectCurseur());
    return etirees;
}

void Fplan::stretchRows(int twips)
{
    etireLignes(m_planning.grille, twips);
    m_code->place(m_mg->rectCurseur());
}

void Fplan::closeEvent(QCloseEvent *event)
{
    event->accept();
    ferme();
}

void Fplan::ferme()
{
    if (std::exchange(m_ferme, true)) return;
    m_timer1.stop();
    m_timer2.stop();
    m_timer3.stop();
    m_session.moisouvert = false;
    m_session.pagecourante = QStringLiteral("accueil.htm");
    videsitco(m_session);
    emit closed();
}

} // namespace velmora
