// The printed return as a PDF: vector pages whose letters are embedded and stay text.
#pragma once

#include "paper/page_painter.h"

#include <cstddef>
#include <memory>
#include <string>

namespace lodge {

class PdfDocument {
  public:
    /// An empty document of A4 pages.
    PdfDocument();
    PdfDocument(const PdfDocument&) = delete;
    PdfDocument& operator=(const PdfDocument&) = delete;
    ~PdfDocument();

    /// Draws the page behind those that are there. Throws ReportError.
    void add(const FilledPage& page);
    [[nodiscard]] std::size_t pageCount() const;

    /// The bytes of the document; no page can be added afterwards. The title is what a reader shows in its
    /// frame. Throws ReportError.
    [[nodiscard]] std::string finish(const std::string& title);

  private:
    struct Drawing;
    std::unique_ptr<Drawing> drawing_;
};

} // namespace lodge
