#include "store/verification_rules.h"

// A row of a day's hours with a moment out of the day or a negative time. A null reads as 0.
#define HORS(debut, fin) debut " NOT BETWEEN 0 AND 1440 OR " fin " NOT BETWEEN 0 AND 1440 OR "
#define HORS_JOURNEE                                                                                         \
    "(" HORS("heurdeb", "heurfin") HORS("hideb", "hifin") HORS("hideb2", "hifin2") HORS("hdeb1", "hfin1")    \
        HORS("hdeb2", "hfin2") HORS("hdeb3", "hfin3") HORS("hdeb4", "hfin4") HORS("hdeb5", "hfin5")          \
            HORS("hdeb6", "hfin6") "heurtrav < 0 OR heurpaye < 0)"
#define DIT_HORS_JOURNEE "a une heure hors de 0 à 1440 minutes, ou un temps négatif."
// A code as one looks for it: without blanks around it, a single letter after one. A character beyond 16 bits
// counts as two.
#define ROGNE(code)                                                                                          \
    "trim(ifnull(" code ", ''), char(9, 10, 11, 12, 13, 32, 133, 160, 5760, 8192, 8193, 8194, 8195, 8196, "  \
    "8197, 8198, 8199, 8200, 8201, 8202, 8232, 8233, 8239, 8287, 12288))"
#define ALIGNE(code)                                                                                         \
    "substr('  ' || " ROGNE(code) ", -max(length(" ROGNE(code) "), 2 - (" ROGNE(code) " >= char(65536))))"
#define SANS_DATE(champ) "ifnull(" champ ", '') = ''"
#define IMAGE_IMPOSSIBLE                                                                                     \
    "NOT ifnull((avap = 'A' AND foncop IN ('E', 'D')) OR (avap = 'P' AND foncop IN ('E', 'A')), 0)"
// After images of a change that don't follow their before image; one that is missing was lost.
#define SUITES_FAUSSES(table, cle)                                                                           \
    "SELECT numop, nivop FROM " table " p WHERE avap = 'P' AND foncop = 'E' "                                \
    "AND NOT EXISTS (SELECT 1 FROM " table " a WHERE a.numop = p.numop AND a.nivop = p.nivop - 1 "           \
    "AND a.avap = 'A' AND a.foncop = 'E' AND " cle ") AND (nivop = 1 "                                       \
    "OR EXISTS (SELECT 1 FROM sitlog a WHERE a.numop = p.numop AND a.nivop = p.nivop - 1) "                  \
    "OR EXISTS (SELECT 1 FROM logabs a WHERE a.numop = p.numop AND a.nivop = p.nivop - 1))"
#define DIT_SUITE_FAUSSE(table)                                                                              \
    "l'image %2 de l'opération %1 dans " table " ne suit pas celle d'avant son changement."
// The head row of a ring that has been made.
#define TETE "(SELECT * FROM logop WHERE numop = 0 LIMIT 1)"

namespace velmora::store
{

namespace
{

constexpr auto faute = Constat::Gravite::Faute;
constexpr auto remarque = Constat::Gravite::Remarque;

} // namespace

const std::vector<Regle> &reglesBase()
{
    static const std::vector<Regle> regles{
        {faute, "SELECT count(*) FROM tnum HAVING count(*) > 1", "la table tnum a %1 rangées au lieu d'une."},
        {faute, "SELECT pseudo, count(*) FROM agent GROUP BY pseudo HAVING count(*) > 1",
         "l'utilisateur « %1 » figure %2 fois."},

        {faute, "SELECT nump, count(*) FROM ligmois GROUP BY nump HAVING count(*) > 1",
         "le numéro %1 est celui de %2 lignes."},
        {faute, "SELECT nump, nom FROM ligmois WHERE nump < 1",
         "la ligne « %2 » a le numéro %1, qui n'est pas un numéro de ligne."},
        {faute, "SELECT nump FROM ligmois WHERE " SANS_DATE("datedeb") " OR " SANS_DATE("datefin"),
         "la ligne %1 n'a pas ses deux dates."},
        // A line that is opened again may meet one that took its name meanwhile.
        {remarque,
         "SELECT a.nump, b.nump, trim(a.nom) FROM ligmois a JOIN ligmois b ON trim(a.nom) = trim(b.nom) "
         "AND a.nump < b.nump AND a.datedeb <= b.datefin AND b.datedeb <= a.datefin",
         "les lignes %1 et %2 portent le même nom « %3 » pour des périodes qui se chevauchent."},

        {faute, "SELECT nump, dat, count(*) FROM sitper GROUP BY nump, dat HAVING count(*) > 1",
         "la journée du %2 de la ligne %1 figure %3 fois."},
        {faute, "SELECT nump, count(*) FROM sitper WHERE " SANS_DATE("dat") " GROUP BY nump",
         "la ligne %1 a des journées sans date (nombre : %2)."},
        {faute, "SELECT nump, dat FROM sitper WHERE " HORS_JOURNEE,
         "la journée du %2 de la ligne %1 " DIT_HORS_JOURNEE},
        // Undoing an operation on a line that was deleted meanwhile brings its days back.
        {remarque,
         "SELECT nump, count(*) FROM sitper WHERE nump NOT IN (SELECT nump FROM ligmois) GROUP BY nump",
         "des journées sont de la ligne %1, qui n'existe pas (nombre : %2)."},

        {faute,
         "SELECT nump, count(*) FROM absences WHERE " SANS_DATE("datedeb") " OR " SANS_DATE(
             "datefin") " GROUP BY nump",
         "la ligne %1 a des absences sans leurs deux dates (nombre : %2)."},
        {faute, "SELECT nump, datedeb FROM absences WHERE nump < 1",
         "l'absence du %2 est de la ligne %1, qui n'est pas un numéro de ligne."},
        {faute, "SELECT nump, datedeb, datefin FROM absences WHERE datefin < datedeb AND datefin <> ''",
         "l'absence de la ligne %1 du %2 au %3 finit avant de commencer."},
        // An undo can leave them.
        {remarque,
         "SELECT a.nump, a.datedeb, a.datefin, b.datedeb, b.datefin FROM absences a JOIN absences b "
         "ON a.nump = b.nump AND b.datedeb BETWEEN a.datedeb AND a.datefin "
         "AND (a.datedeb < b.datedeb OR a.rowid < b.rowid)",
         "les absences de la ligne %1 du %2 au %3 et du %4 au %5 se chevauchent."},
        {remarque,
         "SELECT nump, datedeb, codabs FROM absences WHERE " ALIGNE(
             "codabs") " NOT IN (SELECT ifnull(codabs, '') FROM codabs)",
         "l'absence de la ligne %1 du %2 porte le code « %3 », qui n'est pas défini."},

        {faute, "SELECT codabs, count(*) FROM codabs GROUP BY codabs HAVING count(*) > 1",
         "le code d'absence « %1 » figure %2 fois."},
        {faute,
         "SELECT codabs FROM codabs WHERE length(codabs) > 2 OR codabs <> " ALIGNE("codabs") " OR " ROGNE(
             "codabs") " = ''",
         "le code d'absence « %1 » n'est pas de deux caractères, ou d'une lettre après un blanc."},
        {faute, "SELECT codabs, modabs FROM codabs WHERE modabs < -1",
         "le code d'absence « %1 » a une valeur de %2 minutes."},

        {faute, "SELECT dat, count(*) FROM parcg GROUP BY dat HAVING count(*) > 1",
         "plusieurs jeux de paramètres s'appliquent au %1 (nombre : %2)."},
        {faute, "SELECT nometab FROM parcg WHERE " SANS_DATE("dat"),
         "le jeu de paramètres de « %1 » n'a pas de date."},
        {faute, "SELECT dat, fdomtom FROM parcg WHERE fdomtom NOT BETWEEN 0 AND 9",
         "le jeu de paramètres du %1 nomme la région %2, qui n'existe pas."},
        {faute, "SELECT lib FROM ferie WHERE " SANS_DATE("datedeb"), "le jour férié « %1 » n'a pas de date."},
        // Two workstations can enter the same one.
        {remarque,
         "SELECT datedeb, count(*) FROM ferie WHERE datedeb <> '' GROUP BY datedeb HAVING count(*) > 1",
         "le %1 est plusieurs fois un jour férié (nombre : %2)."},
        // The last date is that of another tool: nothing reads it.
        {remarque,
         "SELECT datedeb, datefin FROM ferie WHERE ifnull(datefin, '') <> datedeb AND datedeb <> ''",
         "le jour férié du %1 finit le %2, mais seul son premier jour compte."},

        {faute, "SELECT groupe, nump, count(*) FROM groupe GROUP BY groupe, nump HAVING count(*) > 1",
         "le dossier « %1 » a %3 rangées pour la ligne %2."},
        // The deletion of a folder whose head row has blanks around the name leaves such members too: lines
        // that no list of folders shows.
        {faute,
         "SELECT groupe, count(*) FROM groupe WHERE nump <> 0 AND groupe NOT IN "
         "(SELECT groupe FROM groupe WHERE nump = 0 UNION SELECT " ROGNE(
             "groupe") " FROM groupe WHERE nump = 0) "
                       "GROUP BY groupe",
         "le dossier « %1 » n'a pas de rangée de tête (nombre de lignes : %2)."},
        {remarque,
         "SELECT " ROGNE(
             "groupe") " AS nom, count(*) FROM groupe WHERE nump = 0 GROUP BY nom HAVING count(*) > 1",
         "%2 dossiers portent le nom « %1 », aux blancs près."},
        {faute, "SELECT groupe, nump FROM groupe WHERE nump < 0 OR (nump > 0 AND NOT ifnull(sel, 0))",
         "le dossier « %1 » a pour la ligne %2 une rangée qui n'est pas cochée."},
        {faute, "SELECT DISTINCT groupe FROM groupe WHERE length(groupe) > 15 OR " ROGNE("groupe") " = ''",
         "le nom de dossier « %1 » est vide ou passe 15 caractères."},
    };
    return regles;
}

const std::vector<Regle> &reglesJournal()
{
    static const std::vector<Regle> regles{
        {faute, "SELECT count(*) FROM chemin HAVING count(*) > 1",
         "la table chemin a %1 rangées au lieu d'une."},
        {faute, "SELECT nor FROM chemin WHERE nor <> 1 OR ifnull(chemin, '') = ''",
         "la rangée %1 de chemin ne nomme pas le dossier de la base."},

        // A new journal has no ring before its first session.
        {faute, "SELECT count(*) FROM logop HAVING count(*) NOT IN (0, 31)",
         "l'anneau compte %1 rangées au lieu de 31."},
        {faute, "SELECT numop, count(*) FROM logop GROUP BY numop HAVING count(*) > 1",
         "la rangée %1 de l'anneau figure %2 fois."},
        {faute, "SELECT numop FROM logop WHERE numop NOT BETWEEN 0 AND 30", "l'anneau a une rangée %1."},
        {faute,
         "SELECT ordop, nivop FROM " TETE " WHERE ordop NOT BETWEEN 0 AND 30 OR nivop NOT BETWEEN 0 AND 30 "
         "OR valop <> 0 OR ifnull(ficop, '') <> '' OR ifnull(libop, '') <> ''",
         "la tête de l'anneau n'en est pas une (%1 opérations annulées, %2 niveaux libres)."},
        {faute, "SELECT numop, nivop FROM logop WHERE numop > 0 AND nivop <> 0",
         "la rangée %1 de l'anneau a le niveau %2 au lieu de 0."},
        {faute, "SELECT numop, ordop FROM logop WHERE numop > 0 AND ifnull(ordop, 0) < 1",
         "la rangée %1 de l'anneau a l'âge %2, qui n'en est pas un."},
        {faute,
         "SELECT numop FROM logop WHERE numop > 0 AND valop AND (ifnull(libop, '') = '' "
         "OR length(ifnull(ficop, '')) <> 1)",
         "l'opération %1 est en vigueur sans libellé, ou sans dire ce qu'elle change."},
        {faute,
         "SELECT min(numop), max(numop), ordop FROM logop WHERE numop > 0 GROUP BY ordop "
         "HAVING count(*) > 1",
         "les rangées %1 et %2 de l'anneau ont le même âge %3."},
        {faute,
         "SELECT tete.ordop + 1, tete.ordop + count(*) FROM logop JOIN " TETE " tete "
         "WHERE logop.numop > 0 AND logop.valop GROUP BY tete.ordop "
         "HAVING min(logop.ordop) <> tete.ordop + 1 OR max(logop.ordop) <> tete.ordop + count(*)",
         "les âges des opérations en vigueur ne se suivent pas de %1 à %2."},
        {faute,
         "SELECT ordop, (SELECT count(*) FROM logop WHERE numop > 0 AND NOT ifnull(valop, 0) AND logop.ordop "
         "BETWEEN 1 "
         "AND tete.ordop) AS gardees FROM " TETE " tete WHERE gardees <> ordop",
         "la tête de l'anneau compte %1 opérations annulées, l'anneau en garde %2."},
        {faute,
         "SELECT nivop, 30 - ordop - (SELECT count(*) FROM logop WHERE numop > 0 AND valop) AS libres "
         "FROM " TETE " WHERE nivop > libres",
         "la tête de l'anneau compte %1 niveaux libres, l'anneau n'en a que %2."},

        {faute,
         "SELECT numop, count(*) FROM (SELECT numop FROM sitlog UNION ALL SELECT numop FROM logabs) "
         "WHERE numop = 0 OR numop NOT IN (SELECT numop FROM logop) GROUP BY numop",
         "des images sont d'une opération %1 que l'anneau n'a pas (nombre : %2)."},
        {faute,
         "SELECT numop, nivop FROM (SELECT numop, nivop FROM sitlog UNION ALL SELECT numop, nivop FROM "
         "logabs) "
         "GROUP BY numop, nivop HAVING count(*) > 1 OR nivop < 1",
         "l'opération %1 a plus d'une image de rang %2, ou ce rang n'en est pas un."},
        {faute,
         "SELECT numop, count(*) FROM (SELECT numop FROM sitlog UNION ALL SELECT numop FROM logabs) "
         "WHERE numop IN (SELECT numop FROM logop WHERE numop > 0 AND NOT ifnull(valop, 0) "
         "AND ifnull(ficop, '') = '' AND ifnull(libop, '') = '') GROUP BY numop",
         "des images sont de l'opération %1, qui n'a jamais été ouverte (nombre : %2)."},
        // A write of the journal that failed doesn't stop the command.
        {remarque,
         "SELECT numop, max(nivop) - count(*) AS perdues FROM (SELECT numop, nivop FROM sitlog UNION "
         "SELECT numop, nivop FROM logabs) GROUP BY numop HAVING perdues > 0",
         "l'opération %1 a perdu des images (nombre : %2)."},
        {faute, "SELECT numop, nivop FROM sitlog WHERE " IMAGE_IMPOSSIBLE,
         "l'image %2 de l'opération %1 dans sitlog n'est d'aucun changement."},
        {faute, "SELECT numop, nivop FROM logabs WHERE " IMAGE_IMPOSSIBLE,
         "l'image %2 de l'opération %1 dans logabs n'est d'aucun changement."},
        {faute, "SELECT numop, nivop FROM sitlog WHERE " SANS_DATE("dat") " OR " HORS_JOURNEE,
         "l'image %2 de l'opération %1 n'est pas celle d'une journée."},
        {faute, "SELECT numop, nivop FROM sitlog WHERE babs <> 0",
         "l'image %2 de l'opération %1 a le champ babs, qui ne s'enregistre pas."},
        {faute,
         "SELECT numop, nivop FROM logabs WHERE " SANS_DATE("datedeb") " OR " SANS_DATE(
             "datefin") " OR datefin < datedeb",
         "l'image %2 de l'opération %1 n'est pas celle d'une absence."},

        {faute, SUITES_FAUSSES("sitlog", "a.nump IS p.nump AND a.dat IS p.dat"), DIT_SUITE_FAUSSE("sitlog")},
        // A change may move an absence's first date.
        {faute, SUITES_FAUSSES("logabs", "a.nump IS p.nump"), DIT_SUITE_FAUSSE("logabs")},
        // The deletion of an absence is an operation on hours.
        {faute,
         "SELECT numop, nivop FROM logabs WHERE numop IN (SELECT numop FROM logop WHERE ficop = 'S') "
         "AND NOT ifnull(avap = 'A' AND foncop = 'D', 0)",
         "l'image %2 de l'opération %1 est d'une absence qui n'est pas supprimée, et l'opération n'est que "
         "d'horaires."},

        {faute, "SELECT nump, dat FROM sitco WHERE " HORS_JOURNEE,
         "la journée du %2 de la ligne %1 que tient une copie " DIT_HORS_JOURNEE},
    };
    return regles;
}

} // namespace velmora::store
