// Numbers as a script writes them: whole, in decimal, nothing else in the word.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace lodge {

/// The number when the whole text is one that T holds, otherwise nothing.
template <typename T>
[[nodiscard]] std::optional<T> wholeNumber(std::string_view text) {
    T number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

} // namespace lodge
