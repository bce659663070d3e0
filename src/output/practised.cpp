#include "output/practised.h"

#include "month/period.h"
#include "session/batch.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <unordered_map>

namespace velmora
{

namespace
{

constexpr int largeurMoment = 5;
constexpr int largeurDuree = 7;

/// The six times of a schedule packed in two numbers, which order schedules by start, end and pauses.
struct Cle {
    quint64 horaire; ///< start, end and first pause
    quint64 pause2;

    friend auto operator<=>(const Cle &, const Cle &) = default;
};

struct Hachage {
    std::size_t operator()(const Cle &cle) const
    {
        constexpr quint64 dispersion = 0x9e3779b97f4a7c15ULL;
        const quint64 melange = (cle.horaire ^ (cle.pause2 * dispersion)) * dispersion;
        return static_cast<std::size_t>(melange ^ (melange >> 32));
    }
};

quint64 serre(std::initializer_list<int> minutes)
{
    quint64 serrees = 0;
    for (const int valeur : minutes)
        serrees = serrees << 16 | static_cast<quint16>(valeur);
    return serrees;
}

Cle cleDe(const HorairePratique &horaire)
{
    return {serre({horaire.heurdeb, horaire.heurfin, horaire.hideb, horaire.hifin}),
            serre({horaire.hideb2, horaire.hifin2})};
}

int surLHorloge(int minutes)
{
    return minutes > minutesParJour ? minutes - minutesParJour : minutes;
}

int ecart(int debut, int fin)
{
    return fin < debut ? fin + minutesParJour - debut : fin - debut;
}

void effaceSiNulle(int &debut, int &fin)
{
    if (debut == fin) debut = fin = 0;
}

HorairePratique horaireDe(const JourSit &jour)
{
    HorairePratique horaire{surLHorloge(jour.heurdeb), surLHorloge(jour.heurfin), surLHorloge(jour.hideb),
                            surLHorloge(jour.hifin),   surLHorloge(jour.hideb2),  surLHorloge(jour.hifin2)};
    effaceSiNulle(horaire.hideb, horaire.hifin);
    effaceSiNulle(horaire.hideb2, horaire.hifin2);
    return horaire;
}

/// The schedules seen so far, each with its count.
class Comptage
{
public:
    void ajoute(const JourSit &jour)
    {
        const HorairePratique horaire = horaireDe(jour);
        const auto [place, nouveau] = m_rangs.try_emplace(cleDe(horaire), m_horaires.size());
        if (nouveau) m_horaires.push_back(horaire);
        ++m_horaires[place->second].occurrences;
    }
    [[nodiscard]] std::vector<HorairePratique> &&horaires() { return std::move(m_horaires); }

private:
    std::unordered_map<Cle, std::size_t, Hachage> m_rangs;
    std::vector<HorairePratique> m_horaires;
};

bool periodeRemplie(Session &session, const QDate &debut, const QDate &fin)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper02");
    return sitper.seek(store::Cmp::Ge, {debut}) && sitper.row().dat <= fin;
}

store::Status compteLigne(Session &session, int nump, const QDate &debut, const QDate &fin,
                          Comptage &comptage)
{
    static const auto lus =
        store::Columns<JourSit>::of(&JourSit::Val, &JourSit::heurdeb, &JourSit::heurfin, &JourSit::hideb,
                                    &JourSit::hifin, &JourSit::hideb2, &JourSit::hifin2);
    auto jours = session.base.sitper.range("sitper01", {nump, debut}, {nump, fin}, lus);
    while (jours.next())
        if (jours.row().Val && jours.row().heurdeb != jours.row().heurfin) comptage.ajoute(jours.row());
    return jours.status();
}

/// What a column sorts by: its own value, then the times.
int valeurColonne(const HorairePratique &horaire, int colonne)
{
    const std::array valeurs{horaire.heurdeb, horaire.heurfin, horaire.hideb,   horaire.hifin,
                             horaire.hideb2,  horaire.hifin2,  horaire.duree(), horaire.occurrences};
    return valeurs.at(static_cast<std::size_t>(colonne));
}

QString moment(int minutes, bool existe = true)
{
    return existe ? Foncgen::fwhl(minutes, largeurMoment) : QString();
}

} // namespace

int HorairePratique::duree() const
{
    return ecart(heurdeb, heurfin) - ecart(hideb, hifin) - ecart(hideb2, hifin2);
}

HorairesPratiques horairesPratiques(Session &session, const QDate &debut, const QDate &fin,
                                    const std::function<void(int)> &progres)
{
    const ReadPass passe(session.base.engine);
    Periode periode;
    periode.debgrille = debut;
    periode.fingrille = fin;
    HorairesPratiques rapport;
    if (!periodeRemplie(session, debut, fin)) {
        rapport.lecture = session.base.sitper.status();
        return rapport;
    }
    Comptage comptage;
    int lues = 0;
    auto lignes = session.base.ligmois.range("ligmois01", {}, {});
    while (rapport.lecture.ok() && lignes.next()) {
        if (dansPeriode(lignes.row(), periode)) {
            rapport.donnees = true;
            rapport.lecture = compteLigne(session, lignes.row().nump, debut, fin, comptage);
        }
        if (progres) progres(++lues);
    }
    if (rapport.lecture.ok()) rapport.lecture = lignes.status();
    rapport.horaires = comptage.horaires();
    trieHoraires(rapport.horaires, 0, true);
    return rapport;
}

QString defautHoraires(const HorairesPratiques &rapport)
{
    if (!rapport.lecture.ok()) return QStringLiteral("Le planning n'a pas pu être lu en entier.");
    return rapport.donnees ? QString() : QStringLiteral("planning non généré");
}

QStringList titresHoraires()
{
    return {QStringLiteral("Début"),    QStringLiteral("Fin"),      QStringLiteral("D.Coup.1"),
            QStringLiteral("F.Coup.1"), QStringLiteral("D.Coup.2"), QStringLiteral("F.Coup.2"),
            QStringLiteral("Durée"),    QStringLiteral("Nb Occur.")};
}

QStringList textesHoraire(const HorairePratique &horaire)
{
    return {moment(horaire.heurdeb),
            moment(horaire.heurfin),
            moment(horaire.hideb, horaire.premierePause()),
            moment(horaire.hifin, horaire.premierePause()),
            moment(horaire.hideb2, horaire.secondePause()),
            moment(horaire.hifin2, horaire.secondePause()),
            Foncgen::fwhl(horaire.duree(), largeurDuree),
            QString::number(horaire.occurrences)};
}

void trieHoraires(std::vector<HorairePratique> &horaires, int colonne, bool croissant)
{
    std::sort(horaires.begin(), horaires.end(), [&](const HorairePratique &un, const HorairePratique &autre) {
        const int gauche = valeurColonne(un, colonne);
        const int droite = valeurColonne(autre, colonne);
        if (gauche != droite) return croissant ? gauche < droite : gauche > droite;
        return cleDe(un) < cleDe(autre);
    });
}

QString titreHoraires(const QDate &debut, const QDate &fin)
{
    return QStringLiteral("Horaires Pratiqués") + QStringLiteral(" du ") + Foncgen::dtoc(debut) +
           QStringLiteral(" au ") + Foncgen::dtoc(fin);
}

} // namespace velmora
