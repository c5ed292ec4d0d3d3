// What `lodge77-cli check` costs: a whole process, a further return in a batch, and its memory.
#include "file/store_load.h"
#include "pages/schedules/item3_page.h"
#include "pages/tax/page2.h"
#include "ratios.h"
#include "shell/problem_list.h"
#include "shell/start_screen.h"
#include "state/lookup_tables.h"
#include "yardsticks.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace lodge;
using namespace lodge::bench;

constexpr Today today{
    std::chrono::year_month_day{std::chrono::year{2019}, std::chrono::month{5}, std::chrono::day{20}}};
constexpr int machineYearOfToday = 2019;

ReturnState emptyReturn() {
    ReturnState state;
    fillLookupTables(state);
    return state;
}

std::vector<std::string> batch(std::size_t files) {
    std::vector<std::string> call = {LODGE_CLI, "check"};
    call.insert(call.end(), files, LODGE_RETURN);
    return call;
}

void checkOne(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        runProgram(batch(1));
}

void processYardstick(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        runProgram({LODGE_OPEN_ARCHIVE, LODGE_RETURN});
}

/// A return of a batch, the steps of the command without its output.
void furtherReturn(benchmark::State& rounds) {
    const ReturnState empty = emptyReturn();
    ReturnState state;
    ProblemLister lister(today);
    for ([[maybe_unused]] const auto round : rounds) {
        state = empty;
        const InnerFile inner = readInnerFile(LODGE_RETURN);
        if (loadReturnText(inner.bytes, state, machineYearOfToday).status != ReadStatus::Loaded)
            rounds.SkipWithError("not loaded");
        beginLoadedReturn(state);
        if (!lister.list(state).empty()) rounds.SkipWithError("something in the way");
    }
}

void unpack(benchmark::State& rounds) {
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(readInnerFile(LODGE_RETURN));
}

void decode(benchmark::State& rounds) {
    const InnerFile inner = readInnerFile(LODGE_RETURN);
    ReturnState state;
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(readReturn(inner.bytes, state));
}

/// Item 3 in both columns and the tax of page 2, on pages that are open already.
void recompute(benchmark::State& rounds) {
    SilentHost host(today);
    Program program(host);
    const Shell shell(program);
    program.state = emptyReturn();
    const InnerFile inner = readInnerFile(LODGE_RETURN);
    if (loadReturnText(inner.bytes, program.state, machineYearOfToday).status != ReadStatus::Loaded)
        throw std::runtime_error("no sample");
    program.desk.load(frmLodgePage3_3::formName);
    P3_3_ArrayToControls(program);
    program.desk.load(frmLodgePage2::formName);
    P2_ArrayToControls(program);
    auto& item3 = *program.desk.find<frmLodgePage3_3>();
    auto& page2 = *program.desk.find<frmLodgePage2>();
    for ([[maybe_unused]] const auto round : rounds) {
        item3.P3_3_Recalculate(Column::Exempt);
        item3.P3_3_Recalculate(Column::Taxable);
        benchmark::DoNotOptimize(page2.TaxCalculate());
    }
}

// clang-format off
constexpr std::array measurements{
    Measurement{"cli-check", checkOne},
    Measurement{"process-with-libzip", processYardstick},
    Measurement{"further", furtherReturn},
    Measurement{"unpack", unpack},
    Measurement{"decode", decode},
    Measurement{"recompute", recompute},
};
// clang-format on

const std::array ratios{
    Ratio{Clock::Wall, "cli-check", {"process-with-libzip"}, 2.0},
    Ratio{Clock::Processor, "further", {"unpack", "decode", "recompute"}, 3.0},
};

void printMemory() {
    constexpr std::size_t few = 10;
    constexpr std::size_t many = 1000;
    constexpr long aim = 1024;
    const long atFew = runProgram(batch(few));
    const long atMany = runProgram(batch(many));
    fmt::print("\nmemory of a batch: {} KiB at {} returns, {} KiB at {}; {} KiB more, aim {}{}\n", atFew, few,
        atMany, many, atMany - atFew, aim, atMany - atFew > aim ? "  missed" : "");
}

} // namespace

int main(int argumentCount, char** argumentTexts) {
    const int status =
        runMeasurements(argumentCount, argumentTexts, benchmark::kMicrosecond, measurements, ratios);
    if (status != 0) return status;
    printMemory();
    return 0;
}
