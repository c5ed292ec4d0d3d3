#include "state/filing.h"

#include "values/money.h"
#include "values/text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace lodge {

namespace {

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
    if (page1[filing::normal] == "1") {
        state.strFilingType = "1";
    } else if (page1[filing::additional] == "1") {
        state.strFilingType = "2";
        const std::string& number = page1[filing::additionalNumber];
        state.strAddNo = textLength(number) == 1 ? "0" + number : number;
    } else if (page1[filing::advancePayment] == "1") {
        state.strFilingType = "3";
    }
}

void restoreFilingBoxes(ReturnState& state) {
    const auto set = [&page1 = state.strFldPage1](std::string_view normal, std::string_view advancePayment,
                         std::string_view additional, std::string_view number) {
        page1[filing::normal] = normal;
        page1[filing::advancePayment] = advancePayment;
        page1[filing::additional] = additional;
        page1[filing::additionalNumber] = number;
    };
    if (state.strFilingType == "1") set("1", "0", "0", "");
    if (state.strFilingType == "2") set("0", "0", "1", state.strAddNo);
    // The "2" is meant: it is no tick of the additional filing, and tells an advance payment from one.
    if (state.strFilingType == "3") set("0", "1", "2", "");
}

int carryYears(const ReturnState& state) {
    constexpr std::int16_t promoted = 1;
    return state.intInvestment == promoted ? 13 : 5;
}

} // namespace lodge
