#include "pages/schedules/schedule_checks.h"

#include "pages/schedules/schedule.h"
#include "values/money.h"

#include <array>
#include <cmath>

namespace lodge {

namespace {

template <std::size_t Entry>
bool isBelowZero(const CheckContext& context) {
    return readFigure(context.state.strFldPage4_5[Entry]) < 0;
}

bool exemptTotalIsBelowZero(const CheckContext& context) {
    return context.state.intInvestment != 0 && isBelowZero<16>(context);
}

/// An amount as a whole number of its fourth decimals, so that the noise of a binary sum does not count.
long long inTenThousandths(double amount) {
    constexpr double steps = 10'000.0;
    return std::llround(amount * steps);
}

/// What item 9 line 5 adds back, and lines 15 to 26 of item 8.
Sides addedBack(const CheckContext& context) {
    return {readFigure(context.state.strFldPage5_9[20]), context.state.FucChk.TmpSum8_15to25};
}

bool addedBackDiffers(const CheckContext& context) {
    const Sides sides = addedBack(context);
    return inTenThousandths(sides.here) != inTenThousandths(sides.there);
}

// clang-format off
constexpr std::array<CheckRow, 3> item5Rows = {{
    {"M054", "txtMoney51(0)", exemptTotalIsBelowZero},
    {"M054", "txtMoney52(0)", isBelowZero<33>},
    {"M054", "txtMoney52(0)", isBelowZero<50>},
}};

constexpr std::array<CheckRow, 1> item8Rows = {{
    {"M122", "txtMoney91(5)", addedBackDiffers, addedBack},
}};
// clang-format on

} // namespace

std::span<const CheckRow> item5CheckRows() { return item5Rows; }
std::span<const CheckRow> item8CheckRows() { return item8Rows; }

void Chk_Item5Store(Program& program) { runChecks(program, scheduleOf(5).form, item5Rows); }
void Chk_Item8Store(Program& program) { runChecks(program, scheduleOf(9).form, item8Rows); }

} // namespace lodge
