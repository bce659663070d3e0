#include "month/grid_headers.h"

#include "month/twips.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace velmora
{

namespace
{

constexpr QRgb filet = 0xffc9d0d8;
constexpr int marge = 4;

} // namespace

void peintCase(QPainter &painter, const QRect &rect, const Case &une, Qt::Alignment alignement)
{
    painter.fillRect(rect, QColor::fromRgba(une.fond));
    painter.setPen(QColor::fromRgb(filet));
    painter.drawLine(rect.topRight(), rect.bottomRight());
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    if (une.texte.isEmpty()) return;
    painter.setPen(QColor::fromRgb(une.encre));
    if (une.gras) {
        QFont gras = painter.font();
        gras.setBold(true);
        painter.setFont(gras);
    }
    const QRect interieur = rect.adjusted(alignement & Qt::AlignLeft ? marge : 1, 0, -1, -1);
    const QString texte = alignement & Qt::AlignLeft
                              ? painter.fontMetrics().elidedText(une.texte, Qt::ElideRight, interieur.width())
                              : une.texte;
    painter.drawText(interieur, static_cast<int>(alignement), texte);
    if (une.gras) {
        QFont normal = painter.font();
        normal.setBold(false);
        painter.setFont(normal);
    }
}

EnteteJours::EnteteJours(ModeleGrille &modele, QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent), m_modele(modele)
{
    setSectionResizeMode(QHeaderView::Fixed);
    setSectionsClickable(false);
    setHighlightSections(false);
    setMinimumSectionSize(1);
    connect(&modele, &ModeleGrille::enteteChangee, this, [this](Qt::Orientation orientation) {
        if (orientation == Qt::Horizontal) viewport()->update();
    });
}

int EnteteJours::hauteurRangee(int rangee) const
{
    const int lue = m_modele.grille().lignes() > rangee ? m_modele.grille().hauteur(rangee) : 0;
    return qMax(pixels(lue, *this), fontMetrics().height() + marge);
}

QSize EnteteJours::sizeHint() const
{
    int hauteur = 0;
    for (int rangee = 0; rangee < Grille::lignesFixes; ++rangee)
        hauteur += hauteurRangee(rangee);
    return {defaultSectionSize(), hauteur};
}

void EnteteJours::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), QColor::fromRgb(palette::fondFixe));
    int haut = 0;
    for (int rangee = 0; rangee < Grille::lignesFixes; ++rangee) {
        peintRangee(painter, rangee, haut);
        haut += hauteurRangee(rangee);
    }
}

int EnteteJours::finGroupe(int rangee, int section) const
{
    const Grille &grille = m_modele.grille();
    const QString &texte = grille.lit(rangee, ModeleGrille::colonneGrille(section)).texte;
    int fin = section;
    while (fin + 1 < count() && grille.lit(rangee, ModeleGrille::colonneGrille(fin + 1)).texte == texte)
        ++fin;
    return fin;
}

/// The backgrounds of a group, each in its own colour: a month's band may change within a week's label.
void EnteteJours::peintFonds(QPainter &painter, int rangee, int debut, int fin, const QRect &bande) const
{
    for (int section = debut; section <= fin; ++section) {
        const Case &une = m_modele.grille().lit(rangee, ModeleGrille::colonneGrille(section));
        painter.fillRect(sectionViewportPosition(section), bande.top(), sectionSize(section), bande.height(),
                         QColor::fromRgb(une.fond));
    }
}

void EnteteJours::peintRangee(QPainter &painter, int rangee, int haut) const
{
    if (count() == 0) return;
    const int hauteur = hauteurRangee(rangee);
    int section = qMax(visualIndexAt(0), 0);
    while (section < count() && sectionViewportPosition(section) < viewport()->width()) {
        const int fin = finGroupe(rangee, section);
        const int gauche = qMax(sectionViewportPosition(section), 0);
        const int droite = qMin(sectionViewportPosition(fin) + sectionSize(fin), viewport()->width());
        peintFonds(painter, rangee, section, fin, {0, haut, 0, hauteur});
        Case libelle = m_modele.grille().lit(rangee, ModeleGrille::colonneGrille(section));
        libelle.fond = qRgba(0, 0, 0, 0);
        if (droite > gauche)
            peintCase(painter, {gauche, haut, droite - gauche, hauteur}, libelle, Qt::AlignCenter);
        section = fin + 1;
    }
}

EnteteLignes::EnteteLignes(ModeleGrille &modele, QWidget *parent)
    : QHeaderView(Qt::Vertical, parent), m_modele(modele)
{
    setSectionResizeMode(QHeaderView::Fixed);
    setSectionsClickable(false);
    setHighlightSections(false);
    setMinimumSectionSize(1);
    connect(&modele, &ModeleGrille::enteteChangee, this, [this](Qt::Orientation orientation) {
        if (orientation == Qt::Vertical) viewport()->update();
    });
}

QSize EnteteLignes::sizeHint() const
{
    const Grille &grille = m_modele.grille();
    const int largeur =
        grille.colonnes() < Grille::colonnesFixes
            ? 0
            : pixels(grille.largeur(Grille::colonneNom) + grille.largeur(Grille::colonneEtat), *this);
    return {largeur, defaultSectionSize()};
}

void EnteteLignes::paintSection(QPainter *painter, const QRect &rect, int section) const
{
    const Grille &grille = m_modele.grille();
    const int ligne = ModeleGrille::ligneGrille(section);
    const int etat = pixels(grille.largeur(Grille::colonneEtat), *this);
    peintCase(*painter, rect.adjusted(0, 0, -etat, 0), grille.lit(ligne, Grille::colonneNom),
              Qt::AlignLeft | Qt::AlignVCenter);
    peintCase(*painter, {rect.right() - etat + 1, rect.top(), etat, rect.height()},
              grille.lit(ligne, Grille::colonneEtat), Qt::AlignCenter);
}

bool EnteteLignes::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip) return QHeaderView::viewportEvent(event);
    const auto *aide = static_cast<QHelpEvent *>(event);
    const int section = logicalIndexAt(aide->pos());
    if (section >= 0) {
        QToolTip::showText(
            aide->globalPos(),
            m_modele.grille().lit(ModeleGrille::ligneGrille(section), Grille::colonneNom).texte, this);
    }
    return true;
}

void EnteteLignes::mousePressEvent(QMouseEvent *event)
{
    const int section = logicalIndexAt(event->pos());
    if (event->button() == Qt::LeftButton && section >= 0) emit nomClique(section);
}

CoinGrille::CoinGrille(ModeleGrille &modele, const EnteteJours &entete, QWidget *parent)
    : QWidget(parent), m_modele(modele), m_entete(entete)
{
}

void CoinGrille::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    int haut = 0;
    for (int rangee = 0; rangee < Grille::lignesFixes; ++rangee) {
        const int hauteur = m_entete.hauteurRangee(rangee);
        peintCase(painter, {0, haut, width(), hauteur}, m_modele.grille().lit(rangee, Grille::colonneEtat),
                  Qt::AlignCenter);
        haut += hauteur;
    }
}

} // namespace velmora
