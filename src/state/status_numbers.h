// The company statuses by the number that the return file and the tax authority know them by, and the status
// box of page 1 that stands for each. Box numbers grew with the form and do not follow the status numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace lodge {

/// The box of the special-purpose development zone. It stands beside another status and has no number of its
/// own.
inline constexpr std::int16_t developmentZoneBox = 11;

/// The status box (0 to 23) of a status number ("1" to "21"); nothing for an empty or unknown number.
std::optional<std::int16_t> boxOfStatus(std::string_view number);

} // namespace lodge
