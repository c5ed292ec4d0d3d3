// Whether the filer is a commercial bank: one of the business lines of page 1 says so.
#pragma once

#include "state/return_state.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace lodge {

/// Commercial banks, in the industrial classification.
inline constexpr std::string_view bankIsicCode = "641910";

[[nodiscard]] inline bool hasBankCode(const ReturnState& state) {
    return std::ranges::any_of(std::array<std::size_t, 3>{24, 26, 28},
        [&](std::size_t entry) { return trimBlanks(state.strFldPage1[entry]) == bankIsicCode; });
}

} // namespace lodge
