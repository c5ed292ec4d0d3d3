// Reads a caption from the drawing of a report template.
//
// The library that draws the page finds out where each text has its ink, which costs more than all the rest,
// and gives Thai to a PDF letter by letter, so that it is copied with its marks out of order. So a text that
// says no more than what, where, how big and in which colour is taken out of the drawing and set by our own
// hand. Any other text, turned, in pieces, in another typeface, stays in the drawing and looks the same.
#pragma once

#include "paper/caption.h"
#include "paper/xml_element.h"

#include <optional>

namespace lodge {

/// The caption that the element is; nothing for an element that must stay in the drawing.
[[nodiscard]] std::optional<Caption> captionOf(const XmlElement& element);

} // namespace lodge
