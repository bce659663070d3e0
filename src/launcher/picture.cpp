#include "launcher/picture.h"

#include "launcher/window.h"
#include "month/month_view.h"
#include "workstation/colours.h"

#include <QApplication>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>

namespace velmora
{

namespace
{

constexpr QSize ecran(1366, 768);

/// Lets the window load until its month is ready or closes, then settles what follows the load.
bool attendPret(MonthView &mois)
{
    bool pret = false;
    QEventLoop boucle;
    QObject::connect(&mois, &MonthView::ready, &boucle, [&] {
        pret = true;
        // The refresh that follows the load has its own timer.
        QTimer::singleShot(50, &boucle, &QEventLoop::quit);
    });
    QObject::connect(&mois, &MonthView::closed, &boucle, &QEventLoop::quit);
    boucle.exec();
    return pret;
}

/// The user's display settings, without giving the row those that it lacks: a picture changes nothing.
void litAffichage(Session &session)
{
    session.affichage = session.base.agent.row().affichage;
    if (affichageComplet(session.affichage)) return;
    const QColor encre = QApplication::palette().color(QPalette::WindowText);
    session.affichage = affichageParDefaut(encre.rgb(), {});
}

} // namespace

bool peintMois(Session &session, const QString &fichier)
{
    // It opens no other window: nobody is there to close one.
    Ouvertures ouvertures;
    ouvertures.mois = nouveauMois;
    litAffichage(session);
    Mdivel fenetre(session, ouvertures);
    fenetre.resize(ecran);
    fenetre.show();
    fenetre.ouvreMois();
    auto *mois = fenetre.findChild<MonthView *>();
    return mois && attendPret(*mois) && fenetre.grab().save(fichier, "PNG");
}

} // namespace velmora
