#include "month/grid_view.h"

#include "month/cursor.h"
#include "month/grid_headers.h"
#include "month/selection.h"
#include "month/twips.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace velmora
{

namespace
{

// Between a cell and its popup menu, in twips.
constexpr int ecartMenu = 50;

} // namespace

void PeintreCase::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *modele = static_cast<const ModeleGrille *>(index.model());
    peintCase(*painter, option.rect, modele->caseDe(index), Qt::AlignCenter);
}

VueGrille::VueGrille(Planning &planning, QWidget *parent)
    : QTableView(parent), m_planning(planning), m_modele(planning), m_jours(new EnteteJours(m_modele, this)),
      m_lignes(new EnteteLignes(m_modele, this)), m_coin(new CoinGrille(m_modele, *m_jours, this))
{
    setObjectName(QStringLiteral("mg"));
    setAccessibleName(QStringLiteral("Planning du mois"));
    setHorizontalHeader(m_jours);
    setVerticalHeader(m_lignes);
    setModel(&m_modele);
    setItemDelegate(new PeintreCase(this));
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    connect(&m_modele, &ModeleGrille::taillesChangees, this, &VueGrille::appliqueTailles);
    connect(&m_modele, &ModeleGrille::modelReset, this, &VueGrille::suitCurseur);
    connect(m_lignes, &EnteteLignes::nomClique, this, &VueGrille::montreRapport);
}

void VueGrille::appliqueTailles()
{
    const Grille &grille = m_planning.grille;
    for (int colonne = Grille::colonnesFixes; colonne < grille.colonnes(); ++colonne)
        m_jours->resizeSection(ModeleGrille::colonneVue(colonne), pixels(grille.largeur(colonne), *this));
    // Only the rows that differ from the usual height are set one by one.
    int usuelle = grille.hauteur(Grille::lignesFixes);
    for (int ligne = Grille::lignesFixes; ligne < grille.derniereLigne(); ++ligne)
        usuelle = std::min(usuelle, grille.hauteur(ligne));
    m_lignes->setDefaultSectionSize(pixels(usuelle, *this));
    for (int ligne = Grille::lignesFixes; ligne < grille.lignes(); ++ligne) {
        const int section = ModeleGrille::ligneVue(ligne);
        const int hauteur = pixels(grille.hauteur(ligne), *this);
        if (m_lignes->sectionSize(section) != hauteur) m_lignes->resizeSection(section, hauteur);
    }
    m_jours->updateGeometry();
    updateGeometries();
}

void VueGrille::montreGrille()
{
    m_modele.recharge();
    appliqueTailles();
    suitCurseur();
    montreGauche();
}

/// A click on a line's fixed columns asks for its report; the cursor keeps its column.
void VueGrille::montreRapport(int section)
{
    if (!m_planning.suivi) return;
    emit gesteCommence();
    m_planning.rapportdemande = true;
    const QModelIndex but = m_modele.index(section, ModeleGrille::colonneVue(m_planning.curseur.colonne));
    if (but != currentIndex()) return setCurrentIndex(but);
    emit caseQuittee();
    emit caseAtteinte();
}

void VueGrille::montreGauche()
{
    horizontalScrollBar()->setValue(ModeleGrille::colonneVue(m_planning.colonneGauche));
}

bool VueGrille::curseurVisible(int gauche) const
{
    const int debut = m_jours->sectionPosition(ModeleGrille::colonneVue(gauche));
    const int section = ModeleGrille::colonneVue(m_planning.curseur.colonne);
    const int droite = m_jours->sectionPosition(section) + m_jours->sectionSize(section);
    return m_jours->sectionPosition(section) >= debut && droite <= debut + viewport()->width();
}

QModelIndex VueGrille::indexCurseur() const
{
    return m_modele.index(ModeleGrille::ligneVue(m_planning.curseur.ligne),
                          ModeleGrille::colonneVue(m_planning.curseur.colonne));
}

void VueGrille::suitCurseur()
{
    const QScopedValueRollback place(m_place, true);
    const QModelIndex index = indexCurseur();
    setCurrentIndex(index);
    // A cell that shows in part stays where it is: a second click must meet the same day.
    if (!visualRect(index).intersects(viewport()->rect())) scrollTo(index);
}

void VueGrille::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (m_place || !m_planning.suivi || !current.isValid()) return;
    emit caseQuittee();
    m_planning.curseur = {ModeleGrille::ligneGrille(current.row()),
                          ModeleGrille::colonneGrille(current.column())};
    emit caseAtteinte();
}

QModelIndex VueGrille::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const bool ligneEntiere = modifiers & Qt::ControlModifier;
    Place but = m_planning.curseur;
    if (action == MoveHome) {
        but.colonne = premierJourVisible(m_planning);
        if (ligneEntiere) but.ligne = Grille::lignesFixes;
    } else if (action == MoveEnd) {
        but.colonne = dernierJourVisible(m_planning);
        if (ligneEntiere) but.ligne = m_planning.grille.derniereLigne() - 1;
    } else {
        return QTableView::moveCursor(action, modifiers);
    }
    return m_modele.index(ModeleGrille::ligneVue(but.ligne), ModeleGrille::colonneVue(but.colonne));
}

void VueGrille::mousePressEvent(QMouseEvent *event)
{
    emit gesteCommence();
    const QModelIndex dessous = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && dessous.isValid()) {
        QTableView::mousePressEvent(event);
        if (m_planning.grille.estLigne(ModeleGrille::ligneGrille(dessous.row())))
            commenceSelection(m_planning);
        // The move to the cell has started the refresh, which must wait for the end of the drag.
        if (m_planning.selection.selglisse) emit gesteCommence();
    } else if (event->button() == Qt::RightButton && dessous.isValid() && !m_planning.selection.selact) {
        setCurrentIndex(dessous);
        emit sansEffet();
    } else {
        emit sansEffet();
    }
}

void VueGrille::mouseMoveEvent(QMouseEvent *event)
{
    if (m_planning.selection.selglisse && event->buttons() & Qt::LeftButton) glisse(event->pos().x());
}

/// The selection follows the pointer on its own row; past the edge the grid follows too.
void VueGrille::glisse(int x)
{
    // Over the names nothing changes.
    if (x < 0) return;
    if (x >= viewport()->width()) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + 1);
        x = viewport()->width() - 1;
    }
    const int colonne = columnAt(x);
    if (colonne < 0) return;
    glisseSelection(m_planning, ModeleGrille::colonneGrille(colonne));
    viewport()->repaint();
}

void VueGrille::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_planning.selection.selglisse) {
        finitSelection(m_planning);
        const QRect rect = rectCurseur();
        if (m_planning.selection.selact && (rect.right() < 0 || rect.left() >= viewport()->width()))
            horizontalScrollBar()->setValue(ModeleGrille::colonneVue(m_planning.curseur.colonne));
        suitCurseur();
        emit selectionFinie();
    } else if (event->button() == Qt::RightButton && indexAt(event->pos()).isValid()) {
        emit menuDemande(pointMenu());
    }
    QTableView::mouseReleaseEvent(event);
}

/// Right of a cell in the left half of the grid, left of one in the right half, at its top.
QPoint VueGrille::pointMenu() const
{
    const QRect rect = rectCurseur();
    const int ecart = pixels(ecartMenu, *this);
    const bool gauche = rect.left() + m_lignes->width() < width() / 2;
    return viewport()->mapToGlobal(QPoint(gauche ? rect.right() + ecart : rect.left() - ecart, rect.top()));
}

/// The view would take a second click that falls on a neighbour for a new press, whose release the dialog
/// would then swallow.
void VueGrille::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex dessous = indexAt(event->pos());
    if (event->button() != Qt::LeftButton || !dessous.isValid()) return;
    if (dessous != currentIndex())
        mousePressEvent(event);
    else
        emit doubleClic();
}

/// One row a notch, within the lines. A touchpad's parts of a notch add up.
void VueGrille::wheelEvent(QWheelEvent *event)
{
    constexpr int cran = QWheelEvent::DefaultDeltasPerStep;
    if (event->angleDelta().y() == 0) return QTableView::wheelEvent(event);
    event->accept();
    if (!m_planning.suivi) return;
    m_molette += event->angleDelta().y();
    verticalScrollBar()->setValue(verticalScrollBar()->value() - m_molette / cran);
    m_molette %= cran;
}

/// While the button drags, keys are no commands: a selection that a command removes would leave the drag
/// without its anchor.
bool VueGrille::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && m_planning.selection.selglisse) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

/// The view keeps the keys that move the cell, so that the month can be worked in without a mouse; of all
/// others it sees none.
void VueGrille::keyPressEvent(QKeyEvent *event)
{
    if (m_planning.selection.selglisse) return event->accept();
    emit gesteCommence();
    const QString texte = event->text();
    const bool caractere = !texte.isEmpty() && texte.front().isPrint() &&
                           !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (event->key() == Qt::Key_Delete) {
        if (!(event->modifiers() & Qt::ShiftModifier)) emit suppression();
    } else if (caractere) {
        emit touche(texte);
    } else {
        if (!event->matches(QKeySequence::Copy)) QTableView::keyPressEvent(event);
        emit sansEffet();
    }
}

void VueGrille::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    updateGeometries();
}

void VueGrille::updateGeometries()
{
    QTableView::updateGeometries();
    if (!m_coin) return;
    m_coin->setGeometry(m_lignes->x(), m_jours->y(), m_lignes->width(), m_jours->height());
    m_coin->raise();
}

} // namespace velmora
