#include "cli/demo/lines.h"

#include <algorithm>
#include <array>

namespace velmora::cli::demo
{

namespace
{

constexpr const char *soins = "SOINS";
constexpr const char *nuit = "NUIT";
constexpr const char *hotellerie = "HOTELLERIE";

struct Emploi {
    const char *nom;
    Genre genre;
    const char *dossier;
};

// In the order in which lines take them, so that a small planning shows every kind.
constexpr std::array<Emploi, 16> emplois{{
    {"AS", Genre::Jour, soins},
    {"NUIT", Genre::Nuit, nuit},
    {"CUIS", Genre::Coupe, hotellerie},
    {"LING", Genre::Partiel, hotellerie},
    {"IDE", Genre::Jour, soins},
    {"ACC", Genre::Bureau, nullptr},
    {"ASH", Genre::Jour, hotellerie},
    {"AS", Genre::Jour, soins},
    {"AS", Genre::Coupe, soins},
    {"NUIT", Genre::Nuit, nuit},
    {"ASH", Genre::Partiel, hotellerie},
    {"IDE", Genre::Jour, soins},
    {"AS", Genre::Jour, soins},
    {"ANIM", Genre::Partiel, nullptr},
    {"ASH", Genre::Jour, hotellerie},
    {"AS", Genre::Partiel, soins},
}};

constexpr std::array familles{
    "MARTIN",   "BERNARD", "DUBOIS",  "THOMAS",  "ROBERT",   "PETIT",   "DURAND",   "LEROY",  "MOREAU",
    "SIMON",    "LAURENT", "LEFÈVRE", "MICHEL",  "GARCIA",   "DAVID",   "BERTRAND", "ROUX",   "VINCENT",
    "FOURNIER", "MOREL",   "GIRARD",  "ANDRÉ",   "MERCIER",  "DUPONT",  "LAMBERT",  "BONNET", "FAURE",
    "BLANC",    "GUÉRIN",  "BOYER",   "GARNIER", "FRANÇOIS", "LEGRAND", "GAUTIER",  "PERRIN", "ROBIN",
    "CLÉMENT",  "MORIN",   "NICOLAS", "HENRY",   "ROUSSEL",  "MATHIEU", "GAUTHIER", "MASSON", "DUVAL",
    "DENIS",    "DUMONT",  "MARIE",   "LEMAIRE", "NOËL"};
constexpr std::array initiales{'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I', 'J', 'K',
                               'L', 'M', 'N', 'O', 'P', 'R', 'S', 'T', 'V', 'Y'};

/// Every pair of a family name and an initial, shuffled, so that no two lines share a name.
std::vector<int> personnes(Hasard &hasard)
{
    std::vector<int> rangs(familles.size() * initiales.size());
    for (std::size_t i = 0; i < rangs.size(); ++i)
        rangs[i] = static_cast<int>(i);
    for (std::size_t i = rangs.size() - 1; i > 0; --i)
        std::swap(rangs[i], rangs[static_cast<std::size_t>(hasard.jusqua(static_cast<int>(i) + 1))]);
    return rangs;
}

QString nom(const Emploi &emploi, int personne)
{
    const auto rang = static_cast<std::size_t>(personne);
    return QStringLiteral("%1 %2 %3")
        .arg(QString::fromUtf8(emploi.nom), QString::fromUtf8(familles[rang / initiales.size()]),
             QString(QLatin1Char(initiales[rang % initiales.size()])));
}

/// Limits on every second line. A night has its pauses paid and may be longer than a day.
void limite(Ligne &ligne, Genre genre)
{
    if (ligne.nump % 2 != 0) return;
    const bool nuitee = genre == Genre::Nuit;
    ligne.bcontrolh = ligne.b6j = ligne.bcontrolr = true;
    ligne.bcontrolp = !nuitee;
    ligne.maxs = 48 * 60;
    ligne.maxj = (nuitee ? 12 : 10) * 60;
    ligne.ampj = 13 * 60;
    ligne.reposmin = 11 * 60;
    ligne.nrep = 4;
    ligne.nrepd = 1;
    ligne.pause = nuitee ? 0 : 20;
}

/// Most lines are older than the planning and open; a few begin or end within it, and all are open on the
/// first of today's month.
void date(Ligne &ligne, const Demo &demo, Hasard &hasard)
{
    const QDate premier(demo.aujourdhui.year(), demo.aujourdhui.month(), 1);
    const int avant = static_cast<int>(demo.debut().daysTo(premier)) + 1;
    const int apres = static_cast<int>(premier.daysTo(demo.fin())) + 1;
    ligne.datedeb = demo.debut().addDays(-hasard.entre(30, 3000));
    ligne.datefin = QDate(2099, 1, 1);
    if (ligne.nump % 15 == 8) ligne.datedeb = demo.debut().addDays(hasard.jusqua(avant));
    if (ligne.nump % 15 == 12) ligne.datefin = premier.addDays(hasard.jusqua(apres));
}

} // namespace

Intervalle LigneDemo::dans(const Intervalle &intervalle) const
{
    return {std::max(intervalle.premier, ligne.datedeb), std::min(intervalle.dernier, ligne.datefin)};
}

std::vector<LigneDemo> lignesDemo(const Demo &demo, Hasard &hasard)
{
    const std::vector<int> noms = personnes(hasard);
    std::vector<LigneDemo> lignes;
    for (int i = 0; i < demo.lignes; ++i) {
        const Emploi &emploi = emplois[static_cast<std::size_t>(i) % emplois.size()];
        LigneDemo une;
        une.ligne.nump = i + 1;
        une.ligne.nom = nom(emploi, noms[static_cast<std::size_t>(i)]);
        une.genre = emploi.genre;
        une.dossier = emploi.dossier;
        une.decalage = 7 * hasard.jusqua(2);
        limite(une.ligne, une.genre);
        date(une.ligne, demo, hasard);
        lignes.push_back(une);
    }
    return lignes;
}

std::vector<Dossier> tetesDossiers()
{
    std::vector<Dossier> tetes;
    for (const char *dossier : {soins, nuit, hotellerie})
        tetes.push_back({QString::fromUtf8(dossier), 0, false});
    return tetes;
}

std::vector<Dossier> membres(const LigneDemo &ligne)
{
    if (!ligne.dossier) return {};
    return {{QString::fromUtf8(ligne.dossier), ligne.ligne.nump, true}};
}

} // namespace velmora::cli::demo
