#pragma once

#include "month/grid_model.h"

#include <QHeaderView>

namespace velmora
{

/// The grid's three header rows. Equal neighbours are drawn as one cell, whose text stays in view.
class EnteteJours : public QHeaderView
{
    Q_OBJECT

public:
    explicit EnteteJours(ModeleGrille &modele, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    /// Height of a header row in pixels.
    [[nodiscard]] int hauteurRangee(int rangee) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void peintRangee(QPainter &painter, int rangee, int haut) const;
    void peintFonds(QPainter &painter, int rangee, int debut, int fin, const QRect &bande) const;
    [[nodiscard]] int finGroupe(int rangee, int section) const;

    ModeleGrille &m_modele;
};

/// The grid's two fixed columns: the line's name and its state.
class EnteteLignes : public QHeaderView
{
    Q_OBJECT

public:
    explicit EnteteLignes(ModeleGrille &modele, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// The left button went down on a line's name or state.
    void nomClique(int section);

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    ModeleGrille &m_modele;
};

/// Where the fixed rows and columns meet: "N° semaine" and "Jour".
class CoinGrille : public QWidget
{
    Q_OBJECT

public:
    CoinGrille(ModeleGrille &modele, const EnteteJours &entete, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ModeleGrille &m_modele;
    const EnteteJours &m_entete;
};

/// Draws one cell: background, rule at its right and bottom, text.
void peintCase(QPainter &painter, const QRect &rect, const Case &une, Qt::Alignment alignement);

} // namespace velmora
