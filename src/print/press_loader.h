// Loads the module that draws, so that a program that prints nothing starts without its libraries.
#pragma once

#include "program/pdf_press.h"

#include <filesystem>
#include <memory>

namespace lodge {

/// A press out of the module in that folder, which stays loaded. Throws ReportError when there is none.
[[nodiscard]] std::unique_ptr<PdfPress> loadPdfPress(const std::filesystem::path& folder);

} // namespace lodge
