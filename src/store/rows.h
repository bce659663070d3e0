#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

// The rows of the main database's tables. Minutes are whole minutes; see each table's row for the rest.
namespace velmora
{

/// A moment of the day or a duration, in minutes.
inline constexpr int minutesParJour = 1440;

/// `sitper`: one day of hours of a line. Moments are minutes of the day, 0 to 1440; a moment below
/// `heurdeb` belongs to the next day.
struct JourSit {
    int nump = 0;
    QDate dat;
    int Type = 0; ///< 1 for hours entered
    int numri = 0;
    int numi = 0;
    int numimp = 0;
    int numv = 0;
    int sit = 0;
    bool Val = false; ///< false while an absence covers the day: the row is kept but doesn't count
    int heurdeb = 0;
    int heurfin = 0;
    int hideb = 0; ///< first cut; equal ends mean no cut
    int hifin = 0;
    int hideb2 = 0; ///< second cut, likewise
    int hifin2 = 0;
    int heurtrav = 0; ///< worked time as entered
    int heurpaye = 0; ///< paid time
    int hdeb1 = 0;    ///< the slices as entered, six pairs
    int hfin1 = 0;
    int hdeb2 = 0;
    int hfin2 = 0;
    int hdeb3 = 0;
    int hfin3 = 0;
    int hdeb4 = 0;
    int hfin4 = 0;
    int hdeb5 = 0;
    int hfin5 = 0;
    int hdeb6 = 0;
    int hfin6 = 0;
    QDateTime datj; ///< moment of writing
    QString horaire;
    bool babs = false;
};

/// `ligmois`: one planning line, a worker or a post. Limits are in minutes but for `nrep` and `nrepd`.
struct Ligne {
    int nump = 0;
    QString nom;
    QDate datedeb;
    QDate datefin; ///< last date, inclusive; 01/01/2099 while the line is open
    bool bcontrolh = false;
    int maxs = 0;
    int maxj = 0;
    int ampj = 0;
    int reposmin = 0;
    bool b6j = false;
    bool bcontrolr = false;
    int nrep = 0;
    int nrepd = 0;
    bool bcontrolp = false;
    int pause = 0;
};

/// `absences`: one span of absence, both dates inclusive.
struct AbsenceSaisie {
    int nump = 0;
    int numi = 0;
    QString codabs;
    QDate datedeb;
    QDate datefin;
};

/// `codabs`: an absence code and how a day of it counts and shows. Colours are 0xRRGGBB.
struct CodeAbsence {
    QString codabs; ///< two characters, a single letter after a blank
    QString libecour;
    QString libelong;
    std::optional<int> modabs; ///< -1 never counts, 0 the hours of the day, above 0 that many minutes
    bool bcouleur = false;
    int backc = 0;
    int forec = 0;
    bool barc = false;
    QString classe;
    QString larr;
};

/// `parcg`: a parameter set, in force from `dat` on.
struct JeuParam {
    QDate dat;
    int fdomtom = 0; ///< region, 0 to 9
    int convcol = 0;
    QString nometab;
};

/// `ferie`: a holiday or closure.
struct JourFerie {
    QDate datedeb;
    QDate datefin;
    QString lib;
    int act = 0; ///< 1 protects a row entered by hand from the reset
    int Val = 0;
};

/// `groupe`: a folder's head row (`nump` 0) or one line of the folder.
struct Dossier {
    QString groupe;
    int nump = 0;
    bool sel = false;
};

/// `tnum`: the one row of the base's own state.
struct Tnum {
    QString chemin;     ///< last backup target
    double Version = 0; ///< of the engine that made the row; files of any version are opened
    int num = 0;        ///< 1; nothing reads it
};

/// `veloption`: no field of it is read; the table has to be there.
struct Veloption {
    int num = 0;
};

} // namespace velmora
