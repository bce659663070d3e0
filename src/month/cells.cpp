#include "month/cells.h"

#include "session/records.h"
#include "session/values.h"

namespace velmora
{

namespace
{

constexpr int largeurDuree = 7;
constexpr qsizetype longueurLigne = 16;
// Texts kept for sharing; past that they start anew.
constexpr qsizetype plusDeTextes = 4096;

/// Writes a start and an end on a cell's text, built in one piece since a month has a hundred thousand of
/// them.
void ajouteTranche(QString &texte, int debut, int fin, QLatin1String entre)
{
    Foncgen::appendHour(texte, debut);
    texte.append(entre);
    Foncgen::appendHour(texte, fin);
}

void ajouteCoupe(QString &texte, int debut, int fin)
{
    texte.append(QLatin1String("\n["));
    ajouteTranche(texte, debut, fin, QLatin1String(" _ "));
    texte.append(QLatin1Char(']'));
}

QString texteReserve(const Horaire &horaire)
{
    QString texte;
    texte.reserve(longueurLigne * (1 + horaire.premiereCoupe() + horaire.secondeCoupe()));
    return texte;
}

QString texteCoupes(const Horaire &horaire)
{
    QString texte = texteReserve(horaire);
    ajouteTranche(texte, horaire.heurdeb, horaire.heurfin, QLatin1String(" - "));
    if (horaire.premiereCoupe()) ajouteCoupe(texte, horaire.hideb, horaire.hifin);
    if (horaire.secondeCoupe()) ajouteCoupe(texte, horaire.hideb2, horaire.hifin2);
    return texte;
}

/// Gives the start and end of each slice that the cuts leave to `recoit`.
template <class Recoit> void parTranche(const Horaire &horaire, Recoit recoit)
{
    int debut = horaire.heurdeb;
    if (horaire.premiereCoupe()) {
        recoit(debut, horaire.hideb);
        debut = horaire.hifin;
    }
    if (horaire.secondeCoupe()) {
        recoit(debut, horaire.hideb2);
        debut = horaire.hifin2;
    }
    recoit(debut, horaire.heurfin);
}

QString texteTranches(const Horaire &horaire)
{
    QString texte = texteReserve(horaire);
    parTranche(horaire, [&](int debut, int fin) {
        if (!texte.isEmpty()) texte += QLatin1Char('\n');
        ajouteTranche(texte, debut, fin, QLatin1String(" - "));
    });
    return texte;
}

/// The status text of valid hours. Its times follow the totals option.
class StatutHoraire
{
public:
    StatutHoraire(const Horaire &horaire, const Session &session)
        : m_horaire(horaire), m_centiemes(session.totcent), m_mode(session.modecellule)
    {
    }

    [[nodiscard]] QString texte() const
    {
        const QString debut = QStringLiteral("[Fait: ") + duree(m_horaire.minutes) + QStringLiteral(" ] de ");
        return debut + (m_mode == TranchesJour ? tranches() : coupes());
    }

private:
    [[nodiscard]] QString duree(int minutes) const { return hdeci(minutes, m_centiemes); }
    [[nodiscard]] QString deA(int debut, int fin) const
    {
        return duree(debut) + QStringLiteral(" à ") + duree(fin);
    }
    [[nodiscard]] QString coupes() const
    {
        QString texte = deA(m_horaire.heurdeb, m_horaire.heurfin);
        if (m_horaire.premiereCoupe()) texte += coupeEntre(m_horaire.hideb, m_horaire.hifin);
        if (m_horaire.secondeCoupe()) texte += coupeEntre(m_horaire.hideb2, m_horaire.hifin2);
        return texte;
    }
    [[nodiscard]] QString coupeEntre(int debut, int fin) const
    {
        return QStringLiteral(" [Coupe: ") + duree(debut) + QStringLiteral(" _ ") + duree(fin) +
               QLatin1Char(']');
    }
    [[nodiscard]] QString tranches() const
    {
        QString texte;
        parTranche(m_horaire, [&](int debut, int fin) {
            if (!texte.isEmpty()) texte += QStringLiteral(" + de ");
            texte += deA(debut, fin);
        });
        return texte;
    }

    const Horaire &m_horaire;
    bool m_centiemes;
    int m_mode;
};

QString statutAbsence(Session &session, int minutes)
{
    const QString code = session.base.absences.row().codabs;
    QString texte = QStringLiteral("ABS: ") + code;
    int valeur = minutes;
    if (cherchecode(session, code)) {
        texte += QLatin1Char(' ') + session.base.codabs.row().libelong;
        valeur = valeurAbsence(session.base.codabs.row(), minutes);
    }
    return texte + QStringLiteral(" [") + hdeci(valeur, session.totcent) + QLatin1Char(']');
}

} // namespace

QString texteHoraire(const Horaire &horaire, int modecellule)
{
    if (modecellule == HeuresFaites) return Foncgen::fwhl(horaire.minutes, largeurDuree);
    return modecellule == TranchesJour ? texteTranches(horaire) : texteCoupes(horaire);
}

QString TextesHoraire::texte(const Horaire &horaire, int modecellule)
{
    const Cle cle{{horaire.heurdeb, horaire.heurfin, horaire.hideb, horaire.hifin, horaire.hideb2,
                   horaire.hifin2, modecellule}};
    if (const auto connu = m_textes.constFind(cle); connu != m_textes.constEnd()) return *connu;
    if (m_textes.size() >= plusDeTextes) m_textes.clear();
    return *m_textes.insert(cle, texteHoraire(horaire, modecellule));
}

bool troisLignes(const Horaire &horaire, int modecellule)
{
    return modecellule != HeuresFaites && horaire.secondeCoupe();
}

int valeurAbsence(const CodeAbsence &code, int minutes)
{
    const int mode = code.modabs.value_or(0);
    if (mode > 0) return mode;
    return mode == -1 ? 0 : minutes;
}

QString textestatut(Session &session, int nump, const QDate &jour)
{
    auto &sitper = session.base.sitper;
    sitper.setIndex("sitper01");
    Horaire horaire;
    if (sitper.seek(store::Cmp::Eq, {nump, jour})) {
        horaire = horaireDuJour(sitper.row());
        if (sitper.row().Val) return StatutHoraire(horaire, session).texte();
    }
    return absjour(session, nump, jour) ? statutAbsence(session, horaire.minutes) : QString();
}

} // namespace velmora
