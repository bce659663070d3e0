#include "planted_base.h"

#include "month/loading.h"
#include "month/zoom.h"
#include "output/export.h"
#include "output/practised.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <xlsxwriter.h>

#include <memory>

// What is handed out costs: the export of a month beside a bare workbook of its size, the count of the
// practised schedules beside the same grouping by the engine, and the zoom on a day.
namespace velmora::bench
{
namespace
{

constexpr int lignes = 996;
const QDate juin1(2026, 6, 1);
const QDate juin30(2026, 6, 30);
// Within the planted months: 996 lines x 262 days are 260,952 rows.
const QDate an1(2026, 1, 1);
const QDate an2(2026, 9, 19);

PlantedBase &base()
{
    static const auto planted = [] {
        auto made = std::make_unique<PlantedBase>(lignes);
        made->session.cheminbase = made->session.cheminjournal =
            made->file().chopped(store::fichierBase.size());
        return made;
    }();
    return *planted;
}

void BM_Export(benchmark::State &state)
{
    Session &session = base().session;
    for (auto _ : state) {
        const Exportation faite = exporte(session, juin1, juin30);
        if (!defautExport(faite).isEmpty()) state.SkipWithError("not exported");
        state.counters["characters"] = static_cast<double>(faite.texte.size());
    }
}
BENCHMARK(BM_Export)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A bare connection on the planted file.
class Lecteur
{
public:
    Lecteur(const char *sql)
    {
        sqlite3_open_v2(base().file().toUtf8().constData(), &m_database,
                        SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
        sqlite3_exec(m_database, "PRAGMA cache_size = -16000", nullptr, nullptr, nullptr);
        sqlite3_prepare_v2(m_database, sql, -1, &m_statement, nullptr);
    }
    ~Lecteur()
    {
        sqlite3_finalize(m_statement);
        sqlite3_close(m_database);
    }
    Lecteur(const Lecteur &) = delete;
    Lecteur &operator=(const Lecteur &) = delete;

    /// Reads every row of the query; returns their count.
    int lit(const QByteArray &debut, const QByteArray &fin)
    {
        sqlite3_bind_text(m_statement, 1, debut.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(m_statement, 2, fin.constData(), -1, SQLITE_STATIC);
        int rangees = 0;
        while (sqlite3_step(m_statement) == SQLITE_ROW) {
            for (int colonne = 0; colonne < sqlite3_column_count(m_statement); ++colonne)
                benchmark::DoNotOptimize(sqlite3_column_int64(m_statement, colonne));
            ++rangees;
        }
        sqlite3_reset(m_statement);
        return rangees;
    }

private:
    sqlite3 *m_database = nullptr;
    sqlite3_stmt *m_statement = nullptr;
};

/// The library alone: a workbook of as many rows and hours.
void BM_BareWorkbook(benchmark::State &state)
{
    const QByteArray fichier = QString(base().session.cheminbase + QStringLiteral("bare.xlsx")).toLocal8Bit();
    constexpr lxw_row_t rangees = lignes * 8 + 8;
    constexpr lxw_col_t jours = 30;
    for (auto _ : state) {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        lxw_workbook *classeur = workbook_new_opt(fichier.constData(), &options);
        lxw_worksheet *feuille = workbook_add_worksheet(classeur, nullptr);
        for (lxw_row_t rangee = 0; rangee < rangees; ++rangee) {
            worksheet_write_string(feuille, rangee, 1, "Heures F.", nullptr);
            // Half of the rows of a block hold hours: the worked ones, both ends and, every other day, a cut.
            for (lxw_col_t jour = 0; rangee % 8 < 4 && jour < jours; ++jour)
                worksheet_write_number(feuille, rangee, static_cast<lxw_col_t>(jour + 2), 7.25, nullptr);
        }
        if (workbook_close(classeur) != LXW_NO_ERROR) state.SkipWithError("not written");
    }
}
BENCHMARK(BM_BareWorkbook)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_BareGrouping(benchmark::State &state)
{
    Lecteur lecteur(
        "SELECT heurdeb, heurfin, hideb, hifin, hideb2, hifin2, count(*) FROM sitper "
        "WHERE dat BETWEEN ?1 AND ?2 AND Val <> 0 AND heurdeb <> heurfin GROUP BY 1, 2, 3, 4, 5, 6");
    for (auto _ : state)
        state.counters["schedules"] =
            lecteur.lit(an1.toString(Qt::ISODate).toLatin1(), an2.toString(Qt::ISODate).toLatin1());
}
BENCHMARK(BM_BareGrouping)->Unit(benchmark::kMillisecond);

void BM_Practised(benchmark::State &state)
{
    Session &session = base().session;
    for (auto _ : state) {
        const HorairesPratiques rapport = horairesPratiques(session, an1, an2);
        state.counters["schedules"] = static_cast<double>(rapport.horaires.size());
        int jours = 0;
        for (const HorairePratique &horaire : rapport.horaires)
            jours += horaire.occurrences;
        state.counters["days"] = jours;
    }
}
BENCHMARK(BM_Practised)->Unit(benchmark::kMillisecond);

void BM_ZoomOnADay(benchmark::State &state)
{
    Planning planning(base().session, 6, 2026);
    if (!chargi(planning, {})) state.SkipWithError("no line");
    int jour = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(zoomDuJour(planning, juin1.addDays(++jour % 30)));
}
BENCHMARK(BM_ZoomOnADay)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora::bench
