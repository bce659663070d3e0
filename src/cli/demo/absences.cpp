#include "cli/demo/absences.h"

#include <algorithm>
#include <array>

namespace velmora::cli::demo
{

namespace
{

constexpr int jamais = -1;
constexpr int prevus = 0;

/// A code and how often and how long it occurs.
struct Motif {
    const char *code;
    const char *court;
    const char *longtexte;
    int modabs;
    int fond;
    int caractere;
    int pourcent; ///< share of the ordinary absences
    int joursMini;
    int joursMaxi;
};

constexpr std::array<Motif, 8> motifs{{
    {"CA", "Congé annuel", "Congés annuels", prevus, 0xc6e5b3, 0x1e4620, 34, 3, 9},
    {" R", "RTT", "Réduction du temps de travail", 7 * 60, 0xfff2b3, 0x5c4700, 20, 1, 1},
    {"MA", "Maladie", "Arrêt maladie", prevus, 0xf8c9c4, 0x7a1510, 16, 2, 12},
    {"FO", "Formation", "Formation professionnelle", 7 * 60, 0xc9dcf5, 0x123c69, 10, 1, 3},
    {"RC", "Récupération", "Repos compensateur", jamais, 0xe2d4f0, 0x46256b, 10, 1, 2},
    {"EF", "Évèn. familial", "Évènement familial", 7 * 60 + 30, 0xfbdcc0, 0x70380a, 4, 1, 4},
    {"AT", "Acc. travail", "Accident du travail", prevus, 0xf0b6cf, 0x6d1240, 3, 5, 30},
    {"SS", "Sans solde", "Congé sans solde", jamais, 0xd5d8dc, 0x2c3137, 3, 3, 10},
}};

const Motif &tire(Hasard &hasard)
{
    int reste = hasard.jusqua(100);
    for (const Motif &motif : motifs) {
        if (reste < motif.pourcent) return motif;
        reste -= motif.pourcent;
    }
    return motifs.front();
}

/// Absences per month in percent: leave is taken in summer and at the end of the year.
int frequence(int mois)
{
    if (mois == 7 || mois == 8) return 75;
    return mois == 12 ? 45 : 30;
}

bool ete(const QDate &mois)
{
    return mois.month() == 7 || mois.month() == 8;
}

/// Two or three weeks in summer, else what the lot says.
AbsenceSaisie absenceDuMois(int nump, const QDate &mois, Hasard &hasard)
{
    const bool grandConge = ete(mois) && hasard.chance(60);
    const Motif &motif = grandConge ? motifs.front() : tire(hasard);
    const int duree = grandConge ? 7 * hasard.entre(2, 3) : hasard.entre(motif.joursMini, motif.joursMaxi);
    const QDate debut = mois.addDays(hasard.jusqua(28));
    // Entered with one letter, a code is stored without its leading blank.
    return {nump, 0, QString::fromUtf8(motif.code).trimmed(), debut, debut.addDays(duree - 1)};
}

} // namespace

std::vector<CodeAbsence> codesAbsence()
{
    std::vector<CodeAbsence> codes;
    for (const Motif &motif : motifs) {
        codes.push_back({QString::fromUtf8(motif.code), QString::fromUtf8(motif.court),
                         QString::fromUtf8(motif.longtexte), motif.modabs, true, motif.fond, motif.caractere,
                         false, QStringLiteral(""), QStringLiteral("")});
    }
    return codes;
}

std::vector<AbsenceSaisie> absencesDe(int nump, const Intervalle &intervalle, Hasard &hasard)
{
    std::vector<AbsenceSaisie> absences;
    QDate libre = intervalle.premier;
    QDate mois(intervalle.premier.year(), intervalle.premier.month(), 1);
    for (; mois <= intervalle.dernier; mois = mois.addMonths(1)) {
        if (!hasard.chance(frequence(mois.month()))) continue;
        AbsenceSaisie absence = absenceDuMois(nump, mois, hasard);
        absence.datefin = std::min(absence.datefin, intervalle.dernier);
        if (absence.datedeb < libre || absence.datedeb > intervalle.dernier) continue;
        libre = absence.datefin.addDays(1);
        absences.push_back(absence);
    }
    return absences;
}

} // namespace velmora::cli::demo
