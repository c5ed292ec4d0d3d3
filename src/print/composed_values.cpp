#include "print/composed_values.h"

#include "file/store_load.h"
#include "values/money.h"
#include "values/text.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <utility>

namespace lodge::composed {

namespace {

Value tick(bool ticked) { return ticked ? "1" : "0"; }

/// The title of a list row; empty for no row.
std::string_view titleOf(const ReturnState& state, std::string_view row) {
    std::size_t number = 0;
    const auto [end, failed] = std::from_chars(row.data(), row.data() + row.size(), number);
    if (failed != std::errc() || end != row.data() + row.size() || number >= state.strTitleName.size()) {
        return {};
    }
    return state.strTitleName[number];
}

/// The person whose title stands in the entry, first name and surname behind it.
Value personName(const ReturnState& state, std::size_t entry) {
    const FieldArray& page = state.strFldPage1;
    const std::string title(titleOf(state, page[entry]));
    const std::string& name = page[entry + 1];
    const std::string& surname = page[entry + 2];
    if (title.empty() && name.empty() && surname.empty()) {
        return std::nullopt;
    }
    return title + name + "  " + surname;
}

/// How many characters of a remark stand on a line of the form.
constexpr std::size_t lineLength = 100;

struct Lines {
    std::string first;
    std::string second;
};

Lines brokenAtBlank(std::string_view text) {
    if (textLength(text) <= lineLength) {
        return {std::string(text), {}};
    }
    const std::string_view head = textLeft(text, lineLength);
    const std::size_t blank = head.rfind(' ');
    if (blank == std::string_view::npos) {
        return {std::string(head), std::string(text.substr(head.size()))};
    }
    return {std::string(text.substr(0, blank)), std::string(text.substr(blank + 1))};
}

Value unlessEmpty(std::string text) { return text.empty() ? std::nullopt : Value(std::move(text)); }

constexpr std::size_t auditorTitle = 32;
constexpr std::size_t accountantTitle = 39;
constexpr std::size_t taxEntry = 33;
constexpr std::size_t remark = 21;
constexpr std::size_t secondRemark = 22;
/// Line 21 of item 3, exempt and taxable business.
constexpr std::size_t exemptResult = 19;
constexpr std::size_t taxableResult = 39;

bool isNothing(std::string_view amount) { return amount.empty() || amount == "0.00"; }

} // namespace

Value auditorName(const ReturnState& state) { return personName(state, auditorTitle); }

Value accountantName(const ReturnState& state) { return personName(state, accountantTitle); }

Value packedFile(const ReturnState& state) {
    return state.strFileName.empty() ? std::nullopt : Value(packedPathOf(state.strFileName));
}

Value computedTax(const ReturnState& state) {
    const std::string& kept = state.DataCtrl_P2.TaxValue;
    return unlessEmpty(formatBracketText(kept.empty() ? state.strFldPage2[taxEntry] : kept));
}

Value generalRate(const ReturnState& state) { return tick(state.DataCtrl_P2.NewAtt1 == "(1)"); }

Value reducedRate(const ReturnState& state) {
    const TaxRecord& tax = state.DataCtrl_P2;
    const bool generalOrNone = tax.NewAtt1 == "(1)" || tax.NewAtt1.empty();
    return tick(!generalOrNone || !tax.NewAtt2.empty() || !tax.NewAtt3.empty());
}

Value rateRow(const ReturnState& state) {
    static constexpr std::array<std::string_view, 6> rows = {"1.1", "1.2", "1.3", "1.4", "1.5", "1.6"};
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (state.DataCtrl_P2.nRateCode == rows[row]) {
            return std::to_string(row + 1);
        }
    }
    return "0";
}

Value remarkLine(const ReturnState& state) {
    return unlessEmpty(brokenAtBlank(state.strFldPage8[remark]).first);
}

Value remarkContinued(const ReturnState& state) {
    return unlessEmpty(brokenAtBlank(state.strFldPage8[remark]).second);
}

Value secondRemarkLine(const ReturnState& state) {
    return unlessEmpty(brokenAtBlank(state.strFldPage8[secondRemark]).first);
}

Value secondRemarkContinued(const ReturnState& state) {
    return unlessEmpty(brokenAtBlank(state.strFldPage8[secondRemark]).second);
}

Value statedProfit(const ReturnState& state) { return tick(state.BoxProfit); }

Value statedLoss(const ReturnState& state) { return tick(state.BoxLoss); }

Value statedResult(const ReturnState& state) {
    const FieldArray& item3 = state.strFldPage3_3;
    if (isNothing(item3[taxableResult]) && isNothing(item3[exemptResult])) {
        return "";
    }
    return unlessEmpty(formatBracketText(state.BoxAmount));
}

} // namespace lodge::composed
