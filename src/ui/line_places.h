// Where a line of the paper form stands on screen, for the person who types its number: "3.22" is line 22 of
// item 3.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

struct LinePlace {
    /// The button of the chooser that leads to the page, empty for page 1.
    std::string chooserButton;
    std::string form;
    /// Full names of controls of the line in the order in which a person would want them; the last may be a
    /// figure that nobody can type. Empty for the page as a whole.
    std::vector<std::string> controls;
};

/// The place of "item" or "item.line", Thai digits taken too: "3", "3.22", "3.75.4", "12.2.3"; 13 is the
/// statement about the business. Nothing for an item or a line that the form does not have.
[[nodiscard]] std::optional<LinePlace> placeOfLine(std::string_view typed);

} // namespace lodge
