#include "output/code_print.h"

#include "foncgen/foncgen.h"
#include "output/page_head.h"
#include "session/batch.h"

#include <algorithm>

namespace velmora
{

namespace
{

constexpr double taille = 9;
constexpr int derniereLigne = 63;
/// A row needs this many lines below its own.
constexpr int reserve = 2;

// Columns of the page grid.
constexpr int colonneCode = 6;
constexpr int colonneCourt = 10;
constexpr int colonneLong = 28;
constexpr int colonneArchive = 68;

constexpr int largeur(int de, int a)
{
    return (a - de - 1) * papier::largeurColonne;
}

std::vector<CodeAbsence> litCodes(Session &session, store::Status &statut)
{
    const ReadPass lecture(session.base.engine);
    auto lignes = session.base.codabs.range("codabs01", {}, {});
    std::vector<CodeAbsence> codes;
    while (lignes.next())
        codes.push_back(lignes.row());
    statut = lignes.status();
    return codes;
}

/// Begins a page and gives its first line.
int commencePage(Imprimante &imprimante, const EntetePage &entete)
{
    const int ligne = entetepage(imprimante, entete);
    imprimante.fixePolice(taille);
    return ligne;
}

void imprimeCode(Imprimante &imprimante, int &ligne, const CodeAbsence &code)
{
    Foncgen::pprint(imprimante, ligne, colonneCode, code.codabs);
    Foncgen::pprint(imprimante, ligne, colonneCourt,
                    imprimante.abrege(code.libecour, largeur(colonneCourt, colonneLong)));
    Foncgen::pprint(imprimante, ligne, colonneLong,
                    imprimante.abrege(code.libelong, largeur(colonneLong, colonneArchive)));
    if (code.barc) Foncgen::pprint(imprimante, ligne, colonneArchive, QStringLiteral("archivé"));
}

} // namespace

Impression impressionCodes(Session &session)
{
    const QString titreCodes = QStringLiteral("Codes absence");
    return {titreCodes, [&session, titreCodes](Imprimante &imprimante, const Progres &progres) {
                store::Status statut;
                const std::vector<CodeAbsence> codes = litCodes(session, statut);
                EntetePage entete{session.nometab, titreCodes, {}, 0};
                const int nombre = static_cast<int>(codes.size());
                const int parPage = derniereLigne - reserve - premiereLigne(entete) + 1;
                entete.nbpages = (nombre + parPage - 1) / parPage;
                int ligneimp = commencePage(imprimante, entete);
                int faits = 0;
                for (const CodeAbsence &code : codes) {
                    if (ligneimp + reserve > derniereLigne) ligneimp = commencePage(imprimante, entete);
                    imprimeCode(imprimante, ligneimp, code);
                    ++ligneimp;
                    progres(++faits, nombre);
                }
                return statut;
            }};
}

} // namespace velmora
