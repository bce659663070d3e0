#pragma once

#include "folders/month_choice.h"

#include <QListWidget>

namespace velmora
{

/// The list of folders, "Global" first: it would take several rows and is held to one.
class ListeDossiers : public QListWidget
{
    Q_OBJECT

public:
    explicit ListeDossiers(Session &session, QWidget *parent = nullptr);

    /// The row chosen, and its folder: empty for "Global".
    [[nodiscard]] const QString &texte() const { return m_choix.texte(); }
    [[nodiscard]] QString dossier() const { return m_choix.dossier(); }

signals:
    /// A click has chosen a row anew.
    void choisie();

private:
    void clic();
    void selectionne(int ligne);
    [[nodiscard]] QList<bool> lignesChoisies() const;

    ChoixDossier m_choix;
    bool m_pret = true; ///< `pret`: the selection is the user's to change
};

} // namespace velmora
