// Fixed wording of a report template that is set as values are, and not drawn with the rest of the page.
#pragma once

#include "paper/slot.h"

#include <string>

namespace lodge {

/// Parts of 1.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// Values are blue, as if filled in by hand, and still dark on a black and white print.
inline constexpr Colour valueColour{.red = 0x0B / 255.0, .green = 0x2E / 255.0, .blue = 0x6B / 255.0};

/// A text on one line; all measures in millimetres.
struct Caption {
    std::string text;
    double x = 0; ///< Where it starts, has its middle or ends.
    double baseline = 0;
    SlotAlign align = SlotAlign::Start;
    double size = 0;
    bool isBold = false;
    Colour colour;
};

} // namespace lodge
