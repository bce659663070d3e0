#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <cstdio>
#include <map>
#include <string>

namespace velmora::bench
{
namespace
{

/// Prints each measure and keeps its time for the ratios: processor time, which other work on the machine
/// leaves alone, or the elapsed time of a measure that waits for the disk.
class KeepingReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs)
            if (run.run_type == Run::RT_Iteration) m_times[run.benchmark_name()] = timeOf(run);
        ConsoleReporter::ReportRuns(runs);
    }

    void printRatio(const char *what, const std::string &measured, const std::string &reference)
    {
        if (!m_times.contains(measured) || !m_times.contains(reference)) return;
        std::printf("%s: %.2f\n", what, m_times[measured] / m_times[reference]);
    }

private:
    static double timeOf(const Run &run)
    {
        const bool elapsed = run.benchmark_name().find("/real_time") != std::string::npos;
        return elapsed ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    }

    std::map<std::string, double> m_times;
};

struct Ratio {
    const char *what;
    const char *measured;
    const char *reference;
};

constexpr Ratio ratios[]{
    {"opening 60 lines over bare reading", "BM_OpenMonth/60", "BM_BareReading/60"},
    {"opening 996 lines over bare reading", "BM_OpenMonth/996", "BM_BareReading/996"},
    {"refills that one opening is worth", "BM_OpenMonth/996", "BM_RefillLine/996"},
    {"verdicts of 996 lines over opening", "BM_Verdicts", "BM_OpenMonth/996"},
    {"opening with controls over opening", "BM_OpenControlled", "BM_OpenMonth/996"},
    {"entry of 31 days over bare writing", "BM_Entry/real_time", "BM_BareWriting/real_time"},
    {"undo of it over bare writing", "BM_Undo/real_time", "BM_BareWriting/real_time"},
    {"redo of it over bare writing", "BM_Redo/real_time", "BM_BareWriting/real_time"},
    {"set print of 996 pages over the bare texts", "BM_PrintSet", "BM_BareTexts"},
    {"paste of 31 days over bare writing", "BM_Paste/real_time", "BM_BareWriting/real_time"},
    {"export of 996 lines over a bare workbook", "BM_Export/real_time", "BM_BareWorkbook/real_time"},
    {"practised schedules over bare grouping", "BM_Practised", "BM_BareGrouping"},
};

} // namespace
} // namespace velmora::bench

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    // Pages need fonts, and fonts an application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    velmora::bench::KeepingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    for (const auto &[what, measured, reference] : velmora::bench::ratios)
        reporter.printRatio(what, measured, reference);
    return 0;
}
