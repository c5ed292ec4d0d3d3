#include "paper/pdf_document.h"

#include "paper/library_owners.h"
#include "program/report_engine.h"

#include <cairo-pdf.h>
#include <utility>

namespace lodge {

namespace {

constexpr double pointsPerMillimetre = 72 / 25.4;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

} // namespace

struct PdfDocument::Drawing {
    std::string bytes;
    CairoOwner<cairo_surface_t> surface;
    CairoOwner<cairo_t> context;
    std::size_t pageCount = 0;
};

PdfDocument::PdfDocument() : drawing_(std::make_unique<Drawing>()) {
    drawing_->surface.reset(cairo_pdf_surface_create_for_stream(
        append, &drawing_->bytes, pageWidth * pointsPerMillimetre, pageHeight * pointsPerMillimetre));
    drawing_->context.reset(cairo_create(drawing_->surface.get()));
    cairo_scale(drawing_->context.get(), pointsPerMillimetre, pointsPerMillimetre);
}

PdfDocument::~PdfDocument() = default;

void PdfDocument::add(const FilledPage& page) {
    paint(drawing_->context.get(), page);
    cairo_show_page(drawing_->context.get());
    ++drawing_->pageCount;
}

std::size_t PdfDocument::pageCount() const { return drawing_->pageCount; }

std::string PdfDocument::finish(const std::string& title) {
    cairo_pdf_surface_set_metadata(drawing_->surface.get(), CAIRO_PDF_METADATA_TITLE, title.c_str());
    drawing_->context.reset();
    cairo_surface_finish(drawing_->surface.get());
    const cairo_status_t status = cairo_surface_status(drawing_->surface.get());
    if (status == CAIRO_STATUS_SUCCESS) return std::move(drawing_->bytes);
    throw ReportError(
        report_error::programFault, std::string("ทำไฟล์ PDF ไม่ได้: ") + cairo_status_to_string(status));
}

} // namespace lodge
