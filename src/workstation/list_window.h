#pragma once

#include <QList>
#include <QString>

class QDialog;
class QLayout;
class QListWidget;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace velmora
{

/// The column that a dialog's contents stand in, with the margins of all dialogs.
[[nodiscard]] QVBoxLayout *pageDialogue(QDialog *dialogue);

/// The last row of a dialog: help on the left, which F1 presses too, the ends of the dialog on the right, the
/// first of them the default one. `aide` may be null.
[[nodiscard]] QLayout *rangeeCommandes(QDialog *dialogue, QPushButton *aide,
                                       const QList<QPushButton *> &fins);

/// The controls of a window that keeps a list.
struct FenetreListe {
    QListWidget *liste;
    QWidget *volet; ///< pane of the selected row
    QPushButton *ajouter;
    QPushButton *modifier;
    QPushButton *supprimer;
    QPushButton *terminer;
    QPushButton *aide;
};

/// Lays such a window out: the list with the pane beside it, the commands on the list under the pane. The
/// pane keeps its room while it is hidden, so that nothing moves when a row is selected. `entete` stands
/// above all and may be null.
void disposeListe(QDialog *dialogue, const FenetreListe &fenetre, QWidget *entete = nullptr);

} // namespace velmora
