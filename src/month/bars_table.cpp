#include "month/bars_table.h"

#include "month/palette.h"
#include "workstation/controls.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>

#include <algorithm>

namespace velmora
{

namespace
{

constexpr int pasTrait = 60;
constexpr int hauteurTrait = 4;
constexpr int margeRangee = 3; // above and below a bar
constexpr int margeTexte = 6;
constexpr int coteLegende = 11;
constexpr int partTable = 2; // of the width, to that of the bars
constexpr int partBarres = 3;

QColor fondBarre(const Barre &barre)
{
    switch (barre.sorte) {
    case SorteBarre::Travail: return QColor(palette::barreTravail);
    case SorteBarre::Coupe:
    case SorteBarre::CoupeNuit: return QColor(palette::barreCoupe);
    case SorteBarre::Nuit: return QColor(palette::barreNuit);
    case SorteBarre::Absence: break;
    }
    return QColor(barre.fond);
}

void peintBarre(QPainter &painter, const QRect &rangee, const Barre &barre)
{
    const int gauche = pixelDe(barre.de, rangee.width());
    const int droite = pixelDe(barre.a, rangee.width());
    QRect place(rangee.left() + gauche, rangee.top() + margeRangee, droite - gauche,
                rangee.height() - 2 * margeRangee);
    const bool coupe = barre.sorte == SorteBarre::Coupe || barre.sorte == SorteBarre::CoupeNuit;
    // A cut is a thread between the work on its two sides.
    if (coupe) place.adjust(0, place.height() / 3, 0, -place.height() / 3);
    painter.fillRect(place, fondBarre(barre));
    if (barre.texte.isEmpty()) return;
    painter.setPen(QColor(barre.encre));
    const QRect texte = place.adjusted(margeTexte, 0, -margeTexte, 0);
    painter.drawText(texte, Qt::AlignVCenter | Qt::AlignRight,
                     painter.fontMetrics().elidedText(barre.texte, Qt::ElideRight, texte.width()));
}

QWidget *echantillon(QWidget *parent, QRgb couleur, const QString &texte)
{
    auto *const paire = new QWidget(parent);
    QPixmap carre(coteLegende, coteLegende);
    carre.fill(QColor(couleur));
    auto *const image = new QLabel(paire);
    image->setPixmap(carre);
    auto *const ligne = new QHBoxLayout(paire);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->addWidget(image);
    ligne->addWidget(new QLabel(texte, paire));
    return paire;
}

} // namespace

void ModeleBarres::montre(const QStringList &titres, std::vector<RangeeBarres> rangees)
{
    const bool memeForme = titres.size() == m_titres.size() && rangees.size() == m_rangees.size();
    // With the same rows the view keeps its place.
    if (!memeForme) beginResetModel();
    m_titres = titres;
    m_rangees = std::move(rangees);
    if (!memeForme) return endResetModel();
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int ModeleBarres::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rangees.size());
}

int ModeleBarres::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_titres.size());
}

QVariant ModeleBarres::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role == Qt::DisplayRole) return rangee(index.row()).textes.value(index.column());
    if (role == Qt::TextAlignmentRole)
        return QVariant(m_alignements.value(index.column(), Qt::AlignVCenter | Qt::AlignLeft));
    return {};
}

QVariant ModeleBarres::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::DisplayRole) return m_titres.value(section);
    if (role == Qt::TextAlignmentRole)
        return QVariant(m_alignements.value(section, Qt::AlignVCenter | Qt::AlignLeft));
    return {};
}

VueEchelle::VueEchelle(const Graduations &graduations, QWidget *parent)
    : QWidget(parent), m_graduations(graduations)
{
}

void VueEchelle::prend(const QPixmap &image)
{
    m_image = image;
    update();
}

void VueEchelle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(palette::fondFixe));
    if (!m_image.isNull()) return painter.drawPixmap(rect(), m_image);
    painter.setPen(QColor(palette::traitEchelle));
    for (int position = pasTrait; position < minutesParJour; position += pasTrait) {
        const int x = pixelDe(position, width());
        painter.drawLine(x, height() - hauteurTrait, x, height());
    }
    painter.setPen(QColor(palette::encreFixe));
    const QFontMetrics metrique = painter.fontMetrics();
    for (const Graduation &graduation : m_graduations) {
        const QString heure = QString::fromLatin1(graduation.heure);
        const int x = pixelDe(graduation.position, width()) - metrique.horizontalAdvance(heure) / 2;
        painter.drawText(x, (height() - hauteurTrait + metrique.ascent() - metrique.descent()) / 2, heure);
    }
}

VueBarres::VueBarres(const QTableView &table, const ModeleBarres &modele, QWidget *parent)
    : QWidget(parent), m_table(table), m_modele(modele)
{
    connect(&modele, &QAbstractItemModel::dataChanged, this, [this] { update(); });
    connect(&modele, &QAbstractItemModel::modelReset, this, [this] { update(); });
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { update(); });
}

void VueBarres::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(palette::fond));
    const int derniere = m_table.rowAt(height() - 1);
    const int fin = derniere < 0 ? m_modele.rowCount() - 1 : derniere;
    for (int ligne = std::max(m_table.rowAt(0), 0); ligne <= fin; ++ligne) {
        const QRect rangee(0, m_table.rowViewportPosition(ligne), width(), m_table.rowHeight(ligne));
        painter.setPen(QColor(palette::traitHeure));
        painter.drawLine(rangee.bottomLeft(), rangee.bottomRight());
        if (m_table.selectionModel()->isRowSelected(ligne))
            painter.fillRect(rangee.adjusted(0, 0, 0, -1), QColor(palette::fondTotal));
        for (int position = pasTrait; position < minutesParJour; position += pasTrait) {
            const int x = pixelDe(position, width());
            painter.drawLine(x, rangee.top(), x, rangee.bottom());
        }
        for (const Barre &barre : m_modele.rangee(ligne).barres)
            peintBarre(painter, rangee, barre);
    }
}

/// The tip tells what the texts of the row do: a bar may be far from them.
bool VueBarres::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto *aide = static_cast<QHelpEvent *>(event);
    const int ligne = m_table.rowAt(aide->y());
    const QStringList textes = ligne < 0 ? QStringList() : m_modele.rangee(ligne).textes;
    QStringList visibles;
    for (int colonne = 0; colonne < textes.size(); ++colonne)
        if (!m_table.isColumnHidden(colonne) && !textes[colonne].isEmpty()) visibles << textes[colonne];
    QToolTip::showText(aide->globalPos(), visibles.join(QStringLiteral("  ")).toHtmlEscaped(), this);
    return true;
}

void VueBarres::mousePressEvent(QMouseEvent *event)
{
    const int ligne = m_table.rowAt(event->pos().y());
    if (event->button() == Qt::LeftButton && ligne >= 0) emit rangeeCliquee(ligne);
}

void VueBarres::wheelEvent(QWheelEvent *event)
{
    QCoreApplication::sendEvent(m_table.verticalScrollBar(), event);
}

TableauBarres::TableauBarres(const Noms &noms, const Graduations &graduations, QWidget *parent)
    : QFrame(parent), m_table(new QTableView(this)), m_echelle(new VueEchelle(graduations, this)),
      m_barres(nullptr), m_defilement(new QScrollBar(Qt::Vertical, this))
{
    setFrameShape(QFrame::StyledPanel);
    construitTable(noms.table);
    nomme(m_echelle, noms.echelle);
    m_barres = nomme(new VueBarres(*m_table, m_modele, this), noms.barres);
    m_barres->setAccessibleName(QStringLiteral("Horaires sur une échelle de 24 heures"));
    dispose();
    fixeEntete(0);
    relieDefilement();
    connect(m_table, &QTableView::pressed, this,
            [this](const QModelIndex &index) { emit rangeeCliquee(index.row()); });
    connect(m_barres, &VueBarres::rangeeCliquee, this, &TableauBarres::rangeeCliquee);
}

void TableauBarres::construitTable(const char *nom)
{
    nomme(m_table, nom)->setModel(&m_modele);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setWordWrap(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2 * margeRangee);
    m_table->horizontalHeader()->setHighlightSections(false);
}

void TableauBarres::dispose()
{
    auto *const droite = new QVBoxLayout;
    droite->setSpacing(0);
    droite->addWidget(m_echelle);
    droite->addWidget(m_barres, 1);
    auto *const ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(0);
    ligne->addWidget(m_table, partTable);
    ligne->addLayout(droite, partBarres);
    ligne->addWidget(m_defilement);
}

/// The scroll bar stands at the right of the bars and moves the table's own, which doesn't show.
void TableauBarres::relieDefilement()
{
    QScrollBar *const cache = m_table->verticalScrollBar();
    connect(cache, &QScrollBar::rangeChanged, m_defilement, [this, cache](int mini, int maxi) {
        m_defilement->setPageStep(cache->pageStep());
        m_defilement->setRange(mini, maxi);
        m_defilement->setVisible(maxi > mini);
        m_barres->update();
    });
    connect(cache, &QScrollBar::valueChanged, m_defilement, &QScrollBar::setValue);
    connect(cache, &QScrollBar::valueChanged, m_barres, [this] { m_barres->update(); });
    connect(m_defilement, &QScrollBar::valueChanged, cache, &QScrollBar::setValue);
}

void TableauBarres::montre(const QStringList &titres, std::vector<RangeeBarres> rangees)
{
    m_modele.montre(titres, std::move(rangees));
}

void TableauBarres::fixeEntete(int hauteur)
{
    const int texte = m_table->horizontalHeader()->sizeHint().height();
    const int echelle = fontMetrics().height() + hauteurTrait + 2;
    const int retenue = std::max({hauteur, texte, echelle});
    m_table->horizontalHeader()->setFixedHeight(retenue);
    m_echelle->setFixedHeight(retenue);
}

void TableauBarres::serreColonnes(int largeur)
{
    QHeaderView *const entete = m_table->horizontalHeader();
    entete->setSectionResizeMode(QHeaderView::Fixed);
    entete->setMinimumSectionSize(largeur);
    int total = 0;
    for (int colonne = 0; colonne < m_modele.columnCount(); ++colonne) {
        entete->resizeSection(colonne, std::max(largeur, entete->sectionSizeHint(colonne)));
        total += entete->sectionSize(colonne);
    }
    m_table->setFixedWidth(total);
}

void TableauBarres::designe(int ligne)
{
    if (ligne < 0 || ligne >= m_modele.rowCount()) return m_table->clearSelection();
    m_table->selectRow(ligne);
    m_table->scrollTo(m_table->currentIndex());
}

void TableauBarres::commenceA(int ligne)
{
    m_table->verticalScrollBar()->setValue(ligne);
}

QWidget *legendeBarres(QWidget *parent)
{
    auto *const legende = new QWidget(parent);
    auto *const ligne = new QHBoxLayout(legende);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(18);
    ligne->addStretch();
    ligne->addWidget(echantillon(legende, palette::barreTravail, QStringLiteral("Travail")));
    ligne->addWidget(echantillon(legende, palette::barreCoupe, QStringLiteral("Coupe")));
    ligne->addWidget(echantillon(legende, palette::barreNuit, QStringLiteral("Nuit de la veille")));
    ligne->addWidget(echantillon(legende, palette::barreAbsence, QStringLiteral("Absence")));
    return legende;
}

} // namespace velmora
