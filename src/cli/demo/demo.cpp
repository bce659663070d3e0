#include "cli/demo/demo.h"

#include "cli/demo/absences.h"
#include "cli/demo/holidays.h"
#include "cli/demo/lines.h"
#include "cli/demo/schedules.h"

#include <set>

namespace velmora::cli::demo
{

using store::Status;

namespace
{

/// Adds rows until one fails.
template <class Row> Status ajoute(store::Table<Row> &table, const std::vector<Row> &rows)
{
    for (const Row &row : rows) {
        Status status = table.addNew();
        table.values() = row;
        if (status.ok()) status = table.update();
        if (!status.ok()) return status;
    }
    return {};
}

std::vector<JeuParam> jeuxParam()
{
    return {{QDate(2000, 1, 1), 0, 0, QStringLiteral("Résidence Les Tilleuls")}};
}

std::vector<JourFerie> feries(int annee)
{
    std::vector<JourFerie> jours = feriesMetropole(annee);
    const std::vector<JourFerie> suivants = feriesMetropole(annee + 1);
    jours.insert(jours.end(), suivants.begin(), suivants.end());
    return jours;
}

std::set<QDate> datesDe(const std::vector<JourFerie> &jours)
{
    std::set<QDate> dates;
    for (const JourFerie &jour : jours)
        dates.insert(jour.datedeb);
    return dates;
}

/// A line's days with the hours under an absence kept but not valid, as the entry of the absence leaves them.
std::vector<JourSit> couverts(std::vector<JourSit> jours, const std::vector<AbsenceSaisie> &absences)
{
    for (JourSit &jour : jours)
        for (const AbsenceSaisie &absence : absences)
            if (jour.dat >= absence.datedeb && jour.dat <= absence.datefin) jour.Val = false;
    return jours;
}

Status ajouteLignes(store::MainDatabase &base, const Demo &demo, Hasard &hasard,
                    const std::set<QDate> &feriees)
{
    const Horaires horaires(QDateTime(demo.aujourdhui, QTime(8, 0)), feriees);
    for (const LigneDemo &ligne : lignesDemo(demo, hasard)) {
        const Intervalle intervalle = ligne.dans({demo.debut(), demo.fin()});
        const auto absences = absencesDe(ligne.ligne.nump, intervalle, hasard);
        Status status = ajoute(base.ligmois, std::vector{ligne.ligne});
        if (status.ok()) status = ajoute(base.absences, absences);
        if (status.ok())
            status = ajoute(base.sitper, couverts(horaires.jours(ligne, intervalle, hasard), absences));
        if (status.ok()) status = ajoute(base.groupe, membres(ligne));
        if (!status.ok()) return status;
    }
    return {};
}

} // namespace

QDate Demo::debut() const
{
    return QDate(aujourdhui.year(), aujourdhui.month(), 1).addMonths(-(mois / 2));
}

QDate Demo::fin() const
{
    return debut().addMonths(mois).addDays(-1);
}

Status remplit(store::MainDatabase &base, const Demo &demo)
{
    Hasard hasard(demo.graine);
    const auto jours = feries(demo.aujourdhui.year());
    Status status = ajoute(base.parcg, jeuxParam());
    if (status.ok()) status = ajoute(base.ferie, jours);
    if (status.ok()) status = ajoute(base.codabs, codesAbsence());
    if (status.ok()) status = ajoute(base.groupe, tetesDossiers());
    if (status.ok()) status = ajouteLignes(base, demo, hasard, datesDe(jours));
    return status;
}

} // namespace velmora::cli::demo
