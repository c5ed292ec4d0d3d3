// Patterns of `expect-like`.
#pragma once

#include <string_view>

namespace lodge {

/// Whether the whole text matches the pattern, in which "*" stands for any run of characters, also for none,
/// and every other character for itself.
[[nodiscard]] bool matchesPattern(std::string_view text, std::string_view pattern);

} // namespace lodge
