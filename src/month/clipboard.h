#pragma once

#include "session/session.h"

#include <functional>
#include <vector>

namespace velmora
{

struct Planning;

/// What cut and copy hold. The rows stand in `sitco` of the journal; here is which day has which. It survives
/// a paste and can be pasted again.
struct Pressepapiers {
    /// For each day held, in order, its row in `sitco`; empty for a day without hours, which a paste empties.
    std::vector<store::Bookmark<JourCopie>> clipbk;
    bool clipcoupe = false; ///< the running command is a cut
    int clipligne = 0;      ///< grid row of the source or target line
    QString infobulle;      ///< tooltip of the button "Coller": the hours of each day held last
    int vidages = 0;        ///< the session's count of emptied clipboards when the days were held

    /// Days held, 0 when the clipboard is empty.
    [[nodiscard]] int cliplong() const { return static_cast<int>(clipbk.size()); }
    /// Whether days are held still: any other operation of the journal ends what was cut or copied.
    [[nodiscard]] bool tient(const Session &session) const
    {
        return cliplong() > 0 && vidages == session.vidagessitco;
    }
    void vide();
};

/// What a copy or a cut found.
enum class Retenue {
    Abandonnee, ///< the store failed for good, and has said it: nothing is held
    SansHeures, ///< no day had hours: the days are held all the same
    Faite
};

/// Holds the days of a line from one date to another, both included; with `clipcoupe` it also takes their
/// rows out of the planning, as one operation of the journal. What was held before goes. One transaction over
/// both files; a failure asks whether to try again, and a second try still holds what the first one took out.
/// Ends with `clipcoupe` false.
Retenue retientJours(Session &session, Pressepapiers &presse, const Ligne &ligne, const QDate &debut,
                     const QDate &fin);

/// Writes the days held on a line from a date on, in calendar order, as one operation and one transaction.
/// Days outside the line's dates are passed over and the later ones keep their place; a day held without
/// hours empties its date; absences aren't looked at. Any other operation of the journal since the cut or
/// copy has ended what was held: then nothing is written and the clipboard is empty. False then, and when the
/// paste was given up.
bool colleJours(Session &session, Pressepapiers &presse, const Ligne &ligne, const QDate &debut);

/// Holds the selection or the current day, or cuts it when `clipcoupe` is set. `montreApercu` shows the new
/// tooltip, before anything is said.
void clipcopie(Planning &planning, const std::function<void()> &montreApercu = {});

/// Pastes from the current cell on and removes the selection.
void clipcolle(Planning &planning);

/// What is said when nothing of a selection has hours.
[[nodiscard]] QString pasDHoraire();

} // namespace velmora
