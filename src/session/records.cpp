#include "session/records.h"

namespace velmora
{

using store::Cmp;

namespace
{

constexpr qsizetype longueurCode = 2;

/// The table of absences as a source of spans. A search leaves the table on the row that it gives.
struct TableAbsences {
    store::Table<AbsenceSaisie> &table;

    [[nodiscard]] const AbsenceSaisie *derniereAvant(int nump, const QDate &date) const
    {
        return table.seek(Cmp::Lt, {nump, date}) ? &table.row() : nullptr;
    }
    [[nodiscard]] const AbsenceSaisie *premiereDes(int nump, const QDate &date) const
    {
        return table.seek(Cmp::Ge, {nump, date}) ? &table.row() : nullptr;
    }
};

} // namespace

bool jourferie(Session &session, const QDate &date)
{
    auto &ferie = session.base.ferie;
    ferie.setIndex("ferie01");
    return ferie.seek(Cmp::Eq, {date});
}

void jeuaudate(store::MainDatabase &base, const QDate &date)
{
    auto &parcg = base.parcg;
    parcg.setIndex("parcg01");
    if (!parcg.seek(Cmp::Le, {date}) && parcg.status().ok()) parcg.first();
}

bool absjour(Session &session, int nump, const QDate &date)
{
    session.base.absences.setIndex("abs01");
    return absencesur(TableAbsences{session.base.absences}, nump, date) != nullptr;
}

bool absproche(Session &session, int nump, const QDate &date)
{
    auto &absences = session.base.absences;
    absences.setIndex("abs01");
    if (absences.seek(Cmp::Lt, {nump, date}) && absences.row().nump == nump) return true;
    // A row that couldn't be read may be the span that covers the date.
    if (!absences.status().ok()) return false;
    return absences.seek(Cmp::Ge, {nump, date}) && absences.row().nump == nump;
}

QString codeAligne(const QString &code)
{
    return code.trimmed().rightJustified(longueurCode, QLatin1Char(' '));
}

bool cherchecode(Session &session, const QString &code)
{
    auto &codabs = session.base.codabs;
    codabs.setIndex("codabs01");
    return codabs.seek(Cmp::Eq, {codeAligne(code)});
}

} // namespace velmora
