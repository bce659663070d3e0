#pragma once

#include "month/planning.h"

#include <QAbstractTableModel>

namespace velmora
{

/// The grid's lines and totals as a table model for a view: the fixed rows and columns are left to the
/// headers. This is the one place where grid rows and columns meet those of the view.
class ModeleGrille : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ModeleGrille(Planning &planning, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] static int ligneGrille(int ligneVue) { return ligneVue + Grille::lignesFixes; }
    [[nodiscard]] static int colonneGrille(int colonneVue) { return colonneVue + Grille::colonnesFixes; }
    [[nodiscard]] static int ligneVue(int ligneGrille) { return ligneGrille - Grille::lignesFixes; }
    [[nodiscard]] static int colonneVue(int colonneGrille) { return colonneGrille - Grille::colonnesFixes; }

    /// The cell of the grid, for a delegate that paints it without going through variants.
    [[nodiscard]] const Case &caseDe(const QModelIndex &index) const;
    [[nodiscard]] const Grille &grille() const { return m_planning.grille; }

    /// The grid was built anew.
    void recharge();

signals:
    /// Fixed cells changed: header rows (horizontal) or name and state columns (vertical).
    void enteteChangee(Qt::Orientation orientation);
    void taillesChangees();

private:
    void change(const Plage &plage);

    Planning &m_planning;
};

} // namespace velmora
