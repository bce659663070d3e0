#include "journal/recording.h"

#include "journal/images.h"
#include "journal/ring.h"
#include "session/batch.h"
#include "session/guards.h"
#include "session/opening.h"

#include <QCoreApplication>

namespace velmora
{

using store::Cmp;
using store::Status;

namespace
{

/// Lets timers and other commands run: one of them may be what holds the table.
void pauseEvenements()
{
    constexpr int tours = 100;
    for (int i = 0; i < tours; ++i)
        QCoreApplication::processEvents();
}

Status remplitCase(Session &session, const QString &ficop, const QString &libop)
{
    return modifieOperation(session, [&](Operation &operation) {
        operation.valop = true;
        operation.nivop = 0;
        operation.ficop = ficop;
        operation.libop = libop;
        operation.ordop = 1;
    });
}

int remetAnneau(Session &session)
{
    if (session.journal.logop.first()) {
        modifieOperation(session, [&](Operation &tete) {
            tete.ordop = 0;
            tete.nivop = session.nblog;
        }).ignore();
    }
    session.peutannul = false;
    session.peutrefaire = false;
    return 0;
}

/// The head row of a new operation. The test is on more than one undone operation, not on one or more, and
/// the former count of free levels is then dropped: it may fall below the count of free slots. Both are
/// wanted; no operation is lost by it.
Status avanceTete(Session &session, int annulees)
{
    return modifieOperation(session, [annulees](Operation &tete) {
        tete.nivop = annulees > 1 ? annulees - 1 : std::max(tete.nivop - 1, 0);
        tete.ordop = 0;
    });
}

/// Walks the slots in their order, ages those in force, renumbers the free ones and takes one, whose `numop`
/// is left in `prise`. A step that fails is left undone and the walk goes on; returns the first failure.
Status prendCase(Session &session, int annulees, const QString &ficop, const QString &libop, int &prise)
{
    auto &logop = session.journal.logop;
    const int vieillit = 1 - annulees;
    int libre = annulees - 1;
    bool cherche = true;
    Status echec;
    while (logop.next()) {
        const Operation operation = logop.row();
        Status pas;
        if (cherche && !operation.valop) {
            cherche = false;
            prise = operation.numop;
            pas = remplitCase(session, ficop, libop);
        } else if (operation.valop && operation.ordop + vieillit > session.nblog) {
            prise = operation.numop;
            pas = remplitCase(session, ficop, libop);
        } else if (operation.valop) {
            pas = modifieOperation(session, [vieillit](Operation &suivie) { suivie.ordop += vieillit; });
        } else {
            pas = modifieOperation(session,
                                   [&](Operation &suivie) { suivie.ordop = session.nblog - libre + 1; });
            --libre;
        }
        if (echec.ok()) echec = pas;
    }
    return echec.ok() ? logop.status() : echec;
}

/// Writes an image under the next rank of the operation being recorded. `copie` copies the row in.
template <class Image, class Copie>
void ajouteImage(Session &session, store::Table<Image> &images, const QString &avap, const QString &foncop,
                 Copie &&copie)
{
    if (session.opcour == 0 || (session.batch && !session.batch->enregistre())) return;
    ++session.nivcour;
    images.eraseRun({session.opcour, session.nivcour}).ignore();
    if (!ajoutgarde(session, images).ok()) return;
    Image &image = images.values();
    image.rang = {session.opcour, session.nivcour, avap, foncop};
    copie(image);
    if (!images.update().ok()) images.cancelUpdate();
}

void imagesit(Session &session, const QString &avap, const QString &foncop)
{
    ajouteImage(session, session.journal.sitlog, avap, foncop, [&](ImageSit &image) {
        image.jour = session.base.sitper.current();
        // Recording never fills this field, so that a replay writes its empty value. Wanted.
        image.jour.babs = false;
    });
}

void imageabs(Session &session, const QString &avap, const QString &foncop)
{
    ajouteImage(session, session.journal.logabs, avap, foncop,
                [&](ImageAbs &image) { image.absence = session.base.absences.current(); });
}

} // namespace

void ouvreop(Session &session, int &operation, const QString &ficop, const QString &libop)
{
    if (operation != 0 && session.opcour == operation) return;
    operation = session.opcour = ecritop(session, ficop, libop);
}

int ecritop(Session &session, const QString &ficop, const QString &libop)
{
    if (ficop == ficopRemise) return remetAnneau(session);
    if (session.batch && !session.batch->enregistre()) return session.opcour = 0;
    auto &logop = session.journal.logop;
    session.peutannul = true;
    int prise = 0;
    Status echec;
    if (logop.first()) {
        const int annulees = logop.row().ordop;
        echec = avanceTete(session, annulees);
        const Status marche = prendCase(session, annulees, ficop, libop, prise);
        if (echec.ok()) echec = marche;
    }
    const Status purge = purgeop(session, prise);
    if (session.batch && !(echec.ok() && purge.ok())) {
        session.batch->renonceEnregistrement();
        return session.opcour = 0;
    }
    if (!session.collage) videsitco(session);
    session.nivcour = 0;
    return session.opcour = prise;
}

Status purgeop(Session &session, int numop)
{
    // No other session has the journal: no row of it can be held.
    const Status heures = session.journal.sitlog.eraseRun({numop});
    const Status absences = session.journal.logabs.eraseRun({numop});
    return heures.ok() ? absences : heures;
}

Status editsit(Session &session)
{
    imagesit(session, imageAvant, ligneChangee);
    session.foncsit = ligneChangee;
    attendlibre(session, session.base.sitper, questionDisque(), pauseEvenements);
    return session.base.sitper.edit();
}

Status ajoutsit(Session &session)
{
    session.foncsit = ligneAjoutee;
    attendlibre(session, session.base.sitper, questionDisque(), pauseEvenements);
    return session.base.sitper.addNew();
}

Status supprsit(Session &session)
{
    imagesit(session, imageAvant, ligneSupprimee);
    // This wait alone runs empty, without the events. Wanted.
    attendlibre(session, session.base.sitper, questionDisque(), pauseSeche);
    return session.base.sitper.erase();
}

Status majsit(Session &session)
{
    auto &sitper = session.base.sitper;
    const Status ecrit = sitper.update();
    if (!ecrit.ok()) return ecrit;
    if (sitper.goToModified()) imagesit(session, imageApres, session.foncsit);
    return sitper.status();
}

Status editabs(Session &session)
{
    imageabs(session, imageAvant, ligneChangee);
    session.foncabs = ligneChangee;
    attendlibre(session, session.base.absences, questionDisque(), pauseEvenements);
    return session.base.absences.edit();
}

Status ajoutabs(Session &session)
{
    session.foncabs = ligneAjoutee;
    attendlibre(session, session.base.absences, questionDisque(), pauseEvenements);
    return session.base.absences.addNew();
}

Status supprabs(Session &session)
{
    imageabs(session, imageAvant, ligneSupprimee);
    attendlibre(session, session.base.absences, questionDisque(), pauseEvenements);
    return session.base.absences.erase();
}

Status majabs(Session &session)
{
    auto &absences = session.base.absences;
    const Status ecrit = absences.update();
    if (!ecrit.ok()) return ecrit;
    if (absences.goToModified()) imageabs(session, imageApres, session.foncabs);
    return absences.status();
}

Status valsit(Session &session, int nump, const QDate &premier, const QDate &dernier, bool valeur)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    QDate cherche = premier;
    while (cherche <= dernier && sitper.seek(Cmp::Ge, {nump, cherche}) && sitper.row().nump == nump &&
           sitper.row().dat <= dernier) {
        cherche = sitper.row().dat.addDays(1);
        Status status = editgarde(session, sitper);
        if (status.ok()) {
            sitper.values().Val = valeur;
            status = sitper.update();
        }
        // A row that went meanwhile needs no value.
        if (status.code() == Status::Code::NoRow)
            sitper.cancelUpdate();
        else if (!status.ok())
            return status;
    }
    return cherche <= dernier ? sitper.status() : Status{};
}

} // namespace velmora
