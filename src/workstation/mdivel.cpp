#include "workstation/mdivel.h"

#include "calendar/start_check.h"
#include "folders/smois.h"
#include "session/help.h"
#include "workstation/colours.h"
#include "workstation/formtempa.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QStackedWidget>

#include <chrono>

namespace velmora
{

namespace
{

using namespace std::chrono_literals;

constexpr auto delaiCalendrier = 5ms;
const QString accueil = QStringLiteral("accueil.htm");

/// Keeps a slider disabled for a scope; the focus, which goes with it, comes back.
class CurseurOccupe
{
public:
    explicit CurseurOccupe(QSlider *curseur) : m_curseur(curseur), m_focus(curseur->hasFocus())
    {
        m_curseur->setEnabled(false);
    }
    ~CurseurOccupe()
    {
        m_curseur->setEnabled(true);
        if (m_focus) m_curseur->setFocus();
    }
    CurseurOccupe(const CurseurOccupe &) = delete;
    CurseurOccupe &operator=(const CurseurOccupe &) = delete;

private:
    QSlider *m_curseur;
    bool m_focus;
};

} // namespace

void Mdivel::charge()
{
    {
        Formtempa attente(m_session, this);
        attente.exec();
    }
    applique(ToolbarState::withoutMonth());
    montreCurseurs(false);
    m_timer1.start(delaiCalendrier);
}

/// Opens what the calendar lacks. Without parameter sets nothing can be planned, so the system closes.
void Mdivel::timer1()
{
    const StartCheck lacks = startCheck(m_session);
    if (lacks == StartCheck::NeedFeries) return mnuferie();
    if (lacks == StartCheck::Nothing || !m_ouvertures.parametres) return;
    mnupg();
    if (startCheck(m_session) == StartCheck::NeedParametres) close();
}

void Mdivel::mnuoldfen()
{
    if (!m_ouvertures.mois) return;
    {
        Smois smois(m_session, this);
        smois.exec();
    }
    if (m_session.dlgvalide) ouvreMois();
}

void Mdivel::mnusave()
{
    if (!m_ouvertures.sauvegarde) return;
    const bool rouvertes = m_ouvertures.sauvegarde(m_session, this);
    if (m_session.dlgvalide && !rouvertes) close();
}

void Mdivel::mnupg()
{
    if (m_ouvertures.parametres) m_ouvertures.parametres(m_session, this);
}

void Mdivel::mnudos()
{
    if (m_ouvertures.dossiers) m_ouvertures.dossiers(m_session, this);
}

void Mdivel::mnucodabs()
{
    if (m_ouvertures.codesAbsence) m_ouvertures.codesAbsence(m_session, this);
}

void Mdivel::mnuferie()
{
    if (m_ouvertures.feries) m_ouvertures.feries(m_session, this, {false, m_session.host.today()});
}

void Mdivel::mnuferm()
{
    close();
}

void Mdivel::mnuaid()
{
    m_session.pagecourante = accueil;
    ouvreaide(m_session, QString());
}

void Mdivel::toolbarClick(const QString &cle)
{
    const auto bouton = boutonDeCle(cle);
    if (bouton == Bouton::Open) return mnuoldfen();
    if (bouton == Bouton::Save) return mnusave();
    if (m_mois) m_mois->command(cle);
}

void Mdivel::hscroll1Change(int value)
{
    const CurseurOccupe occupe(m_hscroll1);
    if (!m_mois || m_mois->stretchColumns(m_noteh.stretch(value))) return m_noteh.take(value);
    const QSignalBlocker silence(m_hscroll1);
    m_hscroll1->setValue(m_noteh.value());
}

void Mdivel::vscroll1Change(int value)
{
    const CurseurOccupe occupe(m_vscroll1);
    if (m_mois) m_mois->stretchRows(m_notev.stretch(value));
    m_notev.take(value);
}

void Mdivel::ouvreMois()
{
    fermeMois();
    m_hscroll1->setValue(departh);
    m_vscroll1->setValue(departv);
    m_mois = m_ouvertures.mois(m_session, m_centre);
    if (!m_mois) return;
    relieMois();
    m_centre->addWidget(m_mois);
    m_centre->setCurrentWidget(m_mois);
    montreMenus(m_mois->menuBarActions());
    applique(m_etat.onMonthLoad(m_session.peutannul, m_session.peutrefaire));
    m_mois->setFocus();
}

void Mdivel::relieMois()
{
    connect(m_mois, &MonthView::ready, this, [this] { montreCurseurs(true); });
    connect(m_mois, &MonthView::commandsChanged, this, &Mdivel::applique);
    connect(m_mois, &MonthView::tipChanged, this, &Mdivel::changeBulle);
    connect(m_mois, &MonthView::closed, this, &Mdivel::moisFerme);
}

/// Closes the month on the window's behalf. The flag goes first, so that the month knows.
void Mdivel::fermeMois()
{
    m_session.moisouvert = false;
    if (m_mois) m_mois->close();
}

void Mdivel::moisFerme()
{
    m_session.moisouvert = false;
    montreMenus(m_menus);
    m_mois->disconnect(this);
    m_centre->removeWidget(m_mois);
    m_mois->deleteLater();
    m_mois.clear();
    montreCurseurs(false);
    applique(ToolbarState::withoutMonth());
    for (const BoutonDef &definition : boutons())
        changeBulle(definition.cle, definition.bulle);
}

void Mdivel::closeEvent(QCloseEvent *event)
{
    event->accept();
    if (m_ferme) return;
    m_ferme = true;
    m_timer1.stop();
    fermeMois();
    m_session.foncgen.reset();
    ecritAffichage(m_session);
}

/// A window that is activated while it is minimised comes back to its normal size.
void Mdivel::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isMinimized()) showNormal();
}

} // namespace velmora
