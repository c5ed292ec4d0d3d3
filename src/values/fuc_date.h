// The accounting period of the return as days, and the span of years that its losses may be carried over.
#pragma once

#include "values/dates.h"

#include <optional>
#include <string_view>

namespace lodge {

// `machineYear` is the year that the machine's calendar shows today: 2018 on a machine that keeps the
// Christian era, 2561 on one that keeps the Buddhist era. What has not been set yet is empty.
struct FucDate {
    std::optional<Date> PeriodStartDate;
    std::optional<Date> PeriodEndDate;
    std::optional<Date> DayBeforePeriodStart;
    std::optional<Date> ParsedDate; // the last date text that could be read
    std::optional<Date> EarliestStartDate;
    int CarryYearLimit = 0; // years

    // Reads a date text, with or without "-", "/" and blanks, and sets the start of the period and the day
    // before it. False when the text is no day; everything then stays as it was.
    bool Str2StartDate(std::string_view text, int machineYear);

    // The same for the end of the period.
    bool Str2EndDate(std::string_view text, int machineYear);

    // Sets the limit and the earliest start of an earlier period whose loss still counts: the start of this
    // period less that many years (empty while the period has no start).
    void SetCarryYears(int years);

  private:
    bool parse(std::string_view text, int machineYear);
};

} // namespace lodge
