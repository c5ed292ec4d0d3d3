#include "pages/schedules/item12_checks.h"

#include "pages/fields/amounts.h"
#include "pages/fields/small_company.h"
#include "pages/schedules/item12_page.h"
#include "values/money.h"

#include <algorithm>
#include <array>

namespace lodge {

namespace {

struct CapitalRow {
    const char* message;
    bool (*refuses)(const CapitalEdit& edit);
};

bool paidUpWithoutRegistered(const CapitalEdit& edit) {
    return edit.leavesRegistered && readFigure(edit.registered) == 0 && readFigure(edit.paidUp) != 0;
}

bool registeredBelowPaidUp(const CapitalEdit& edit) {
    return readFigure(edit.registered) < readFigure(edit.paidUp);
}

constexpr std::array<CapitalRow, 2> capitalRows = {{
    {"กรุณากรอกทุนจดทะเบียน (ทุนจดทะเบียนต้องมากกว่าหรือเท่ากับ ทุนที่ออกชำระแล้ว)", paidUpWithoutRegistered},
    {"ทุนจดทะเบียน ต้องมากกว่าหรือเท่ากับ ทุนที่ออกชำระแล้ว", registeredBelowPaidUp},
}};

constexpr std::size_t assets = 9;
constexpr std::size_t paidUpCapital = 18;
constexpr std::size_t liabilitiesAndEquity = 22;

Sides balance(const CheckContext& context) {
    const FieldArray& fields = context.state.strFldPage7_12;
    return {readFigure(fields[assets]), readFigure(fields[liabilitiesAndEquity])};
}

bool sidesDiffer(const CheckContext& context) {
    const Sides sides = balance(context);
    return !sameAmount(sides.here, sides.there);
}

/// The first company status of page 1, and of page 2 the case of a reduced rate with its label.
constexpr std::size_t ordinaryCompany = 12;
constexpr std::size_t reducedRate = 26;
constexpr std::size_t rateLabel = 44;
constexpr std::string_view cappedRateLabel = "(2.5)";

bool capitalTooLargeForRate(const CheckContext& context) {
    const ReturnState& state = context.state;
    return readFigure(state.strFldPage1[ordinaryCompany]) != 0
           && readFigure(state.strFldPage2[reducedRate]) != 0
           && state.strFldPage2[rateLabel] == cappedRateLabel
           && readFigure(state.strFldPage7_12[paidUpCapital]) > largestSmallCapital;
}

bool sideMissing(const CheckContext& context) {
    const FieldArray& fields = context.state.strFldPage7_12;
    return fields[assets].empty() || fields[liabilitiesAndEquity].empty();
}

constexpr std::array<CheckRow, 3> rows = {{
    {"M084", "txtMoney2(0)", sidesDiffer, balance},
    {"M100", "txtMoney4(1)", capitalTooLargeForRate},
    {"M105", "txtMoney2(0)", sideMissing},
}};

} // namespace

const char* capitalRefusal(const CapitalEdit& edit) {
    const auto row =
        std::ranges::find_if(capitalRows, [&](const CapitalRow& other) { return other.refuses(edit); });
    return row == capitalRows.end() ? nullptr : row->message;
}

std::span<const CheckRow> item12CheckRows() { return rows; }

void Chk_Item12Store(Program& program) { runChecks(program, frmLodgePage7_12::formName, rows); }

} // namespace lodge
