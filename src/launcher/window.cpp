#include "launcher/window.h"

#include "absences/fcodabs.h"
#include "calendar/ferie1.h"
#include "calendar/fparcg.h"
#include "cli/start.h"
#include "folders/groupt.h"
#include "month/fplan.h"
#include "output/absli.h"
#include "session/qt_host.h"
#include "session/velmoral.h"
#include "workstation/fsauv.h"

#include <QApplication>

namespace velmora
{

namespace
{

/// The desktop's host, which also gives a reason when the start ends without a word.
class HoteFenetre : public QtHost
{
public:
    using QtHost::QtHost;

    void message(const QString &text, const QString &title) override
    {
        m_dit = true;
        QtHost::message(text, title);
    }
    [[nodiscard]] bool question(const QString &text, const QString &title) override
    {
        m_dit = true;
        return QtHost::question(text, title);
    }
    [[noreturn]] void endProcess() override
    {
        if (!m_dit && siMuette) cli::imprimeErreur(siMuette());
        QtHost::endProcess();
    }

    std::function<QString()> siMuette;

private:
    bool m_dit = false;
};

bool ouvreSauvegarde(Session &session, QWidget *parent)
{
    Fsauv fsauv(session, parent);
    fsauv.exec();
    return fsauv.rouvertes();
}

void ouvreCodesAbsence(Session &session, QWidget *parent)
{
    Fcodabs dialogue(session, ouvreImpressionCodes, parent);
    dialogue.exec();
}

/// Shows a window that needs nothing but the session until it closes.
template <class Fenetre> void montre(Session &session, QWidget *parent)
{
    Fenetre fenetre(session, parent);
    fenetre.exec();
}

} // namespace

MonthView *nouveauMois(Session &session, QWidget *parent)
{
    return new Fplan(session, parent);
}

std::unique_ptr<Mdivel> fenetrePrincipale(Session &session)
{
    Ouvertures ouvertures;
    ouvertures.mois = nouveauMois;
    ouvertures.codesAbsence = ouvreCodesAbsence;
    ouvertures.parametres = montre<Fparcg>;
    ouvertures.dossiers = montre<Groupt>;
    ouvertures.feries = ouvreferies;
    ouvertures.sauvegarde = ouvreSauvegarde;
    return std::make_unique<Mdivel>(session, ouvertures);
}

int ouvreFenetre(const cli::Poste &poste)
{
    HoteFenetre host({poste.aujourdhui, poste.reponse});
    std::unique_ptr<Mdivel> fenetre;
    Velmoral velmoral(host, Velmoral::Demarrage::ParLanceur, [&fenetre](Session &session) {
        fenetre = fenetrePrincipale(session);
        fenetre->charge();
        fenetre->show();
    });
    host.siMuette = [&velmoral] { return cli::causeArret(velmoral.session()); };
    velmoral.ini(poste.pseudo, poste.journal, poste.base);
    host.siMuette = {};
    const int statut = velmoral.demarree() ? QApplication::exec() : cli::refuse;
    // The window reads the session to its last event.
    fenetre.reset();
    return statut;
}

} // namespace velmora
