#include "folders/folder_choice.h"

#include <QScopedValueRollback>

namespace velmora
{

namespace
{

constexpr int lettresDossier = 32;

} // namespace

ListeDossiers::ListeDossiers(Session &session, QWidget *parent)
    : QListWidget(parent), m_choix(lignesDossiers(session))
{
    setObjectName(QStringLiteral("List1"));
    setSelectionMode(QAbstractItemView::MultiSelection);
    setSpacing(fontMetrics().height() / 8);
    setMinimumWidth(fontMetrics().averageCharWidth() * lettresDossier);
    addItems(m_choix.lignes());
    selectionne(m_choix.selligne());
    connect(this, &QListWidget::itemSelectionChanged, this, &ListeDossiers::clic);
}

void ListeDossiers::clic()
{
    if (!m_pret) return;
    const QScopedValueRollback enCours(m_pret, false);
    if (m_choix.clic(lignesChoisies())) emit choisie();
    selectionne(m_choix.selligne());
}

void ListeDossiers::selectionne(int ligne)
{
    clearSelection();
    item(ligne)->setSelected(true);
}

QList<bool> ListeDossiers::lignesChoisies() const
{
    QList<bool> choisies;
    for (int ligne = 0; ligne < count(); ++ligne)
        choisies << item(ligne)->isSelected();
    return choisies;
}

} // namespace velmora
