// The words of a script's line: blanks part them, quotes hold them together, "#" begins a comment and
// ${NAME} stands for a value from outside.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

/// What stands for ${NAME}, by its name.
using Substitutes = std::map<std::string, std::string, std::less<>>;
using Words = std::vector<std::string>;

/// The words of one line, which is UTF-8 and has no line break. Empty for a blank line and for a comment. A
/// value put in for ${NAME} is taken as it is: its blanks, quotes and backslashes part and escape nothing.
/// Throws ScriptFault for a quote that is not closed, an unknown escape or name, a malformed character.
[[nodiscard]] Words splitWords(std::string_view line, const Substitutes& substitutes);

/// The text with the escapes that a script would write it with: \" \\ \n \r.
[[nodiscard]] std::string escaped(std::string_view text);
/// The escaped text in double quotes.
[[nodiscard]] std::string inQuotes(std::string_view text);

/// Whether the text is UTF-8 from end to end.
[[nodiscard]] bool isUtf8(std::string_view text);

} // namespace lodge
