#include "month/fplan.h"

#include "month/bars_table.h"
#include "month/refresh.h"
#include "month/twips.h"
#include "month/zoom.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>

namespace velmora
{

namespace
{

// Columns of the list `Mgm`.
constexpr int colonneNump = 0;
constexpr int colonneMarque = 2;
constexpr int colonneHoraire = 3;
// Shares of the height.
constexpr int partMois = 11;
constexpr int partZoom = 9;

constexpr const char *plusLongHoraire = " ... - 00h00 / /   00h00  -  00h00 / /";

void regleColonnes(QTableView *table)
{
    QHeaderView *const entete = table->horizontalHeader();
    table->setColumnHidden(colonneNump, true);
    entete->setMinimumSectionSize(1);
    entete->setSectionResizeMode(QHeaderView::Stretch);
    const QFontMetrics metrique = table->fontMetrics();
    for (const auto &[colonne, texte] : {std::pair(colonneMarque, "**"), {colonneHoraire, plusLongHoraire}}) {
        entete->setSectionResizeMode(colonne, QHeaderView::Fixed);
        entete->resizeSection(colonne, metrique.horizontalAdvance(QLatin1String(texte)));
    }
}

} // namespace

/// The month's grid with the zoom under it: the user may move the border between them.
QWidget *Fplan::zoneGrille()
{
    m_partage = new QSplitter(Qt::Vertical, this);
    m_partage->setChildrenCollapsible(false);
    m_partage->addWidget(m_mg);
    auto *const bas = new QWidget(m_partage);
    m_zoom = new TableauBarres({"Mgm", "Piczoom", "Picture2"}, graduationsZoom(), bas);
    m_zoom->fixeEntete(pixels(m_session.affichage.haut1, *this));
    m_zoom->table()->setFocusPolicy(Qt::NoFocus);
    m_zoom->table()->setAccessibleName(QStringLiteral("Horaires de la journée"));
    auto *const colonne = new QVBoxLayout(bas);
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(m_zoom, 1);
    colonne->addWidget(legendeBarres(bas));
    bas->hide();
    return m_partage;
}

void Fplan::relieZoom()
{
    for (const auto &[nom, zoom] :
         {std::pair(QStringLiteral("mnuzoom"), true), {QStringLiteral("mnuaffnorm"), false}}) {
        m_menus.entree(nom)->setCheckable(true);
        m_menus.entree(nom)->setChecked(!zoom);
        m_menus.lie(nom, this, [this, zoom = zoom] { choisitZoom(zoom); });
    }
    connect(m_zoom, &TableauBarres::rangeeCliquee, this, &Fplan::zoomClique);
    connect(&m_zoom->modele(), &QAbstractItemModel::modelReset, this,
            [this] { regleColonnes(m_zoom->table()); });
    connect(m_mg->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int ligne) {
        if (m_zoomact) m_zoom->commenceA(ligne);
    });
}

void Fplan::choisitZoom(bool zoom)
{
    m_menus.entree(QStringLiteral("mnuzoom"))->setChecked(zoom);
    m_menus.entree(QStringLiteral("mnuaffnorm"))->setChecked(!zoom);
    if (std::exchange(m_zoomact, zoom) != zoom) {
        // Back to the normal display the window keeps its size: that is wanted.
        if (zoom && !window()->isMaximized()) window()->showMaximized();
        disposeZoom();
    }
    lanceCycle();
}

void Fplan::disposeZoom()
{
    m_partage->widget(1)->setVisible(m_zoomact);
    if (!m_zoomact) return;
    const int unite = m_partage->height() / (partMois + partZoom);
    m_partage->setSizes({unite * partMois, unite * partZoom});
}

void Fplan::resizeEvent(QResizeEvent *event)
{
    MonthView::resizeEvent(event);
    if (m_zoomact && event->oldSize().height() != height()) disposeZoom();
}

/// Shows the day of the cursor's column; a total column stands for the day before it.
void Fplan::montreZoom()
{
    if (!m_zoomact) return;
    ZoomJour zoom = zoomDuJour(m_planning, m_planning.date(m_planning.curseur.colonne));
    if (!zoom.lecture.ok()) return ditErreurBase(m_planning);
    std::vector<RangeeBarres> rangees;
    rangees.reserve(zoom.lignes.size());
    for (LigneZoom &ligne : zoom.lignes)
        rangees.push_back({textesZoom(ligne), std::move(ligne.barres)});
    m_zoom->montre(titresZoom(zoom), std::move(rangees));
    m_zoom->designe(ModeleGrille::ligneVue(m_planning.curseur.ligne));
}

void Fplan::zoomClique(int rangee)
{
    const int nump = m_zoom->modele().rangee(rangee).textes.value(colonneNump).toInt();
    const int ligne = m_planning.grille.ligneDe(nump);
    if (m_planning.grille.estLigne(ligne)) {
        m_mg->setCurrentIndex(m_mg->modele().index(ModeleGrille::ligneVue(ligne),
                                                   ModeleGrille::colonneVue(m_planning.curseur.colonne)));
    }
    m_mg->setFocus();
}

} // namespace velmora
