// What a key press on page 2 costs, and the work behind it, as multiples of reading and showing one amount.
#include "pages/schedules/item3_page.h"
#include "pages/tax/page2.h"
#include "ratios.h"
#include "values/money.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace {

std::size_t allocations = 0;

} // namespace

// Counted, because the pass of an idle timer must not allocate.
// Out of line: inlined into one another they look to g++ like a mismatched pair.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory; // NOLINT(cppcoreguidelines-no-malloc)
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
} // NOLINT(cppcoreguidelines-no-malloc)
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory); // NOLINT(cppcoreguidelines-no-malloc)
}

namespace {

using namespace lodge;
using namespace lodge::bench;

/// A program without an outside.
class NoHost : public Host {
  public:
    Answer show(const Box& box) override { return box.defaultAnswer; }
    std::optional<std::string> ask(const InputBox& /*box*/) override { return {}; }
    std::optional<std::filesystem::path> chooseFile(const FileDialog& /*dialog*/) override { return {}; }
    std::optional<std::filesystem::path> chooseFolder(const std::filesystem::path& /*start*/) override {
        return {};
    }
    std::optional<PageRange> choosePages() override { return {}; }
    bool openFolder(const std::filesystem::path& /*folder*/) override { return false; }
    void setBusy(bool /*busy*/) override {}
    [[nodiscard]] std::chrono::year_month_day today() const override {
        return {std::chrono::year(2019), std::chrono::month(5), std::chrono::day(20)};
    }
    [[nodiscard]] Calendar calendar() const override { return Calendar::Christian; }
    [[nodiscard]] std::string environment(const std::string& /*name*/) const override { return {}; }
    [[nodiscard]] std::filesystem::path programFolder() const override { return {}; }
    [[nodiscard]] bool folderExists(const std::filesystem::path& /*folder*/) const override { return false; }
    [[nodiscard]] bool canWriteInto(const std::filesystem::path& /*folder*/) const override { return false; }
    void quit() override {}
};

/// A small company with its profit on the worksheet, and item 3 with both columns filled.
struct Pages {
    Pages() {
        program.desk.add(
            frmLodgePage2::formName, [this] { return std::make_unique<frmLodgePage2>(program); });
        program.desk.add(
            frmLodgePage3_3::formName, [this] { return std::make_unique<frmLodgePage3_3>(program); });
        ReturnState& state = program.state;
        state.DataCtrl_P1.IndcBusType = "1";
        state.DataCtrl_P1.RateList = {"(1)", "(2.1)"};
        state.DataCtrl_P1.StatusA = 1;
        state.intP1Box1 = 1;
        state.intP1Box2 = 1;
        for (const std::size_t entry : {39U, 59U, 60U})
            state.strFldPage3_3[entry] = "2450000.00";
        program.desk.show(frmLodgePage2::formName);
        page2().chkTaxPay[0].setValue(true);
        page2().ChkBox_NewAtt[smallCompanyRow].setValue(true);
        program.desk.show(frmLodgePage3_3::formName);
        for (const Item3Line& line : item3Lines()) {
            if (!line.isComputed()) item3().columns.box(Column::Exempt, line.place)->setText("1234567.89");
        }
        state.intPageCur = frmLodgePage2::pageCode;
    }

    [[nodiscard]] frmLodgePage2& page2() const { return *program.desk.find<frmLodgePage2>(); }
    [[nodiscard]] frmLodgePage3_3& item3() const { return *program.desk.find<frmLodgePage3_3>(); }

    NoHost host;
    Program program{host};
};

void repeated(benchmark::internal::Benchmark* measurement) {
    measurement->MinTime(0.1)->Repetitions(5)->ReportAggregatesOnly(true);
}

void amount(benchmark::State& run) {
    std::string text = "2,450,000.00";
    for (auto _ : run) {
        benchmark::DoNotOptimize(text = formatMoney(readFigure(text)));
    }
}
BENCHMARK(amount)->Apply(repeated);

void keystroke(benchmark::State& run) {
    const Pages pages;
    TextBox& income = pages.page2().txtIncome[0];
    bool odd = false;
    for (auto _ : run) {
        income.setText(odd ? "2450000" : "245000");
        odd = !odd;
    }
    income.setText("2450000");
    if (pages.page2().lblMoney1.caption() != "322,500.00") run.SkipWithError("the tax did not follow");
}
BENCHMARK(keystroke)->Apply(repeated);

void recalculate(benchmark::State& run) {
    Pages pages;
    pages.program.state.PageChk.CurrentLine = 0;
    TextBox& turnover = *pages.item3().columns.box(Column::Exempt, 0);
    bool odd = false;
    for (auto _ : run) {
        turnover.setText(odd ? "9876543.21" : "9876543.22");
        odd = !odd;
        pages.item3().P3_3_Recalculate(Column::Exempt);
    }
}
BENCHMARK(recalculate)->Apply(repeated);

void idleTimer(benchmark::State& run) {
    const Pages pages;
    Timer& timer = pages.page2().Timer1_rate;
    timer.raise(timer.onTimer);
    const std::size_t before = allocations;
    std::size_t passes = 0;
    for (auto _ : run) {
        timer.raise(timer.onTimer);
        ++passes;
    }
    if (allocations != before) run.SkipWithError("an idle pass allocates");
    run.counters["allocations"] = static_cast<double>(allocations - before) / static_cast<double>(passes);
}
BENCHMARK(idleTimer)->Apply(repeated);

// A key press with all that follows stays under 0.2 ms: some five hundred times what one amount costs.
const std::array ratios{
    Ratio{Clock::Processor, "keystroke", {"amount"}, 500},
    Ratio{Clock::Processor, "recalculate", {"amount"}, 500},
    Ratio{Clock::Processor, "idleTimer", {"amount"}, 1},
};

} // namespace

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios(ratios);
    return 0;
}
