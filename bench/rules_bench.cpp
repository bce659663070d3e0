#include "planted_base.h"

#include "month/line_days.h"
#include "month/loading.h"
#include "rules/verdict.h"

#include <benchmark/benchmark.h>

#include <optional>

// What the rules cost: the verdicts of every line over the open period, its days in memory as the month's
// load has them, and the load of a month in which every line has controls.
namespace velmora::bench
{
namespace
{

constexpr int mois = 6;
constexpr int annee = 2026;
constexpr int lignes = 996;

/// The planting of the month's measures, with every limit on.
PlantedBase &controlee()
{
    static PlantedBase planted(lignes);
    static const bool limitee =
        planted.session.base.engine
            .execute(QStringLiteral("UPDATE ligmois SET bcontrolh = -1, b6j = -1, bcontrolr = -1, "
                                    "bcontrolp = -1, maxs = 2880, maxj = 600, ampj = 780, reposmin = 660, "
                                    "nrep = 4, nrepd = 1, pause = 20"))
            .ok();
    if (!limitee) std::abort();
    return planted;
}

void BM_Verdicts(benchmark::State &state)
{
    Planning planning(controlee().session, mois, annee);
    std::vector<std::pair<Ligne, SuiteJours>> enMemoire;
    auto lues = controlee().session.base.ligmois.range("ligmois01", {}, {});
    while (lues.next())
        enMemoire.emplace_back(lues.row(), joursDeLaGrille(planning, lues.row()));
    const Periode &periode = planning.periode;
    int echecs = 0;
    for (auto _ : state) {
        echecs = 0;
        for (const auto &[ligne, jours] : enMemoire)
            echecs += controlligne(ligne, jours, periode.debgrille, periode.fingrille).echec.year() > 1900;
    }
    state.counters["lines"] = static_cast<double>(enMemoire.size());
    state.counters["failing"] = echecs;
}
BENCHMARK(BM_Verdicts)->Unit(benchmark::kMillisecond);

void BM_OpenControlled(benchmark::State &state)
{
    std::optional<Planning> planning;
    for (auto _ : state) {
        state.PauseTiming();
        planning.reset();
        state.ResumeTiming();
        planning.emplace(controlee().session, mois, annee);
        if (!chargi(*planning, {})) state.SkipWithError("no line");
        benchmark::DoNotOptimize(planning->grille.minutes(Grille::colonnesFixes, 0));
    }
}
BENCHMARK(BM_OpenControlled)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora::bench
