#pragma once

#include "month/code_entry.h"
#include "month/grid_view.h"
#include "month/month_menus.h"
#include "month/month_view.h"

#include <QTimer>

class QLabel;
class QMenu;
class QProgressBar;
class QSplitter;

namespace velmora
{

class TableauBarres;

/// "Planning mois": the month's grid with its title, its status line and its menus. It passes events to the
/// month's procedures and shows what they leave.
class Fplan : public MonthView
{
    Q_OBJECT

public:
    /// Opens the month that the session holds in `moisvue` and `anvue`, with its folder and cell contents.
    /// The grid is built a moment after the form shows.
    explicit Fplan(Session &session, QWidget *parent = nullptr);
    ~Fplan() override;

    [[nodiscard]] QList<QAction *> menuBarActions() const override;
    void command(const QString &cle) override;
    [[nodiscard]] bool stretchColumns(int twips) override;
    void stretchRows(int twips) override;

    [[nodiscard]] Planning &planning() { return m_planning; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void construit();
    void construitEntete();
    void relie();
    void relieMenus();
    void relieLignes();
    void relieAbsences();
    void relieSorties();
    void relieZoom();
    void relieImpressions();
    void mesure();

    void charge();
    void ferme();
    void rafraichit();
    void montreCommandes();
    void execute();

    void relieGrille();
    void lanceCycle();
    void celluleAtteinte();
    bool positionneLigne();
    void refaitLigne(int ligne);

    void saisitHeures();
    void copie(bool coupe);
    void colle();
    void supprime();
    void rejoue(bool (*replay)(Session &));
    void commenceCode(const QString &touche);
    void verifieCode(const QString &code);
    void saisitAbsence();
    void finitCode();
    void montreMenuGrille(const QPoint &point);
    void choisitTotaux(bool centiemes);

    // Commands on lines.
    [[nodiscard]] bool demandeLigne();
    [[nodiscard]] bool ligneDuMoisVide();
    void ouvreLigne();
    void surLigne(const std::function<void(const Ligne &)> &commande);
    template <class Dialogue> [[nodiscard]] bool demande(const Ligne &ligne);
    void termineLigne();
    [[nodiscard]] QWidget *zoneGrille();
    void choisitZoom(bool zoom);
    void disposeZoom();
    void montreZoom();
    void zoomClique(int rangee);

    void imprimeLigne();
    void imprimeEnsemble();
    void imprimeSemaine();
    void touchePressee(const QString &texte);

    Session &m_session;
    Planning m_planning;
    MenusMois m_menus;
    QLabel *m_label1;    // "Planning", then its dates
    QLabel *m_dossier;   // the folder shown
    QLabel *m_date;      // "le :"
    QLabel *m_statut;    // what the current cell holds
    QProgressBar *m_pgb; // the load
    VueGrille *m_mg;
    QSplitter *m_partage = nullptr;  // the grid and the zoom
    TableauBarres *m_zoom = nullptr; // the day zoom: `Mgm`, `Piczoom` and its scale `Picture2`
    bool m_zoomact = false;          // `zoomact`: the zoom is on
    SaisieCode *m_code;              // the entry of an absence code in a cell
    QMenu *m_maca;                   // the grid's popup menu
    QTimer m_timer1{this};           // the load that follows the display
    QTimer m_timer2{this};           // the refresh cycle
    QTimer m_timer3{this};           // a command of the toolbar
    QString m_cle;                   // key of that command
    bool m_ferme = false;
};

} // namespace velmora
