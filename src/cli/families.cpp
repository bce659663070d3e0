#include "cli/families.h"

#include "cli/base_commands.h"
#include "cli/days_commands.h"
#include "cli/entry_command.h"
#include "cli/journal_command.h"
#include "cli/month_commands.h"
#include "cli/undo_commands.h"

namespace velmora::cli
{

std::vector<Commande> commandesBase()
{
    return {{"init",
             "",
             "crée les deux bases de données qui manquent",
             0,
             0,
             {{"utilisateur", "PSEUDO:NOM", true}},
             commandeInit},
            {"demo",
             "",
             "crée des bases de données avec un planning d'exemple",
             0,
             0,
             {{"lignes", "N"}, {"mois", "N"}, {"graine", "N"}},
             commandeDemo}};
}

std::vector<Commande> commandesMois()
{
    return {{"mois",
             "M/AAAA",
             "affiche le planning d'un mois",
             1,
             1,
             {{"dossier", "NOM"}, {"cellules", "0|1|2"}, {"centiemes"}, {"png", "FICHIER"}},
             commandeMois},
            {"statut",
             "NUMP DATE",
             "affiche l'état d'une journée",
             2,
             2,
             {{"cellules", "0|1|2"}},
             commandeStatut},
            {"saisie",
             "NUMP DEBUT [FIN] H-H [H-H [H-H]]",
             "enregistre l'horaire d'une ligne",
             3,
             6,
             {},
             commandeSaisie},
            {"copier",
             "NUMP DEBUT FIN",
             "copie les horaires d'une ligne à partir d'un autre jour",
             3,
             3,
             {{"vers", "NUMP DATE", false, true, 2}},
             commandeCopier},
            {"couper",
             "NUMP DEBUT FIN",
             "déplace les horaires d'une ligne à partir d'un autre jour",
             3,
             3,
             {{"vers", "NUMP DATE", false, true, 2}},
             commandeCouper},
            {"supprimer",
             "NUMP DEBUT [FIN]",
             "supprime l'absence du premier jour ou, sans absence, les horaires",
             2,
             3,
             {},
             commandeSupprimer},
            {"annuler", "", "annule la dernière opération, après une question", 0, 0, {}, commandeAnnuler},
            {"refaire",
             "",
             "refait l'opération annulée en dernier, après une question",
             0,
             0,
             {},
             commandeRefaire},
            {"journal", "", "affiche les opérations enregistrées", 0, 0, {}, commandeJournal}};
}

} // namespace velmora::cli
