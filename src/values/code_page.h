// The Thai code page of the return file: windows-874 as the web has it, one byte for each character. The page
// leaves 31 bytes undefined; they map to C1 controls (0x81 to 0x9F) and, as Windows does it, to the
// private-use characters U+F8C1 to U+F8C8 (0xDB to 0xDE, 0xFC to 0xFF), so that every byte survives the way
// in and out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lodge {

// The bytes of a UTF-8 text; a character that the page does not have, and each malformed byte, becomes "?".
[[nodiscard]] std::string toCodePage(std::string_view utf8);

// The UTF-8 text of bytes of the page. Every byte string can be read and comes back the same from toCodePage.
[[nodiscard]] std::string fromCodePage(std::string_view bytes);

// The byte of a character, stand-ins of the undefined bytes included; nullopt when the page does not have it.
[[nodiscard]] std::optional<std::uint8_t> codeOf(char32_t character);

// The character of a byte.
[[nodiscard]] char32_t characterOf(std::uint8_t code);

// Whether the page has the character; the stand-ins of undefined bytes are no characters of the page.
[[nodiscard]] bool inCodePage(char32_t character);

} // namespace lodge
