// Line 22 of item 3, the net profit or loss that is taxed, from the two columns of line 21. The profit of the
// exempt business never raises it, its loss lowers it; the loss of a business under investment status 3 or 4
// (headquarters) stays outside.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lodge {

/// Line 22 as the page shows it. `exempt` and `taxable` are the shown texts of line 21, empty when the column
/// has no figure; `investment` is intInvestment.
[[nodiscard]] std::string line22Text(
    std::string_view exempt, std::string_view taxable, std::int16_t investment);

} // namespace lodge
