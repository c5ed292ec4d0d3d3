#include "pages/tax/page2_normalise.h"

#include "pages/tax/page2_fields.h"
#include "values/money.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>

namespace lodge {

namespace {

/// Status boxes, as entries of strFldPage1, that allow no general case, and those that allow no reduced one.
constexpr std::array<std::size_t, 5> statusesWithoutGeneral = {13, 14, 19, 21, 49};
constexpr std::array<std::size_t, 4> statusesWithoutReduced = {15, 16, 17, 18};
/// Status boxes whose tax is typed: they have no case at all.
constexpr std::array<std::size_t, 2> statusesWithTypedTax = {20, 48};

constexpr const char* no = "0";

bool isOne(const std::string& entry) { return readNumber(entry) == 1; }

bool anyTicked(const ReturnState& state, std::span<const std::size_t> boxes) {
    return std::ranges::any_of(boxes, [&](std::size_t box) { return isOne(state.strFldPage1[box]); });
}

/// Takes a case back, and out of what is left to pay the tax that it gave. While the worksheet holds a tax,
/// that is the tax, and its rows tick the case anew.
void withdraw(ReturnState& state, std::size_t entry) {
    FieldArray& fields = state.strFldPage2;
    const bool wasChosen = isOne(fields[entry]);
    fields[entry] = no;
    if (!wasChosen || !state.DataCtrl_P2.WorkTaxSum.empty()) return;
    fields[41] = plainNumberText(roundMoney(readFigure(fields[41]) - readFigure(storedTax(state))));
    fields[43] = fields[41];
    fields[33] = "0.00";
    state.DataCtrl_P2.TaxValue = fields[33];
}

struct LabelRow {
    std::size_t statusBox; ///< Entry of strFldPage1.
    std::string_view number;
    std::string_view label;
};

constexpr std::array<LabelRow, 6> labelRows = {{
    {12, "3", "(2.4)"},
    {13, "1", "(1.1)"},
    {13, "4", "(1.3)"},
    {14, "2", "(1.2)"},
    {14, "4", "(1.3)"},
    {14, "5", "(1.4)"},
}};

} // namespace

const std::string& storedTax(const ReturnState& state) {
    return state.DataCtrl_P2.TaxValue.empty() ? state.strFldPage2[33] : state.DataCtrl_P2.TaxValue;
}

void normalisePage2(ReturnState& state) {
    FieldArray& fields = state.strFldPage2;
    const bool receipts = isOne(fields[24]);
    if (isOne(state.strFldPage1[12]) && !receipts) fields[receiptsCaseEntry] = no;
    if (anyTicked(state, statusesWithoutGeneral)) {
        withdraw(state, generalCaseEntry);
        if (!receipts) withdraw(state, receiptsCaseEntry);
    }
    if (anyTicked(state, statusesWithoutReduced)) withdraw(state, reducedCaseEntry);
    if (anyTicked(state, statusesWithTypedTax)) {
        for (const std::size_t entry : {generalCaseEntry, reducedCaseEntry, receiptsCaseEntry})
            fields[entry] = no;
        fields[44].clear();
    }
}

std::string_view storedRateLabel(const ReturnState& state) {
    const auto* row = std::ranges::find_if(labelRows, [&](const LabelRow& each) {
        return state.strFldPage1[each.statusBox] == "1" && state.strFldPage2[45] == each.number;
    });
    return row == labelRows.end() ? std::string_view() : row->label;
}

} // namespace lodge
