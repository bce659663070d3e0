#pragma once

#include <QDateTime>
#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>

class QPagedPaintDevice;

namespace velmora
{

/// Lengths on paper are in twips, 1440 to the inch, from the corner of the printable area. The page grid has
/// ten columns and six lines to the inch, both counted from 1: 78 columns on an upright page, 113 on a lying
/// one.
namespace papier
{
inline constexpr int twipsParPouce = 1440;
inline constexpr int twipsParPoint = 20;
inline constexpr int largeurColonne = twipsParPouce / 10;
inline constexpr int hauteurLigne = twipsParPouce / 6;

/// Left edge of a column and top of a line.
[[nodiscard]] constexpr int x(int colonne)
{
    return (colonne - 1) * largeurColonne;
}
[[nodiscard]] constexpr int y(int ligne)
{
    return (ligne - 1) * hauteurLigne;
}
} // namespace papier

/// The font of a print for which none has been chosen.
inline const QString policeParDefaut = QStringLiteral("Arial");

/// A document on its way to a printer, a PDF file or a preview: A4 pages that are drawn in twips, the same
/// on every device. Where a device's own margins are wider, the page shrinks as a whole, so that nothing is
/// cut off. On a device that doesn't start, everything is passed over in silence and `termine` says so.
class Imprimante
{
public:
    /// `police` is a family; empty stands for the default one. `moment` is when the print began.
    Imprimante(QPagedPaintDevice &peripherique, const QString &police, QDateTime moment);
    /// Ends the document.
    ~Imprimante();
    Imprimante(const Imprimante &) = delete;
    Imprimante &operator=(const Imprimante &) = delete;

    /// How pages stand; only before the first one.
    void oriente(QPageLayout::Orientation orientation);
    /// Begins a page, the first one included.
    void nouvellePage();
    /// Ends the document. False when the device didn't start or gave up.
    [[nodiscard]] bool termine();

    [[nodiscard]] int numpage() const { return m_numpage; }
    [[nodiscard]] const QDateTime &moment() const { return m_moment; }
    [[nodiscard]] bool couchee() const { return m_orientation == QPageLayout::Landscape; }
    [[nodiscard]] int largeurPage() const;
    [[nodiscard]] int hauteurPage() const;
    /// The last line of the page grid that a body uses.
    [[nodiscard]] int derniereLigne() const;

    /// Size in points, for all texts from here on.
    void fixePolice(double taille, bool gras = true);
    /// Colour of texts and rules.
    void fixeEncre(QRgb encre);

    [[nodiscard]] double largeurTexte(const QString &texte) const;
    [[nodiscard]] double hauteurTexte() const { return m_metrique.height(); }
    /// The text, shortened with an ellipsis when it is wider than `largeur`.
    [[nodiscard]] QString abrege(const QString &texte, double largeur) const;
    /// The largest size up to the current one, in points, at which the text isn't wider than `largeur`.
    [[nodiscard]] double taillePour(const QString &texte, double largeur) const;

    /// Writes one line of text with its top left corner at a point.
    void ecrit(double gauche, double haut, const QString &texte);
    void trait(double x1, double y1, double x2, double y2);
    void remplit(const QRectF &rectangle, QRgb couleur);

private:
    void commence();

    QPagedPaintDevice &m_peripherique;
    QPainter m_peintre;
    QFont m_police;
    QFontMetricsF m_metrique;
    QDateTime m_moment;
    QPageLayout::Orientation m_orientation = QPageLayout::Portrait;
    QRgb m_encre = 0xff000000U;
    int m_numpage = 0;
    bool m_faute = false;
};

} // namespace velmora
