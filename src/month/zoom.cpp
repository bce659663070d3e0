#include "month/zoom.h"

#include "month/absence_cells.h"
#include "month/rows.h"
#include "session/batch.h"
#include "session/records.h"
#include "session/values.h"

namespace velmora
{

namespace
{

constexpr int joursParSemaine = 7;

bool passeMinuit(const JourSit &jour)
{
    return jour.heurfin < jour.heurdeb || jour.heurfin > minutesParJour;
}

QString heureDeFin(const JourSit &jour, bool centiemes)
{
    return hdeci(jour.heurfin > minutesParJour ? jour.heurfin - minutesParJour : jour.heurfin, centiemes);
}

QString marquesCoupes(const JourSit &jour)
{
    const int coupes = (jour.hideb != jour.hifin) + (jour.hideb2 != jour.hifin2);
    return QStringLiteral(" /").repeated(coupes);
}

std::vector<Barre> barresDuJour(const JourSit &jour, int minutes)
{
    return decale(barresDe({jour.heurdeb, jour.hideb, jour.hifin, jour.heurfin, jour.hideb2, jour.hifin2}),
                  minutes - debutZoom);
}

/// The days of all lines on a date and the day before, as far as they count.
class JoursLus
{
public:
    JoursLus(Session &session, const QDate &date)
    {
        static const auto lus = store::Columns<JourSit>::of(
            &JourSit::nump, &JourSit::dat, &JourSit::Val, &JourSit::heurdeb, &JourSit::heurfin,
            &JourSit::hideb, &JourSit::hifin, &JourSit::hideb2, &JourSit::hifin2);
        auto jours = session.base.sitper.range("sitper02", {date.addDays(-1)}, {date}, lus);
        while (jours.next())
            if (jours.row().Val)
                (jours.row().dat == date ? m_jour : m_veille).insert(jours.row().nump, jours.row());
        status = jours.status();
    }

    [[nodiscard]] const JourSit *jour(int nump) const { return cherche(m_jour, nump); }
    [[nodiscard]] const JourSit *veille(int nump) const { return cherche(m_veille, nump); }

    store::Status status;

private:
    using Jours = QHash<int, JourSit>;

    static const JourSit *cherche(const Jours &jours, int nump)
    {
        const auto trouve = jours.constFind(nump);
        return trouve == jours.constEnd() ? nullptr : &*trouve;
    }

    Jours m_jour;
    Jours m_veille;
};

/// Builds the rows of a day one by one.
class LecteurZoom
{
public:
    LecteurZoom(Planning &planning, const QDate &date)
        : m_planning(planning), m_session(planning.session), m_date(date), m_jours(m_session, date),
          m_codes(m_session), m_status(m_jours.status)
    {
    }

    [[nodiscard]] LigneZoom ligne(int rangee)
    {
        LigneZoom une;
        une.nump = m_planning.grille.numligne(rangee);
        une.nom = m_planning.grille.lit(rangee, Grille::colonneNom).texte;
        const bool absente = !fermee(rangee) && absjour(m_session, une.nump, m_date);
        if (m_status.ok()) m_status = m_session.base.absences.status();
        if (absente) absence(une);
        if (const JourSit *veille = m_jours.veille(une.nump); veille && passeMinuit(*veille))
            nuit(une, *veille);
        if (const JourSit *jour = m_jours.jour(une.nump)) travail(une, *jour);
        if (absente) une.horaire = joint(une.horaire, m_session.base.absences.row().codabs);
        if (une.horaire.isEmpty() && fermee(rangee)) une.horaire = texteFerme();
        return une;
    }
    [[nodiscard]] const store::Status &status() const { return m_status.ok() ? m_codes.status() : m_status; }

private:
    static QString joint(const QString &texte, const QString &suite)
    {
        return texte.isEmpty() ? suite : texte + QStringLiteral("   ") + suite;
    }

    void absence(LigneZoom &une)
    {
        const QString codabs = m_session.base.absences.row().codabs;
        Barre barre{SorteBarre::Absence, 0, minutesParJour, palette::barreAbsence, palette::encre, codabs};
        if (const CodeAbsence *code = m_codes.cherche(codabs)) {
            barre.texte += QStringLiteral("  ") + code->libelong;
            if (code->bcouleur) {
                barre.fond = 0xff000000U | static_cast<QRgb>(code->backc);
                barre.encre = 0xff000000U | static_cast<QRgb>(code->forec);
            }
        }
        une.barres.push_back(barre);
    }
    void nuit(LigneZoom &une, const JourSit &veille)
    {
        une.marque = QStringLiteral("*");
        une.horaire =
            QStringLiteral(" ... - ") + heureDeFin(veille, m_session.totcent) + marquesCoupes(veille);
        for (Barre barre : barresDuJour(veille, -minutesParJour)) {
            barre.sorte = barre.sorte == SorteBarre::Coupe ? SorteBarre::CoupeNuit : SorteBarre::Nuit;
            une.barres.push_back(barre);
        }
    }
    void travail(LigneZoom &une, const JourSit &jour)
    {
        une.marque = QStringLiteral("*");
        une.horaire = joint(une.horaire, hdeci(jour.heurdeb, m_session.totcent) + QStringLiteral("  -  ") +
                                             heureDeFin(jour, m_session.totcent) + marquesCoupes(jour));
        for (const Barre &barre : barresDuJour(jour, 0))
            une.barres.push_back(barre);
    }
    [[nodiscard]] bool fermee(int rangee) const
    {
        const int colonne = m_planning.colonnes.colonneDe(m_date);
        return colonne >= 0 && m_planning.grille.lit(rangee, colonne).texte == texteFerme();
    }

    Planning &m_planning;
    Session &m_session;
    QDate m_date;
    JoursLus m_jours;
    CodesAbsence m_codes;
    store::Status m_status;
};

} // namespace

ZoomJour zoomDuJour(Planning &planning, const QDate &date)
{
    const ReadPass passe(planning.session.base.engine);
    LecteurZoom lecteur(planning, date);
    ZoomJour zoom;
    zoom.titre = Foncgen::nomjour(date.dayOfWeek() % joursParSemaine + 1) + QLatin1Char(' ') +
                 QString::number(date.day());
    for (int rangee = Grille::lignesFixes; rangee < planning.grille.derniereLigne(); ++rangee)
        zoom.lignes.push_back(lecteur.ligne(rangee));
    zoom.lecture = lecteur.status();
    return zoom;
}

QStringList titresZoom(const ZoomJour &zoom)
{
    return {{}, zoom.titre, {}, QStringLiteral("Deb.  -  Fin")};
}

QStringList textesZoom(const LigneZoom &ligne)
{
    return {QString::number(ligne.nump), ligne.nom, ligne.marque, ligne.horaire};
}

} // namespace velmora
