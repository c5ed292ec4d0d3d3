#include "state/status_numbers.h"

#include <algorithm>
#include <array>

namespace lodge {

namespace {

struct StatusBox {
    std::string_view number;
    std::int16_t box;
};

// Number 8 was an offshore banking business, which can no longer be chosen.
// clang-format off
constexpr std::array<StatusBox, 20> statusBoxes{{
    {"1", 0},   {"2", 1},   {"3", 2},   {"4", 3},   {"5", 4},   {"6", 5},   {"7", 6},
    {"9", 8},   {"10", 17}, {"11", 10}, {"12", 12}, {"13", 13}, {"14", 15}, {"15", 16},
    {"16", 19}, {"17", 20}, {"18", 21}, {"19", 22}, {"20", 14}, {"21", 23},
}};
// clang-format on

} // namespace

std::optional<std::int16_t> boxOfStatus(std::string_view number) {
    const auto* const row = std::ranges::find(statusBoxes, number, &StatusBox::number);
    if (row == statusBoxes.end()) return std::nullopt;
    return row->box;
}

} // namespace lodge
