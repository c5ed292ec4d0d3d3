// A file that travels inside a PDF, so that the figures of a printed return can be read by a program as well.
#pragma once

#include "program/pdf_press.h"

#include <string>

namespace lodge {

/// The document with the file attached, its objects packed. The same document and file give the same bytes.
/// Throws ReportError when the document is no PDF.
[[nodiscard]] std::string withAttachment(const std::string& pdf, const Attachment& attachment);

} // namespace lodge
