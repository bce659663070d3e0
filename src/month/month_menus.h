#pragma once

#include "month/commands.h"

#include <QAction>
#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

class QMenu;

namespace velmora
{

struct EntreeMenu;

/// The menu bar of the open month: its entries with their names and captions. An entry is disabled until a
/// command is bound to it.
class MenusMois : public QObject
{
    Q_OBJECT

public:
    explicit MenusMois(QWidget *parent);

    [[nodiscard]] QList<QAction *> barre() const { return m_barre; }
    /// The grid's popup menu.
    [[nodiscard]] QMenu *maca() const { return m_maca; }
    /// The entry of a name, for example "mnusais".
    [[nodiscard]] QAction *entree(const QString &nom) const { return m_entrees.value(nom); }

    /// Binds a command to an entry, which can be used from now on.
    template <class Objet, class Commande> void lie(const QString &nom, Objet *objet, Commande commande)
    {
        connect(entree(nom), &QAction::triggered, objet, commande);
        m_liees << nom;
        entree(nom)->setEnabled(true);
    }

    [[nodiscard]] bool estLiee(const QString &nom) const { return m_liees.contains(nom); }

    /// Opens or closes the menus as a whole, while a cell takes a code.
    void permetMenus(bool permis);

    /// Opens and closes the entries as the commands stand. Undo, redo and absence follow their command too,
    /// as their buttons of the toolbar do.
    void montre(const EtatCommandes &etat);

private:
    void ajouteMenu(const char *nom, const QString &titreMenu, const QList<EntreeMenu> &entrees);
    void ajouteEntree(QMenu *menu, const EntreeMenu &entree);
    void poseRaccourcis();
    void permet(const QString &nom, bool permise);

    QWidget *m_parent;
    QMenu *m_maca;
    QList<QAction *> m_barre;
    QHash<QString, QAction *> m_entrees;
    QStringList m_liees;
    EtatCommandes m_etat; ///< shown last
};

} // namespace velmora
