#pragma once

#include "month/cells.h"
#include "month/clipboard.h"
#include "month/columns.h"
#include "month/commands.h"
#include "month/grid.h"
#include "month/period.h"
#include "session/session.h"

#include <QHash>

namespace velmora
{

/// A place in the grid, in grid rows and columns.
struct Place {
    int ligne = 0;
    int colonne = 0;
    friend bool operator==(const Place &, const Place &) = default;
};

/// The cell that carries the highlight and the colours that it had before.
struct Surbrillance {
    Place place{-1, -1};
    QRgb fond = 0;
    QRgb encre = 0;
};

/// The colours that a cell has of its own.
struct Couleurs {
    QRgb fond = palette::fond;
    QRgb encre = palette::encre;
};

/// A run of columns on one row. It only grows to the right; `selfin` below `seldeb` is the empty state of a
/// drag that came back onto its anchor.
struct Selection {
    bool selact = false;          ///< a selection exists
    bool selglisse = false;       ///< the left button is dragging
    int selligne = 0;             ///< its row
    int seldeb = 0;               ///< anchor column
    int selfin = 0;               ///< last selected column
    QHash<int, QRgb> coulfond{};  ///< own background of the selected cells, by column
    QHash<int, QRgb> coultexte{}; ///< own text colour of them
};

/// An open month: what the month form shows, without the form. The procedures of this folder work on it;
/// the form only passes events in and shows what comes back.
struct Planning {
    Planning(Session &theSession, int mois, int annee)
        : session(theSession), periode(periodeDuMois(mois, annee)), colonnes(colonnesDe(periode))
    {
    }
    Planning(const Planning &) = delete;
    Planning &operator=(const Planning &) = delete;

    Session &session;
    Periode periode;
    Colonnes colonnes;
    Grille grille;
    Mesures mesures;
    TextesHoraire textes; ///< texts of the day cells, shared between them

    bool suivi = false; ///< the grid reacts; false while it is loaded or changed by the program
    Place curseur{Grille::lignesFixes, Grille::colonnesFixes};
    int colprec = Grille::colonnesFixes; ///< the cell that the cursor last stood on
    int rowprec = Grille::lignesFixes;
    int colonneGauche = Grille::colonnesFixes; ///< first day column in view
    Surbrillance surbrillance;
    bool rapportdemande = false; ///< the current line's labour report was asked for; the next refresh answers
    bool controlpresent = false; ///< a line of the grid has controls: the column of states is open
    QString texteStatut;         ///< status text of the current cell
    QDate dateStatut;
    EtatCommandes commandes;
    Selection selection;
    Pressepapiers pressepapiers;
    store::Status lecture; ///< first failure of a read since the load or the refill began

    /// Keeps the first failure among the reads of a load or a refill.
    void noteLecture(const store::Status &status)
    {
        if (lecture.ok()) lecture = status;
    }
    [[nodiscard]] int premiereColonne() const { return Grille::colonnesFixes; }
    [[nodiscard]] QDate date(int colonne) const
    {
        return colonnes.datecol[static_cast<std::size_t>(colonne)];
    }
};

/// Turns the grid's drawing and reactions off for a scope, and on again at its end.
class TravailGrille
{
public:
    explicit TravailGrille(Planning &planning) : m_planning(planning), m_dessin(planning.grille)
    {
        m_planning.suivi = false;
    }
    ~TravailGrille() { m_planning.suivi = true; }
    TravailGrille(const TravailGrille &) = delete;
    TravailGrille &operator=(const TravailGrille &) = delete;

private:
    Planning &m_planning;
    DessinSuspendu m_dessin;
};

} // namespace velmora
