// Takes the text of a report template apart: the slots, the captions, and the drawing that remains.
#pragma once

#include "paper/caption.h"
#include "paper/slot.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodge {

struct TemplateParts {
    std::vector<Slot> slots; ///< Sorted by field.
    std::vector<Caption> captions;
    std::string drawing; ///< SVG without them.
};

/// `name` is what messages call the template. Throws ReportError when the text is no SVG page of the size
/// that slots are measured on, a slot is not clear, or a name is there twice.
[[nodiscard]] TemplateParts readTemplate(std::string_view svg, std::string_view name);

} // namespace lodge
