#pragma once

#include "month/day_bars.h"

#include <QAbstractTableModel>
#include <QFrame>

#include <functional>

class QHeaderView;
class QScrollBar;
class QTableView;

namespace velmora
{

/// A row of a table of bars.
struct RangeeBarres {
    QStringList textes;
    std::vector<Barre> barres;
};

/// The texts of a table of bars as a model.
class ModeleBarres : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void montre(const QStringList &titres, std::vector<RangeeBarres> rangees);
    void aligne(int colonne, Qt::Alignment alignement) { m_alignements.insert(colonne, alignement); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] const RangeeBarres &rangee(int ligne) const
    {
        return m_rangees[static_cast<std::size_t>(ligne)];
    }

private:
    QStringList m_titres;
    std::vector<RangeeBarres> m_rangees;
    QHash<int, Qt::Alignment> m_alignements;
};

/// The hours over the bars.
class VueEchelle : public QWidget
{
public:
    VueEchelle(const Graduations &graduations, QWidget *parent);

    /// A picture of the scale shown in place of the drawn one.
    void prend(const QPixmap &image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Graduations &m_graduations;
    QPixmap m_image;
};

/// The bars of the rows that a table shows, each beside its row.
class VueBarres : public QWidget
{
    Q_OBJECT

public:
    VueBarres(const QTableView &table, const ModeleBarres &modele, QWidget *parent);

signals:
    void rangeeCliquee(int ligne);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    const QTableView &m_table;
    const ModeleBarres &m_modele;
};

/// A table with a bar for each row at its right, under a scale of hours. They scroll together.
class TableauBarres : public QFrame
{
    Q_OBJECT

public:
    /// Names of the table, of the bars and of the scale.
    struct Noms {
        const char *table;
        const char *barres;
        const char *echelle;
    };

    TableauBarres(const Noms &noms, const Graduations &graduations, QWidget *parent);

    void montre(const QStringList &titres, std::vector<RangeeBarres> rangees);
    /// Height of the head with the scale, in pixels; its texts always fit.
    void fixeEntete(int hauteur);
    /// Makes each column as wide as its title, or as so many pixels, and the table as wide as its columns.
    void serreColonnes(int largeur);
    /// Gives a row the selection and brings it into view; -1 takes the selection away.
    void designe(int ligne);
    /// Scrolls so that a row is the first in view, as far as the table goes.
    void commenceA(int ligne);

    [[nodiscard]] QTableView *table() const { return m_table; }
    [[nodiscard]] VueEchelle *echelle() const { return m_echelle; }
    [[nodiscard]] ModeleBarres &modele() { return m_modele; }

signals:
    /// The left button went down on a row or on its bar.
    void rangeeCliquee(int ligne);

private:
    void construitTable(const char *nom);
    void dispose();
    void relieDefilement();

    ModeleBarres m_modele;
    QTableView *m_table;
    VueEchelle *m_echelle;
    VueBarres *m_barres;
    QScrollBar *m_defilement;
};

/// Labelled samples of the colours of the bars.
[[nodiscard]] QWidget *legendeBarres(QWidget *parent);

} // namespace velmora
