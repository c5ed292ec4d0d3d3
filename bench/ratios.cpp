#include "ratios.h"

#include <fmt/format.h>

#include <cstdio>

namespace lodge::bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.aggregate_name != "median") continue;
        const double unit = benchmark::GetTimeUnitMultiplier(benchmark::kNanosecond)
                            / benchmark::GetTimeUnitMultiplier(run.time_unit);
        medians[run.run_name.function_name] = {
            run.GetAdjustedCPUTime() * unit, run.GetAdjustedRealTime() * unit};
    }
}

double RatioReporter::median(std::string_view name, Clock clock) const {
    const auto found = medians.find(name);
    if (found == medians.end()) return 0;
    return clock == Clock::Wall ? found->second.wall : found->second.processor;
}

void RatioReporter::printRatios(std::span<const Ratio> ratios) const {
    fmt::print("\n{:<12}{:>12}  {:<48}{:>12}{:>8}{:>8}\n", "measured", "ns", "against", "ns", "ratio", "aim");
    for (const Ratio& ratio : ratios) {
        const double measured = median(ratio.measured, ratio.clock);
        double sum = 0;
        for (const std::string_view yardstick : ratio.yardsticks)
            sum += median(yardstick, ratio.clock);
        if (measured == 0 || sum == 0) continue;
        const double times = measured / sum;
        const std::string against = fmt::format("{}", fmt::join(ratio.yardsticks, " + "));
        fmt::print("{:<12}{:>12.0f}  {:<48}{:>12.0f}{:>8.2f}{:>8.2f}{}\n", ratio.measured, measured, against,
            sum, times, ratio.aim, times > ratio.aim ? "  missed" : "");
    }
}

int runMeasurements(int argumentCount, char** argumentTexts, benchmark::TimeUnit unit,
    std::span<const Measurement> measurements, std::span<const Ratio> ratios) {
    constexpr int repetitions = 15;
    constexpr double seconds = 0.05;
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments(argumentTexts, argumentTexts + argumentCount);
    arguments.insert(arguments.begin() + 1, interleaved.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    for (const Measurement& measurement : measurements) {
        benchmark::RegisterBenchmark(measurement.name, measurement.function)
            ->UseRealTime()
            ->Unit(unit)
            ->Repetitions(repetitions)
            ->MinTime(seconds)
            ->ReportAggregatesOnly(true);
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios(ratios);
    return 0;
}

} // namespace lodge::bench
