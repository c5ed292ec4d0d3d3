// What somebody waits for who starts the desktop, and the memory that it holds by then, against a bare window
// with as many fields. Both are whole processes that end at their first paint.
#include "ratios.h"
#include "yardsticks.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

using namespace lodge::bench;

void lodge77(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        runProgram({LODGE_DESKTOP});
}

void bareWindow(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        runProgram({LODGE_BARE_WINDOW});
}

constexpr std::array measurements{
    Measurement{"first-paint", lodge77},
    Measurement{"bare-window", bareWindow},
};

const std::array ratios{
    Ratio{Clock::Wall, "first-paint", {"bare-window"}, 1.5},
};

/// The least of some runs: it is what the program needs, the rest is what the machine had to give.
long leastMemory(const char* program) {
    long least = runProgram({program});
    for (int again = 0; again < 4; ++again)
        least = std::min(least, runProgram({program}));
    return least;
}

void printMemory() {
    constexpr double aim = 1.5;
    const long ours = leastMemory(LODGE_DESKTOP);
    const long bare = leastMemory(LODGE_BARE_WINDOW);
    const double times = static_cast<double>(ours) / static_cast<double>(bare);
    fmt::print("\nmemory at the first paint: {} KiB, bare window {} KiB, ratio {:.2f}, aim {:.2f}{}\n", ours,
        bare, times, aim, times > aim ? "  missed" : "");
}

} // namespace

int main(int argumentCount, char** argumentTexts) {
    // Drawn into memory: a screen of its own would be measured, not the programs.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_PLUGIN_PATH", LODGE_BENCH_PLUGINS, 1);
    setenv("QT_QPA_GENERIC_PLUGINS", "firstpaint", 1);
    setenv("QT_LOGGING_RULES", "*=false", 1);
    const int failed =
        runMeasurements(argumentCount, argumentTexts, benchmark::kMillisecond, measurements, ratios);
    if (failed != 0) return failed;
    printMemory();
    return 0;
}
