// Reads a slot from the drawing of a report template.
//
// A slot is an SVG rectangle that has an id and is not painted. Its id is the name of a field, or, for a tick
// that stands for one value of several, the name, a point and the value: "Cash_Refund.1". What else there is
// to say stands in its attributes data-kind, data-align, data-size, data-lines, data-cells and data-cell.
#pragma once

#include "paper/slot.h"
#include "paper/xml_element.h"

#include <optional>
#include <string_view>

namespace lodge {

/// The slot that the element is; nothing for any other element. `templateName` is what messages call the
/// template. Throws ReportError when the slot is not clear: an attribute that is no number or no word of its
/// kind, a place under a transformed group.
[[nodiscard]] std::optional<Slot> slotOf(const XmlElement& element, std::string_view templateName);

} // namespace lodge
