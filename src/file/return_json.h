// A return as JSON, for other programs: what `lodge77-cli show --json` prints, and what travels in a printed
// PDF.
#pragma once

#include "state/return_state.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

enum class JsonFields { All, FilledOnly };

/// "file", "damagedLines" (numbers from 1) and "fields", an object from name to value. All values are texts:
/// numbers in decimal, flags True or False.
[[nodiscard]] nlohmann::ordered_json returnJson(ReturnState& state, std::string_view file,
    const std::vector<std::size_t>& damagedLines, JsonFields fields = JsonFields::All);

/// The text of a list of returns, ended by a line feed. A byte that is no UTF-8 becomes U+FFFD.
[[nodiscard]] std::string jsonText(const nlohmann::ordered_json& returns);

} // namespace lodge
