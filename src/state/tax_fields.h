// Items 1 and 2 before they are printed: what page 2 keeps beside its fields goes back into them.
#pragma once

#include "state/return_state.h"

namespace lodge {

/// Sets the rate case (44), the choices of lines 4 and 6 (28 to 31) and their amounts (41, 43) of strFldPage2
/// from DataCtrl_P2. Amounts become plain digits, an empty one "0".
void restoreTaxFields(ReturnState& state);

} // namespace lodge
