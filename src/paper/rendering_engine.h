// The report engine that draws: it gathers the formulas of a job, finds for each the slot of the template,
// and gives the filled page on to a document or a preview.
#pragma once

#include "paper/page_painter.h"
#include "program/report_engine.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace lodge {

class RenderingEngine final : public ReportEngine {
  public:
    /// What becomes of a page; it may throw ReportError.
    using TakePage = std::function<void(FilledPage)>;

    /// The shelf outlives the engine.
    RenderingEngine(TemplateShelf& shelf, TakePage takePage);

    void setReportFileName(const std::filesystem::path& path) override;
    void setFormula(std::size_t slot, const std::string& text) override;
    void setOutputOption(long option) override;
    /// Throws ReportError when the template cannot be read, a formula is broken, or the template has no slot
    /// for one.
    void setAction(int action) override;

  private:
    [[nodiscard]] FilledPage filledPage();

    TemplateShelf& shelf_;
    TakePage takePage_;
    std::filesystem::path template_;
    std::map<std::size_t, std::string> formulas_;
};

} // namespace lodge
