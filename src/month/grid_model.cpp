#include "month/grid_model.h"

#include <algorithm>

namespace velmora
{

ModeleGrille::ModeleGrille(Planning &planning, QObject *parent)
    : QAbstractTableModel(parent), m_planning(planning)
{
    planning.grille.surChangement = [this](const Plage &plage) { change(plage); };
    planning.grille.surTaille = [this] { emit taillesChangees(); };
    planning.grille.surLignes = [this] { recharge(); };
}

int ModeleGrille::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : grille().lignes() - Grille::lignesFixes;
}

int ModeleGrille::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : grille().colonnes() - Grille::colonnesFixes;
}

const Case &ModeleGrille::caseDe(const QModelIndex &index) const
{
    return grille().lit(ligneGrille(index.row()), colonneGrille(index.column()));
}

QVariant ModeleGrille::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Case &une = caseDe(index);
    switch (role) {
    case Qt::DisplayRole: return une.texte;
    case Qt::BackgroundRole: return QColor::fromRgb(une.fond);
    case Qt::ForegroundRole: return QColor::fromRgb(une.encre);
    case Qt::TextAlignmentRole: return QVariant(Qt::AlignCenter);
    case Qt::AccessibleTextRole:
        return grille().lit(ligneGrille(index.row()), Grille::colonneNom).texte + QLatin1Char(' ') +
               grille().lit(Grille::ligneJour, colonneGrille(index.column())).texte + QLatin1Char(' ') +
               une.texte;
    default: return {};
    }
}

QVariant ModeleGrille::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    const int sections = orientation == Qt::Horizontal ? columnCount() : rowCount();
    if (section < 0 || section >= sections) return {};
    if (orientation == Qt::Horizontal) return grille().lit(Grille::ligneJour, colonneGrille(section)).texte;
    const int ligne = ligneGrille(section);
    const QString &nom = grille().lit(ligne, Grille::colonneNom).texte;
    const QString &etat = grille().lit(ligne, Grille::colonneEtat).texte;
    return role == Qt::DisplayRole || etat.isEmpty() ? nom : nom + QLatin1Char(' ') + etat;
}

void ModeleGrille::recharge()
{
    beginResetModel();
    endResetModel();
}

void ModeleGrille::change(const Plage &plage)
{
    if (plage.ligne1 < Grille::lignesFixes) emit enteteChangee(Qt::Horizontal);
    if (plage.colonne1 < Grille::colonnesFixes) emit enteteChangee(Qt::Vertical);
    const int ligne = std::max(ligneVue(plage.ligne1), 0);
    const int colonne = std::max(colonneVue(plage.colonne1), 0);
    if (plage.ligne2 < Grille::lignesFixes || plage.colonne2 < Grille::colonnesFixes) return;
    emit dataChanged(index(ligne, colonne), index(ligneVue(plage.ligne2), colonneVue(plage.colonne2)));
}

} // namespace velmora
