// Date texts as days of the calendar, for rules that reckon with them.
#pragma once

#include "values/dates.h"

#include <optional>
#include <string_view>

namespace lodge {

/// A date text, eight digits or ten characters with slashes, as a day of the calendar; nothing for a text
/// that is no date.
[[nodiscard]] std::optional<Date> dayOf(std::string_view text);

/// The day as DateFromText counts days; 0 when there is none.
[[nodiscard]] long dayNumber(const std::optional<Date>& date);

/// Whether the later date is the day after the earlier one; false when one of them is no date.
[[nodiscard]] bool isDayAfter(std::string_view later, std::string_view earlier);

} // namespace lodge
