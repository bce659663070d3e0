#pragma once

#include "session/session.h"

#include <array>
#include <optional>

namespace velmora
{

/// A field of the line dialogs.
enum class ChampLigne { Nom, Date, Maxs, Maxj, Ampj, Reposmin, Nrep, Nrepd, Pause };

/// How a command on a line ended.
struct IssueLigne {
    bool faite = false;
    std::optional<ChampLigne> champ{}; ///< the field that was refused, when it wasn't done
};

/// The control fields of a line as they are typed. A new one holds what the dialogs propose.
struct ChampsControles {
    bool bcontrolh = false;
    QString maxs = QStringLiteral("48h00");
    QString maxj = QStringLiteral("10h00");
    QString ampj = QStringLiteral("13h00");
    QString reposmin = QStringLiteral("11h00");
    bool b6j = false;
    bool bcontrolr = false;
    QString nrep = QStringLiteral("4");
    QString nrepd = QStringLiteral("1");
    bool bcontrolp = false;
    QString pause = QStringLiteral("20"); ///< minutes
};

/// A text field of the controls with the switch that opens it.
struct ChampControle {
    ChampLigne champ;
    QString ChampsControles::*texte;
    bool ChampsControles::*commande;
};

/// The text fields in the order of the dialogs.
inline constexpr std::array<ChampControle, 7> champsControles{{
    {ChampLigne::Maxs, &ChampsControles::maxs, &ChampsControles::bcontrolh},
    {ChampLigne::Maxj, &ChampsControles::maxj, &ChampsControles::bcontrolh},
    {ChampLigne::Ampj, &ChampsControles::ampj, &ChampsControles::bcontrolh},
    {ChampLigne::Reposmin, &ChampsControles::reposmin, &ChampsControles::bcontrolh},
    {ChampLigne::Nrep, &ChampsControles::nrep, &ChampsControles::bcontrolr},
    {ChampLigne::Nrepd, &ChampsControles::nrepd, &ChampsControles::bcontrolr},
    {ChampLigne::Pause, &ChampsControles::pause, &ChampsControles::bcontrolp},
}};

/// The fields as they show a line: what its controls don't use shows the proposed value.
[[nodiscard]] ChampsControles controlesDe(const Ligne &ligne);

/// Checks the fields, with a message or a question at the first that is wrong. `faite` when they can be
/// written.
[[nodiscard]] IssueLigne verifieControles(Session &session, const ChampsControles &champs);

/// Writes the fields into a line. What is switched off becomes 0 whatever its field shows.
void ecritControles(const ChampsControles &champs, Ligne &ligne);

} // namespace velmora
