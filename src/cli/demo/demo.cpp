#include "cli/demo/demo.h"

#include "calendar/holiday_generation.h"
#include "cli/demo/absences.h"
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

std::set<QDate> datesFeriees(store::MainDatabase &base)
{
    std::set<QDate> dates;
    auto jours = base.ferie.range("ferie01", {}, {});
    while (jours.next())
        dates.insert(jours.row().datedeb);
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
    Status status = ajoute(base.parcg, jeuxParam());
    if (status.ok()) status = genereferies(base, demo.aujourdhui, {true, demo.aujourdhui});
    if (status.ok()) status = ajoute(base.codabs, codesAbsence());
    if (status.ok()) status = ajoute(base.groupe, tetesDossiers());
    if (status.ok()) status = ajouteLignes(base, demo, hasard, datesFeriees(base));
    return status;
}

} // namespace velmora::cli::demo
