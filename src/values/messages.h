// The catalogue of numbered messages: a check names a code, and only this table knows the text.
// Texts are held to the letter, doubled and trailing blanks and bare carriage returns included.
#pragma once

#include <span>
#include <string_view>

namespace lodge {

struct MessageRow {
    std::string_view code; // "M", three digits, for the forms of one message a point and a digit
    std::string_view text; // UTF-8; lines are parted by "\r", in M501 alone by "\r\n"
};

// The text of a code, compared letter by letter; empty for a code that the catalogue does not hold.
[[nodiscard]] std::string_view GetMessage(std::string_view code);

// Every row, in the order of the codes.
[[nodiscard]] std::span<const MessageRow> messageRows();

// The codes that stay in the catalogue although no check raises them, in the order of the codes.
[[nodiscard]] std::span<const std::string_view> messagesNobodyRaises();

} // namespace lodge
