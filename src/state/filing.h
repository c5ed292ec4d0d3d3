// What follows from the period and the filing choice of page 1: tax year, earlier years, filing type and
// number.
#pragma once

#include "state/return_state.h"

#include <cstddef>

namespace lodge {

/// The filing boxes of page 1 and the number beside them, as entries of strFldPage1.
namespace filing {
inline constexpr std::size_t normal = 7;
inline constexpr std::size_t advancePayment = 8;
inline constexpr std::size_t additional = 9;
inline constexpr std::size_t additionalNumber = 10;
} // namespace filing

/// Sets strTaxYear to the year of the period's last day, even when most of the period lies in the year
/// before.
void setTaxYear(ReturnState& state);

/// Sets strPrevYear[0..7] to the eight years before the period's first (B.E.); empty without a start year.
void setPreviousYears(ReturnState& state);

/// Sets strFilingType and strAddNo from the filing boxes of page 1: normal wins over additional, additional
/// over advance payment. Only an additional filing has a number; it is written with two digits.
void setFilingType(ReturnState& state);

/// Sets the filing boxes of page 1 from strFilingType and strAddNo, for a return that comes from its file. A
/// filing type that is none leaves them as they are.
void restoreFilingBoxes(ReturnState& state);

/// The years over which a loss may be carried: 13 for a promoted business, 5 for any other.
int carryYears(const ReturnState& state);

} // namespace lodge
