// Ratios of measurements out of one run, so that the machine's speed and its load fall out of them.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lodge::bench {

/// Computing is timed by the processor, which other programs do not disturb; what waits for a disk or for
/// another process, by the clock on the wall.
enum class Clock { Processor, Wall };

/// A measurement, what it is measured against (the sum of these), and how many times as long it may take.
struct Ratio {
    Clock clock;
    std::string_view measured;
    std::vector<std::string_view> yardsticks;
    double aim;
};

/// Shows measurements as always and remembers the median of each.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Prints the table of ratios.
    void printRatios(std::span<const Ratio> ratios) const;

  private:
    struct Times {
        double processor = 0;
        double wall = 0;
    };
    /// Nanoseconds of a round; 0 for a measurement that a filter of this run left out.
    [[nodiscard]] double median(std::string_view name, Clock clock) const;

    std::map<std::string, Times, std::less<>> medians;
};

/// One measurement of a program by its name.
struct Measurement {
    const char* name;
    void (*function)(benchmark::State&);
};

/// What `main` of a benchmark does: the measurements in many short repetitions that take turns, rather than
/// one long one each, so that what else the machine does falls on both sides of a ratio; then the ratios. The
/// exit status of the program, not 0 when its arguments are not understood.
int runMeasurements(int argumentCount, char** argumentTexts, benchmark::TimeUnit unit,
    std::span<const Measurement> measurements, std::span<const Ratio> ratios);

} // namespace lodge::bench
