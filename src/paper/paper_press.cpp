#include "paper/paper_press.h"

#include "paper/attachment.h"
#include "paper/page_image.h"

namespace lodge {

void PaperPress::beginDocument() {
    document_ = std::make_unique<PdfDocument>();
    pages_.clear();
}

void PaperPress::add(FilledPage page) {
    document_->add(page);
    pages_.push_back(std::move(page));
}

PageImage PaperPress::pageImage(std::size_t page, double pixelsPerInch) const {
    return lodge::pageImage(pages_.at(page), pixelsPerInch);
}

std::string PaperPress::finishDocument(const std::string& title, const Attachment& attachment) {
    return withAttachment(document_->finish(title), attachment);
}

} // namespace lodge
