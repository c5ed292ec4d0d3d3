// Texts counted in characters. A character is one code point (one letter, vowel or tone mark of the Thai code
// page), never a UTF-8 byte. A malformed byte counts as one character of its own and is kept as it is;
// nothing here fails.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

// The number of characters.
[[nodiscard]] std::size_t textLength(std::string_view text);

// The first `count` characters, the whole text when it has no more.
[[nodiscard]] std::string_view textLeft(std::string_view text, std::size_t count);

// `count` characters from position `start` on, or all the rest; the first character stands at position 1, and
// position 0 is taken as 1. Empty behind the end.
[[nodiscard]] std::string_view textMid(
    std::string_view text, std::size_t start, std::size_t count = std::string_view::npos);

// The last `count` characters, the whole text when it has no more.
[[nodiscard]] std::string_view textRight(std::string_view text, std::size_t count);

// The text without blanks (U+0020 alone) at both ends.
[[nodiscard]] std::string_view trimBlanks(std::string_view text);

// The text without any of the given ASCII characters.
[[nodiscard]] std::string removeAll(std::string_view text, std::string_view characters);

// Whether the byte is one of 0 to 9; Thai digits are not.
[[nodiscard]] constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Whether every byte is one of 0 to 9; an empty text has no other.
[[nodiscard]] bool allDigits(std::string_view text);

// The pieces between bars "|", one more than there are bars; an empty text is one empty piece. The views look
// into `text`.
[[nodiscard]] std::vector<std::string_view> splitBar(std::string_view text);

// Decodes the character at `position` (a byte index below the size) and moves `position` behind it. A
// malformed byte is U+FFFD of one byte.
char32_t nextCharacter(std::string_view text, std::size_t& position);

// Appends the UTF-8 form of a code point.
void appendCharacter(std::string& text, char32_t character);

// What a text box is for, as far as its input is concerned.
enum class InputKind { Text, MultiLine, Amount, Number, Date };

// What a text box makes of a text that was typed or pasted: a nikhahit and the sara aa behind it become sara
// am, zero-width blanks go, Thai digits become 0 to 9 in Amount, Number and Date, a character outside the
// Thai code page becomes "?". Neither "|" nor control characters are taken, because the return file could not
// carry them (line breaks only in MultiLine). Regular input stays as it is.
[[nodiscard]] std::string regularInput(std::string_view typed, InputKind kind);

} // namespace lodge
