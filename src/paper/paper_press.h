// The press that draws: it keeps the templates it has read, so that a batch of returns reads each of them
// once.
#pragma once

#include "paper/pdf_document.h"
#include "paper/rendering_engine.h"
#include "program/pdf_press.h"

#include <memory>
#include <utility>
#include <vector>

namespace lodge {

class PaperPress final : public PdfPress {
  public:
    void setReportFileName(const std::filesystem::path& path) override { engine_.setReportFileName(path); }
    void setFormula(std::size_t slot, const std::string& text) override { engine_.setFormula(slot, text); }
    void setOutputOption(long option) override { engine_.setOutputOption(option); }
    void setAction(int action) override { engine_.setAction(action); }

    void beginDocument() override;
    [[nodiscard]] std::size_t pageCount() const override { return document_->pageCount(); }
    [[nodiscard]] PageImage pageImage(std::size_t page, double pixelsPerInch) const override;
    [[nodiscard]] std::string finishDocument(const std::string& title, const Attachment& attachment) override;

  private:
    void add(FilledPage page);

    TemplateShelf shelf_;
    std::unique_ptr<PdfDocument> document_ = std::make_unique<PdfDocument>();
    std::vector<FilledPage> pages_; // those of the document, for images of them
    RenderingEngine engine_{shelf_, [this](FilledPage page) { add(std::move(page)); }};
};

} // namespace lodge
