#pragma once

#include "session/session.h"

#include <vector>

namespace velmora
{

/// Most characters of a code's labels.
inline constexpr int longueurLibecour = 25;
inline constexpr int longueurLibelong = 50;

/// How a day of absence is valued: the options of the editor, by their numbers.
enum class Valorisation {
    Aucune = -1,    ///< none is chosen yet
    HorairesPrevus, ///< the hours that the day held
    ValeurFixe,
    Jamais
};

/// What the editor of an absence code holds. Colours are 0xRRGGBB.
struct FicheCode {
    bool nouveau = true; ///< a code to add; the code of a change can't be edited
    QString codabs;
    QString libecour;
    QString libelong;
    Valorisation valorisation = Valorisation::Aucune;
    QString valeur = QStringLiteral("7h00"); ///< "Valeur d'une journée"
    bool bcouleur = false;
    int backc = 0xffffff; ///< of the sample; stored only with `bcouleur`
    int forec = 0;
    bool barc = false;

    /// Whether the day's value is open for entry.
    [[nodiscard]] bool valeurPermise() const { return valorisation == Valorisation::ValeurFixe; }
    /// An option is clicked: the day's value is filled in, or opened as it stands.
    void choisit(Valorisation choix);
};

/// Every code in the order of its index, archived ones included. A read that fails gives fewer, and `lecture`
/// tells it.
[[nodiscard]] std::vector<CodeAbsence> codesDeLaTable(Session &session, store::Status *lecture = nullptr);

/// The same as the list shows them: those that are not archived, then the archived ones.
[[nodiscard]] std::vector<CodeAbsence> codesDeLaListe(Session &session, store::Status *lecture = nullptr);

/// What the field of a code holds after a change: at most two characters, a single one after a blank, and
/// nothing for blanks.
[[nodiscard]] QString codeSaisi(const QString &texte);

/// The editor's contents for a code. A code without a valuation opens on the hours of the day.
[[nodiscard]] FicheCode ficheDe(const CodeAbsence &code);

/// Checks what was entered and writes it; `codabs` is then on the row. False after a message, with nothing
/// written.
[[nodiscard]] bool enregistreCode(Session &session, const FicheCode &fiche);

/// Deletes a code after a question, unless an absence of whatever date has it: then a message says to archive
/// it. True when it is gone.
[[nodiscard]] bool supprimeCode(Session &session, const QString &code);

} // namespace velmora
