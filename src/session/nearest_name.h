// The known name that a misspelt one most likely means.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// How many letters must be put in, taken out, exchanged or swapped with their neighbour to turn one name
/// into the other. Capitals count as small letters.
[[nodiscard]] std::size_t editDistance(std::string_view a, std::string_view b);

/// The candidate with the smallest distance, the first of several; empty without candidates.
[[nodiscard]] std::string nearestName(std::string_view name, const std::vector<std::string>& candidates);

/// `; the nearest name is "click"`, to stand behind the cause; empty without candidates.
[[nodiscard]] std::string nearestNameHint(std::string_view name, const std::vector<std::string>& candidates);

/// The names of a table's rows, to be candidates.
template <typename Rows>
[[nodiscard]] std::vector<std::string> namesOf(const Rows& rows) {
    std::vector<std::string> names;
    names.reserve(rows.size());
    for (const auto& row : rows) {
        names.emplace_back(row.name);
    }
    return names;
}

} // namespace lodge
