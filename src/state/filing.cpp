#include "state/filing.h"

#include "values/money.h"
#include "values/text.h"

#include <cstddef>
#include <string>

namespace lodge {

namespace {

// Entries of strFldPage1.
constexpr std::size_t normalFiling = 7;
constexpr std::size_t advancePayment = 8;
constexpr std::size_t additionalFiling = 9;
constexpr std::size_t additionalNumber = 10;

constexpr std::size_t earlierYears = 8;

} // namespace

void setTaxYear(ReturnState& state) { state.strTaxYear = textRight(state.strFinishDDMMYY, 4); }

void setPreviousYears(ReturnState& state) {
    const auto year = static_cast<std::size_t>(readNumber(textMid(state.strStartDDMMYY, 5, 4)));
    for (std::size_t k = 0; k < earlierYears; ++k) {
        state.strPrevYear[k] = year > earlierYears ? std::to_string(year - (earlierYears - k)) : "";
    }
}

void setFilingType(ReturnState& state) {
    state.strFilingType = "0";
    state.strAddNo = "00";
    const FieldArray& page1 = state.strFldPage1;
    if (page1[normalFiling] == "1") {
        state.strFilingType = "1";
    } else if (page1[additionalFiling] == "1") {
        state.strFilingType = "2";
        const std::string& number = page1[additionalNumber];
        state.strAddNo = textLength(number) == 1 ? "0" + number : number;
    } else if (page1[advancePayment] == "1") {
        state.strFilingType = "3";
    }
}

int carryYears(const ReturnState& state) {
    constexpr std::int16_t promoted = 1;
    return state.intInvestment == promoted ? 13 : 5;
}

} // namespace lodge
