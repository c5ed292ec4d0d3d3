// One line of the return file as digits: four for the code of each character in the Thai code page, then four
// of a check value, the plain sum of the codes. It keeps a casual reader from the amounts and catches a
// damaged line; it is no cipher, and a damage that leaves the sum's last four digits alone goes unseen.
#pragma once

#include <string>
#include <string_view>

namespace lodge {

/// What a damaged line decodes to.
inline constexpr std::string_view damagedLineText = "-1";

struct DecodedLine {
    std::string text;     ///< "-1" when damaged.
    bool damaged = false; ///< The check value differs, or a group is not four digits of a code up to 255.
};

/// The digits of a line of code page bytes; an empty line stays empty.
std::string encodeLine(std::string_view bytes);

/// The code page bytes of a line of digits; an empty line stays empty.
DecodedLine decodeLine(std::string_view digits);

/// encodeLine of a UTF-8 text; a character that the code page does not have counts as "?".
std::string EnCodeLine(std::string_view text);

/// decodeLine into a UTF-8 text; "-1" for a damaged line.
std::string DeCodeLine(std::string_view digits);

} // namespace lodge
