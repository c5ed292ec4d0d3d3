#include "state/tax_fields.h"

#include "values/money.h"

namespace lodge {

namespace {

constexpr std::size_t line4Choice = 28; // "pay more", followed by "overpaid"
constexpr std::size_t line6Choice = 30;
constexpr std::size_t line4Amount = 41;
constexpr std::size_t line6Amount = 43;
constexpr std::size_t rateCase = 44;

void restoreChoice(FieldArray& page, std::size_t entry, const std::string& status) {
    page[entry] = status == "1" ? "1" : "0";
    page[entry + 1] = status == "2" ? "1" : "0";
}

} // namespace

void restoreTaxFields(ReturnState& state) {
    const TaxRecord& tax = state.DataCtrl_P2;
    FieldArray& page = state.strFldPage2;
    page[rateCase] = tax.RateCaseText;
    restoreChoice(page, line4Choice, tax.Line4Status);
    restoreChoice(page, line6Choice, tax.Line6Status);
    // Crosswise, and meant so: the form takes line 4 from the amount of line 6 and line 6 from that of
    // line 4. The two differ only by the surcharge of line 5.
    page[line4Amount] = xx_Val(tax.Line6Amount);
    page[line6Amount] = xx_Val(tax.Line4Amount);
}

} // namespace lodge
