#include "output/printer.h"

#include <QPagedPaintDevice>

#include <algorithm>

namespace velmora
{

namespace
{

// Printers reach this near to the edge of the paper.
constexpr double margeMm = 6;
// What these margins leave of A4.
constexpr int petitCote = 11225;
constexpr int grandCote = 16157;
constexpr int derniereLigneDebout = 63;
constexpr int derniereLigneCouchee = 45;
constexpr double epaisseurTrait = 10;
constexpr double taillePremiere = 9;
constexpr double tailleMini = 4;
constexpr double pasTaille = 0.25;
// The least spacing, which no eye sees, keeps letters from joining to one sign: words are found in a file.
constexpr double sansLigature = 1 / 64.0;

QFont policeDe(const QString &famille)
{
    QFont police(famille.isEmpty() ? policeParDefaut : famille);
    // The metrics of a page must not depend on any screen.
    police.setHintingPreference(QFont::PreferNoHinting);
    police.setLetterSpacing(QFont::AbsoluteSpacing, sansLigature);
    police.setPixelSize(qRound(taillePremiere * papier::twipsParPoint));
    police.setBold(true);
    return police;
}

} // namespace

Imprimante::Imprimante(QPagedPaintDevice &peripherique, const QString &police, QDateTime moment)
    : m_peripherique(peripherique), m_police(policeDe(police)), m_metrique(m_police),
      m_moment(std::move(moment))
{
}

Imprimante::~Imprimante()
{
    static_cast<void>(termine());
}

void Imprimante::oriente(QPageLayout::Orientation orientation)
{
    if (m_numpage == 0) m_orientation = orientation;
}

void Imprimante::commence()
{
    const QPageLayout page(QPageSize(QPageSize::A4), m_orientation,
                           QMarginsF(margeMm, margeMm, margeMm, margeMm), QPageLayout::Millimeter);
    if (!m_peripherique.setPageLayout(page)) {
        m_peripherique.setPageSize(page.pageSize());
        m_peripherique.setPageOrientation(m_orientation);
    }
    m_faute = !m_peintre.begin(&m_peripherique);
    if (m_faute) return;
    const int resolution = m_peripherique.logicalDpiX();
    const QSizeF place = m_peripherique.pageLayout().paintRectPixels(resolution).size();
    const double echelle = std::min({resolution / double(papier::twipsParPouce),
                                     place.width() / largeurPage(), place.height() / hauteurPage()});
    m_peintre.scale(echelle, echelle);
    m_peintre.setFont(m_police);
    fixeEncre(m_encre);
}

void Imprimante::nouvellePage()
{
    if (m_numpage++ == 0)
        commence();
    else if (m_peintre.isActive())
        m_faute = !m_peripherique.newPage() || m_faute;
}

bool Imprimante::termine()
{
    if (m_peintre.isActive()) m_faute = !m_peintre.end() || m_faute;
    return m_numpage > 0 && !m_faute;
}

int Imprimante::largeurPage() const
{
    return couchee() ? grandCote : petitCote;
}

int Imprimante::hauteurPage() const
{
    return couchee() ? petitCote : grandCote;
}

int Imprimante::derniereLigne() const
{
    return couchee() ? derniereLigneCouchee : derniereLigneDebout;
}

void Imprimante::fixePolice(double taille, bool gras)
{
    const int pixels = qRound(taille * papier::twipsParPoint);
    if (m_police.pixelSize() == pixels && m_police.bold() == gras) return;
    m_police.setPixelSize(pixels);
    m_police.setBold(gras);
    m_metrique = QFontMetricsF(m_police);
    if (m_peintre.isActive()) m_peintre.setFont(m_police);
}

void Imprimante::fixeEncre(QRgb encre)
{
    m_encre = encre;
    if (m_peintre.isActive()) m_peintre.setPen(QPen(QColor(encre), epaisseurTrait));
}

double Imprimante::largeurTexte(const QString &texte) const
{
    return m_metrique.horizontalAdvance(texte);
}

QString Imprimante::abrege(const QString &texte, double largeur) const
{
    return m_metrique.elidedText(texte, Qt::ElideRight, largeur);
}

double Imprimante::taillePour(const QString &texte, double largeur) const
{
    double taille = m_police.pixelSize() / double(papier::twipsParPoint);
    double prise = largeurTexte(texte);
    QFont police = m_police;
    while (taille > tailleMini && prise > largeur) {
        taille -= pasTaille;
        police.setPixelSize(qRound(taille * papier::twipsParPoint));
        prise = QFontMetricsF(police).horizontalAdvance(texte);
    }
    return taille;
}

void Imprimante::ecrit(double gauche, double haut, const QString &texte)
{
    if (m_peintre.isActive() && !texte.isEmpty())
        m_peintre.drawText(QPointF(gauche, haut + m_metrique.ascent()), texte);
}

void Imprimante::trait(double x1, double y1, double x2, double y2)
{
    if (m_peintre.isActive()) m_peintre.drawLine(QLineF(x1, y1, x2, y2));
}

void Imprimante::remplit(const QRectF &rectangle, QRgb couleur)
{
    if (m_peintre.isActive()) m_peintre.fillRect(rectangle, QColor(couleur));
}

} // namespace velmora
