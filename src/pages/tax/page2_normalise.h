// What showing page 2 does to its array first: cases of line 2 that the company status does not allow are
// withdrawn, with the tax that they gave.
#pragma once

#include "state/return_state.h"

#include <string_view>

namespace lodge {

/// Runs before the page is filled. Nothing changes in a return whose case fits its status.
void normalisePage2(ReturnState& state);

/// The label of the reduced rate that the rate panel left in the array, "(1.1)"; empty for none.
[[nodiscard]] std::string_view storedRateLabel(const ReturnState& state);

/// The tax of item 2. TaxValue stands in for its entry, into which unloading page 2 writes the income.
[[nodiscard]] const std::string& storedTax(const ReturnState& state);

} // namespace lodge
