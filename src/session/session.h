#pragma once

#include "foncgen/foncgen.h"
#include "journal/touched_lines.h"
#include "session/host.h"
#include "store/databases.h"

#include <memory>

namespace velmora
{

class Batch;

/// One workstation's session: the session values, the two databases, the general-function object and the
/// host. Nothing of it is global, so that two sessions can run side by side in one process. Values are
/// plain members: each is written where its comment says and read by whoever needs it.
struct Session {
    explicit Session(Host &theHost) : host(theHost) {}
    /// A session over engines other than the embedded one.
    Session(Host &theHost, std::unique_ptr<store::Engine> baseEngine,
            std::unique_ptr<store::Engine> journalEngine)
        : host(theHost), base(std::move(baseEngine)), journal(std::move(journalEngine))
    {
    }
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Host &host;

    // Who and where.
    QString pseudo;
    QString cheminjournal; ///< folder of the journal, also the one that `velmora.mdb` is opened in
    QString cheminbase;    ///< folder that the journal names for the main database
    QString urlaide;       ///< help site with its path
    QString pagecourante;  ///< the session's current help page

    // Read at login; nothing depends on them.
    QString nomUtilisateur;
    int droitUtilisateur = 0;
    int mesUtilisateur = 0;

    // The calendar's window, both dates included.
    QDate datemin;
    QDate datemax;

    // What is shown.
    bool totcent = false;    ///< totals in hundredths of an hour
    int modecellule = 1;     ///< 0 hours done, 1 schedule, 2 slices
    bool moisouvert = false; ///< the month form is loaded
    int moisvue = 0;         ///< month to open, 1 to 12
    int anvue = 0;
    int choixmoisdebut = 0; ///< 1 makes the open-month dialog start in January; no command sets it
    QString dossiervue;     ///< folder that filters the lines; empty for all
    bool modeajout = false; ///< an entry dialog adds, rather than modify
    QString dossiersel;     ///< folder that the dialog of a folder is to change
    QString nometab;        ///< name of the establishment, once a dialog has set it
    Affichage affichage;

    bool dlgvalide = false; ///< the last modal dialog ended by its confirm command

    // What the day entry is given.
    QString saisdeb;
    QString saisfin;
    QString saisnom;
    float saisligne = 0;

    // What the absence entry is given. The day entry's values keep their own place.
    QString absdebut;   ///< first day
    QString absreprise; ///< day of return; an entry leaves the last day of its absence
    QString abscode;    ///< code typed in the month, as the codes hold it, or empty
    int absligne = 0;   ///< `nump`
    QString absnom;     ///< name of the line

    // What the print and export dialogs are given; each command has its own roles for them.
    QDate impdate;
    QDate impdeb;
    QDate impfin;

    // What prints go out with, once chosen; empty for the defaults.
    QString imprimante;
    QString policeimp;

    // State of the journal's ring.
    int nblog = 30;
    bool peutannul = false;
    bool peutrefaire = false;
    int opcour = 0;       ///< slot of the operation being recorded; 0 records nothing
    int nivcour = 0;      ///< rank of its last image
    QString foncsit;      ///< row operation under way on `sitper`
    QString foncabs;      ///< row operation under way on `absences`
    bool collage = false; ///< a paste is running
    int vidagessitco = 0; ///< how often `sitco` was emptied
    LignesRejouees rejeu; ///< what the last undo or redo touched

    std::unique_ptr<Foncgen> foncgen;
    store::MainDatabase base;
    store::JournalDatabase journal;
    store::Status echecBase; ///< why the main database didn't open
    Batch *batch = nullptr;  ///< the command's transaction while one runs
};

} // namespace velmora
