#include "paper/rendering_engine.h"

#include "paper/formula.h"

#include <utility>

namespace lodge {

RenderingEngine::RenderingEngine(TemplateShelf& shelf, TakePage takePage)
    : shelf_(shelf), takePage_(std::move(takePage)) {}

void RenderingEngine::setReportFileName(const std::filesystem::path& path) {
    template_ = path;
    formulas_.clear();
}

void RenderingEngine::setFormula(std::size_t slot, const std::string& text) {
    formulas_.insert_or_assign(slot, text);
}

// A page has one form, whatever the option says: where it ends up is for its taker to know.
void RenderingEngine::setOutputOption(long /*option*/) {}

void RenderingEngine::setAction(int action) {
    constexpr int run = 1;
    if (action == run) takePage_(filledPage());
}

FilledPage RenderingEngine::filledPage() {
    FilledPage page{.form = shelf_.take(template_), .values = {}};
    for (const auto& [slot, formula] : formulas_) {
        auto [field, value] = readFormula(formula);
        if (page.form->slotsOf(field).empty())
            throw ReportError(report_error::fieldMissing, "แบบพิมพ์ " + page.form->name() + " ไม่มีช่อง " + field);
        page.values.insert_or_assign(std::move(field), std::move(value));
    }
    return page;
}

} // namespace lodge
