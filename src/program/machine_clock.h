// The day that the machine shows, for every host without a clock of its own.
#pragma once

#include <chrono>

namespace lodge {

/// Today in the machine's own time zone, Christian era.
[[nodiscard]] std::chrono::year_month_day machineToday();

} // namespace lodge
