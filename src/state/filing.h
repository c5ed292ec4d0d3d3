// What follows from the period and the filing choice of page 1: tax year, earlier years, filing type and
// number.
#pragma once

#include "state/return_state.h"

namespace lodge {

/// Sets strTaxYear to the year of the period's last day, even when most of the period lies in the year
/// before.
void setTaxYear(ReturnState& state);

/// Sets strPrevYear[0..7] to the eight years before the period's first (B.E.); empty without a start year.
void setPreviousYears(ReturnState& state);

/// Sets strFilingType and strAddNo from the filing boxes of page 1: normal wins over additional, additional
/// over advance payment. Only an additional filing has a number; it is written with two digits.
void setFilingType(ReturnState& state);

/// The years over which a loss may be carried: 13 for a promoted business, 5 for any other.
int carryYears(const ReturnState& state);

} // namespace lodge
