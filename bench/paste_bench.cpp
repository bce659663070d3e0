#include "planted_station.h"

#include "month/clipboard.h"

#include <benchmark/benchmark.h>

// What a paste of 31 days over 31 others costs, with its images. The bare transaction that it is measured
// against is that of an entry.
namespace velmora::bench
{
namespace
{

constexpr int jours = 31;

void BM_Paste(benchmark::State &state)
{
    Poste poste;
    const Ligne ligne{
        .nump = 1, .nom = QStringLiteral("Agent 001"), .datedeb = {2020, 1, 1}, .datefin = {2099, 1, 1}};
    Pressepapiers presse;
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        // Other hours at each run, so that each one changes its rows.
        const QDate source = QDate(2026, 8, 1).addDays(++run % jours);
        const bool tenus =
            retientJours(poste.session, presse, ligne, source, source.addDays(jours - 1)) == Retenue::Faite;
        state.ResumeTiming();
        colleJours(poste.session, presse, ligne, {2026, 7, 1});
        if (!tenus || presse.cliplong() != jours) state.SkipWithError("not pasted");
    }
}
BENCHMARK(BM_Paste)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace velmora::bench
