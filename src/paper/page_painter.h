// Draws a page of the form: the template, and the values in its slots. One way for every surface, so that the
// preview, the PDF and the paper are the same page.
#pragma once

#include "paper/drawn_template.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace lodge {

/// A template and the values of its fields, without blanks at their ends.
struct FilledPage {
    std::shared_ptr<const DrawnTemplate> form;
    std::map<std::string, std::string, std::less<>> values;
};

/// Draws the page onto a surface whose unit is the millimetre. Throws ReportError.
void paint(cairo_t* surface, const FilledPage& page);

} // namespace lodge
