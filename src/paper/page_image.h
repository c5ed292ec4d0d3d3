// A page of the form as pixels, for a preview on the screen.
#pragma once

#include "paper/page_painter.h"
#include "program/pdf_press.h"

namespace lodge {

/// The page at so many pixels an inch. Throws ReportError.
[[nodiscard]] PageImage pageImage(const FilledPage& page, double pixelsPerInch);

} // namespace lodge
