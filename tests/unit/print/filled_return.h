// A return in which every value tells where it comes from, so that a field that reads another entry shows.
#pragma once

#include "state/return_state.h"

namespace lodge {

/// Amounts are the number of their page followed by their entry: entry 12 of item 4 is 34012.00. In each
/// array of amounts entry 5 is negative, entry 6 empty and entry 7 zero. Lists of three hold the same number
/// with 1, 2 or 3 behind it for their column, column C negative in odd entries; entry 72 has no column A,
/// entry 74 is empty.
[[nodiscard]] ReturnState filledReturn();

} // namespace lodge
