// The assignments of values to the fields of a template, read back from the formula texts that the print run
// sends: "lblFld00 = ' 0105536000313 ' ".
#pragma once

#include <string>
#include <string_view>

namespace lodge {

struct Assignment {
    std::string field;
    std::string value; ///< Without the blanks that the quotes enclose beside it.
};

/// Reads one formula. Throws ReportError, naming the field, when it is not a name, an equals sign and one
/// text between apostrophes. An apostrophe inside the value would end the text early, so such a formula is
/// refused.
[[nodiscard]] Assignment readFormula(std::string_view formula);

} // namespace lodge
