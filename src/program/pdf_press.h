// A report engine whose jobs become the pages of a PDF document, with a file attached to it.
//
// Drawing needs libraries that take longer to load than most commands of the command line take to run. So the
// press stands behind an interface, and the programs load it as a module when something is printed.
#pragma once

#include "program/report_engine.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lodge {

/// A page as pixels, on white paper. A pixel is 0xAARRGGBB, opaque; the rows follow each other without gaps.
struct PageImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// A file that travels inside a document.
struct Attachment {
    std::string name; ///< Without a folder.
    std::string mimeType;
    std::string bytes;
};

class PdfPress : public ReportEngine {
  public:
    /// Puts away the document under way. Before the first job there is one, too.
    virtual void beginDocument() = 0;
    /// The pages of the document: one a job that went through.
    [[nodiscard]] virtual std::size_t pageCount() const = 0;
    /// A page of the document, from 0, at so many pixels an inch: the same drawing as in the document. Throws
    /// ReportError.
    [[nodiscard]] virtual PageImage pageImage(std::size_t page, double pixelsPerInch) const = 0;
    /// The bytes of the document, which takes no more pages. Throws ReportError.
    [[nodiscard]] virtual std::string finishDocument(
        const std::string& title, const Attachment& attachment) = 0;
};

/// What the module, a file beside the program, exports: a function that makes a press, to be deleted by its
/// caller.
inline constexpr const char* pdfPressModule = "lodge77-paper.so";
inline constexpr const char* makePdfPressName = "makePdfPress";
using MakePdfPress = PdfPress* (*)();

} // namespace lodge
