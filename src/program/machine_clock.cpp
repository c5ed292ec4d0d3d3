#include "program/machine_clock.h"

#include <ctime>

namespace lodge {

std::chrono::year_month_day machineToday() {
    constexpr int firstYear = 1900; // of the C library
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    localtime_r(&now, &local);
    return {std::chrono::year(local.tm_year + firstYear),
        std::chrono::month(static_cast<unsigned>(local.tm_mon) + 1),
        std::chrono::day(static_cast<unsigned>(local.tm_mday))};
}

} // namespace lodge
