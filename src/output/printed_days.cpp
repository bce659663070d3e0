#include "output/printed_days.h"

#include "folders/membership.h"
#include "month/cells.h"
#include "month/period.h"
#include "session/batch.h"

namespace velmora
{

namespace
{

void note(store::Status &statut, const store::Status &lu)
{
    if (statut.ok()) statut = lu;
}

std::optional<AbsenceImprimee> absenceDu(const AbsencesLigne &absences, CodesAbsence &codes,
                                         const QDate &date, int couvertes)
{
    const AbsenceSaisie *absence = absences.du(date);
    if (!absence) return std::nullopt;
    const CodeAbsence *code = codes.cherche(absence->codabs);
    if (!code) return AbsenceImprimee{absence->codabs, std::nullopt, couvertes};
    return AbsenceImprimee{absence->codabs, *code, valeurAbsence(*code, couvertes)};
}

} // namespace

std::vector<LigneImprimee> lignesImprimees(Session &session, const QDate &premier, const QDate &dernier,
                                           const QString &dossier, store::Status &statut)
{
    const ReadPass lecture(session.base.engine);
    const auto lues = store::Columns<Ligne>::of(&Ligne::nump, &Ligne::nom, &Ligne::datedeb, &Ligne::datefin);
    auto lignes = session.base.ligmois.range("ligmois02", {}, {}, lues);
    std::vector<LigneImprimee> retenues;
    while (lignes.next()) {
        const Ligne &ligne = lignes.row();
        if (ligne.datedeb > dernier || ligne.datefin < premier) continue;
        if (dansDossier(session, ligne.nump, dossier))
            retenues.push_back({ligne.nump, ligne.nom});
        else if (!dossier.isEmpty())
            note(statut, session.base.groupe.status());
    }
    note(statut, lignes.status());
    return retenues;
}

std::vector<JourImprime> joursImprimes(Session &session, CodesAbsence &codes, int nump, const QDate &premier,
                                       const QDate &dernier, store::Status &statut)
{
    const ReadPass lecture(session.base.engine);
    const AbsencesLigne absences(session, nump);
    const auto lues =
        store::Columns<JourSit>::of(&JourSit::dat, &JourSit::Val, &JourSit::heurdeb, &JourSit::heurfin,
                                    &JourSit::hideb, &JourSit::hifin, &JourSit::hideb2, &JourSit::hifin2);
    auto situations = session.base.sitper.range("sitper01", {nump, premier}, {nump, dernier}, lues);
    bool suivante = situations.next();
    std::vector<JourImprime> jours;
    for (QDate date = premier; date <= dernier; date = date.addDays(1)) {
        JourImprime jour;
        int couvertes = 0;
        if (suivante && situations.row().dat == date) {
            const Horaire horaire = horaireDuJour(situations.row());
            if (situations.row().Val)
                jour.horaire = horaire;
            else
                couvertes = horaire.minutes;
            suivante = situations.next();
        }
        jour.absence = absenceDu(absences, codes, date, couvertes);
        jours.push_back(std::move(jour));
    }
    for (const store::Status &lu : {absences.status(), situations.status(), codes.status()})
        note(statut, lu);
    return jours;
}

QString motifabs(const AbsenceImprimee &absence)
{
    return absence.codabs + QStringLiteral(" - ") +
           (absence.code ? absence.code->libelong : QStringLiteral("?"));
}

} // namespace velmora
