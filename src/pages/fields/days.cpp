#include "pages/fields/days.h"

#include <charconv>
#include <string>

namespace lodge {

std::optional<Date> dayOf(std::string_view text) {
    const std::string digits = ChkDate(dateDigits(text));
    if (digits.empty()) return std::nullopt;
    const auto part = [&](std::size_t start, std::size_t length) {
        unsigned number = 0;
        std::from_chars(digits.data() + start, digits.data() + start + length, number);
        return number;
    };
    return Date{std::chrono::year{static_cast<int>(part(4, 4)) - buddhistEraOffset},
        std::chrono::month{part(2, 2)}, std::chrono::day{part(0, 2)}};
}

long dayNumber(const std::optional<Date>& date) { return date ? DateFromText(dateText(*date)) : 0; }

bool isDayAfter(std::string_view later, std::string_view earlier) {
    const auto first = dayOf(later);
    const auto last = dayOf(earlier);
    return first && last && *first == AddDays(*last, 1);
}

} // namespace lodge
