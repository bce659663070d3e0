#include "planted_base.h"

#include "month/loading.h"
#include "month/refresh.h"
#include "month/rows.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <map>
#include <optional>

// What the month costs: its opening beside the bare reading of the same rows, the refilling of a line, and
// the refresh after a cursor move.
namespace velmora::bench
{
namespace
{

constexpr int mois = 6;
constexpr int annee = 2026;

PlantedBase &base(int lines)
{
    static std::map<int, std::unique_ptr<PlantedBase>> bases;
    auto &planted = bases[lines];
    if (!planted) planted = std::make_unique<PlantedBase>(lines);
    return *planted;
}

/// The floor: the days of each line in one range, on a bare connection in one read transaction.
class BareReader
{
public:
    explicit BareReader(const QString &file)
    {
        sqlite3_open_v2(file.toUtf8().constData(), &m_database, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX,
                        nullptr);
        sqlite3_exec(m_database, "PRAGMA cache_size = -16000", nullptr, nullptr, nullptr);
        sqlite3_prepare_v2(m_database,
                           "SELECT dat, Val, heurdeb, heurfin, hideb, hifin, hideb2, hifin2 FROM sitper "
                           "WHERE nump = ?1 AND dat BETWEEN ?2 AND ?3 ORDER BY nump, dat",
                           -1, &m_days, nullptr);
    }
    ~BareReader()
    {
        sqlite3_finalize(m_days);
        sqlite3_close(m_database);
    }
    BareReader(const BareReader &) = delete;
    BareReader &operator=(const BareReader &) = delete;

    void readAll(int lines, const QByteArray &from, const QByteArray &to)
    {
        sqlite3_exec(m_database, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_bind_text(m_days, 2, from.constData(), -1, SQLITE_STATIC);
        sqlite3_bind_text(m_days, 3, to.constData(), -1, SQLITE_STATIC);
        for (int line = 1; line <= lines; ++line) {
            sqlite3_bind_int(m_days, 1, line);
            readLine();
        }
        sqlite3_exec(m_database, "COMMIT", nullptr, nullptr, nullptr);
    }
    [[nodiscard]] std::int64_t rows() const { return m_rows; }

private:
    void readLine()
    {
        constexpr int columns = 8;
        while (sqlite3_step(m_days) == SQLITE_ROW) {
            benchmark::DoNotOptimize(sqlite3_column_text(m_days, 0));
            for (int column = 1; column < columns; ++column)
                benchmark::DoNotOptimize(sqlite3_column_int64(m_days, column));
            ++m_rows;
        }
        sqlite3_reset(m_days);
    }

    sqlite3 *m_database = nullptr;
    sqlite3_stmt *m_days = nullptr;
    std::int64_t m_rows = 0;
};

void BM_BareReading(benchmark::State &state)
{
    PlantedBase &planted = base(static_cast<int>(state.range(0)));
    const Periode periode = periodeDuMois(mois, annee);
    const QDate first(periode.debgrille.year(), periode.debgrille.month(), 1);
    BareReader reader(planted.file());
    for (auto _ : state)
        reader.readAll(planted.lines(), first.toString(Qt::ISODate).toLatin1(),
                       periode.fingrille.toString(Qt::ISODate).toLatin1());
    state.counters["rows"] =
        benchmark::Counter(static_cast<double>(reader.rows()), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_BareReading)->Arg(60)->Arg(996)->Unit(benchmark::kMillisecond);

void BM_OpenMonth(benchmark::State &state)
{
    PlantedBase &planted = base(static_cast<int>(state.range(0)));
    std::optional<Planning> planning;
    for (auto _ : state) {
        state.PauseTiming();
        planning.reset();
        state.ResumeTiming();
        planning.emplace(planted.session, mois, annee);
        if (!chargi(*planning, {})) state.SkipWithError("no line");
        benchmark::DoNotOptimize(planning->grille.minutes(Grille::colonnesFixes, 0));
    }
}
BENCHMARK(BM_OpenMonth)->Arg(60)->Arg(996)->Unit(benchmark::kMillisecond);

void BM_RefillLine(benchmark::State &state)
{
    PlantedBase &planted = base(static_cast<int>(state.range(0)));
    Planning planning(planted.session, mois, annee);
    if (!chargi(planning, {})) state.SkipWithError("no line");
    int line = 0;
    for (auto _ : state) {
        const int row = Grille::lignesFixes + line++ % planted.lines();
        majligne(planning, planning.grille.numligne(row), row);
    }
}
BENCHMARK(BM_RefillLine)->Arg(996)->Unit(benchmark::kMillisecond);

void BM_RefreshAfterMove(benchmark::State &state)
{
    PlantedBase &planted = base(static_cast<int>(state.range(0)));
    Planning planning(planted.session, mois, annee);
    if (!chargi(planning, {})) state.SkipWithError("no line");
    int move = 0;
    for (auto _ : state) {
        ++move;
        planning.curseur = {Grille::lignesFixes + move * 7 % planted.lines(),
                            Grille::colonnesFixes +
                                move % (planning.grille.colonnes() - Grille::colonnesFixes)};
        cycle(planning);
    }
}
BENCHMARK(BM_RefreshAfterMove)->Arg(996)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora::bench
