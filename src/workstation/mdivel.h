#pragma once

#include "calendar/holiday_generation.h"
#include "month/month_view.h"
#include "session/session.h"
#include "workstation/slider_note.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <array>
#include <functional>

class QFrame;
class QSlider;
class QStackedWidget;
class QToolBar;

namespace velmora
{

/// What the main window opens. Each one shows its window and returns once it has gone; the month's one makes
/// the month, which stays. A menu entry whose function is empty is disabled, and the check at the start
/// passes over it.
struct Ouvertures {
    using Ouverture = std::function<void(Session &, QWidget *parent)>;

    std::function<MonthView *(Session &, QWidget *parent)> mois;
    Ouverture parametres;
    Ouverture dossiers;
    Ouverture codesAbsence;
    std::function<void(Session &, QWidget *parent, const DemandeFeries &demande)> feries;
    /// False when the databases could not be opened again.
    std::function<bool(Session &, QWidget *parent)> sauvegarde;
};

/// "Velmora: suivi d'heures": the frame of all windows, with the menu bar, the toolbar and the two sliders
/// that stretch the month's grid. It holds no data.
class Mdivel : public QMainWindow
{
    Q_OBJECT

public:
    explicit Mdivel(Session &session, Ouvertures ouvertures = {}, QWidget *parent = nullptr);
    ~Mdivel() override;

    /// Reads the user's settings behind the splash, then lets the check of the calendar follow.
    void charge();
    /// Opens the month that the session holds; one that is open gives way.
    void ouvreMois();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Entree {
        const char *nom;
        QString caption;
        void (Mdivel::*action)();
        bool disponible = true;
        QKeySequence raccourci{};
    };

    static constexpr int departh = 100; ///< where the sliders stand when a month opens
    static constexpr int departv = 50;

    void construitMenus();
    QAction *menu(const char *nom, const QString &caption, const QList<Entree> &entrees);
    QAction *entree(const Entree &definition);
    void construitBarre();
    void ajouteBouton(const BoutonDef &definition);
    void construitCurseurs();
    QSlider *curseur(const char *nomCadre, const char *nom, const QString &caption);
    void construitCentre();
    QWidget *construitAccueil();

    void mnuoldfen();
    void mnusave();
    void mnupg();
    void mnudos();
    void mnucodabs();
    void mnuferie();
    void mnuferm();
    void mnuaid();

    void timer1();
    void toolbarClick(const QString &cle);
    void hscroll1Change(int value);
    void vscroll1Change(int value);

    void relieMois();
    void fermeMois();
    void moisFerme();
    void montreCurseurs(bool visibles);
    void montreMenus(const QList<QAction *> &actions);
    void applique(const ToolbarState &state);
    void changeBulle(const QString &cle, const QString &bulle);

    Session &m_session;
    Ouvertures m_ouvertures;
    QList<QAction *> m_menus; ///< the main window's own entries of the menu bar
    QToolBar *m_toolbar1 = nullptr;
    std::array<QAction *, nombreBoutons> m_boutons{};
    QList<QAction *> m_separateurs; ///< between the groups of the month's buttons
    ToolbarState m_etat;
    QList<QAction *> m_cadres;     ///< `Frameh` and `Framev` in the toolbar
    QSlider *m_hscroll1 = nullptr; ///< "Largeur"
    QSlider *m_vscroll1 = nullptr; ///< "Hauteur"
    SliderNote m_noteh;
    SliderNote m_notev;
    QStackedWidget *m_centre = nullptr;
    QPointer<MonthView> m_mois;
    QTimer m_timer1{this}; ///< `Timer1`
    bool m_ferme = false;
};

} // namespace velmora
