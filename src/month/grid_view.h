#pragma once

#include "month/grid_model.h"

#include <QStyledItemDelegate>
#include <QTableView>

namespace velmora
{

class CoinGrille;
class EnteteJours;
class EnteteLignes;

/// Paints a cell as the grid holds it; the view's own selection and focus don't show, since the highlight is
/// in the cells' colours.
class PeintreCase : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

/// The month grid `mg`: shows the model and turns the user's moves into cursor moves. What a move ends in is
/// decided by the month form.
class VueGrille : public QTableView
{
    Q_OBJECT

public:
    explicit VueGrille(Planning &planning, QWidget *parent = nullptr);

    /// Shows a grid that was built anew: sizes, cursor and left column.
    void montreGrille();
    /// Puts the view's current cell on the planning's cursor, in view.
    void suitCurseur();
    /// Scrolls to the planning's left column.
    void montreGauche();
    [[nodiscard]] ModeleGrille &modele() { return m_modele; }
    /// The rectangle of the cursor's cell in the viewport.
    [[nodiscard]] QRect rectCurseur() const { return visualRect(indexCurseur()); }
    /// Whether the cursor's column is in view when `gauche` is the first column shown.
    [[nodiscard]] bool curseurVisible(int gauche) const;

signals:
    /// The user moved the cursor to the planning's `curseur`.
    void caseAtteinte();
    /// The cursor leaves its cell for another by the user's doing.
    void caseQuittee();
    void doubleClic();
    /// A button of the mouse went down on the grid, or a key: the refresh waits.
    void gesteCommence();
    /// The gesture is over, or had nothing to act on: the refresh may run.
    void sansEffet();
    /// The left button came up; the selection is what it is now.
    void selectionFinie();
    /// The right button came up on a cell: the popup menu is wanted at this point of the screen.
    void menuDemande(const QPoint &point);
    void suppression();
    /// A key that stands for a character was pressed on the grid.
    void touche(const QString &texte);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void updateGeometries() override;

private:
    void appliqueTailles();
    void glisse(int x);
    void montreRapport(int section);
    [[nodiscard]] QModelIndex indexCurseur() const;
    [[nodiscard]] QPoint pointMenu() const;

    Planning &m_planning;
    ModeleGrille m_modele;
    EnteteJours *m_jours;
    EnteteLignes *m_lignes;
    CoinGrille *m_coin;
    bool m_place = false; // the view is being moved by the program
    int m_molette = 0;    // parts of a notch of the wheel that moved no row yet
};

} // namespace velmora
