#pragma once

#include "cli/commands.h"

namespace velmora::cli
{

// The commands by family, each in the order of the help. A family stands beside its commands.
std::vector<Commande> commandesBase();
std::vector<Commande> commandesMois();
std::vector<Commande> commandesLignes();
std::vector<Commande> commandesAbsences();
std::vector<Commande> commandesCodes();
std::vector<Commande> commandesControle();
std::vector<Commande> commandesCalendrier();
std::vector<Commande> commandesDossiers();
std::vector<Commande> commandesImpressions();
std::vector<Commande> commandesExport();
std::vector<Commande> commandesSauvegarde();
std::vector<Commande> commandesVerification();

} // namespace velmora::cli
