#include "print/print_return.h"

#include <exception>
#include <string>

namespace lodge {

namespace {

constexpr int lastPage = 10;
constexpr int lastPageOfForm = 8; // behind it come the attachments, which are printed together

/// The range as the dialog gives it becomes the range that is printed.
PageRange pagesToPrint(PageRange chosen) {
    if (chosen.from == 0 && chosen.to == 0) {
        chosen = {.from = 1, .to = 9};
    }
    if (chosen.to > lastPageOfForm) {
        chosen.to = lastPage;
    }
    return chosen;
}

PageRange choosePages(Program& program) {
    const std::optional<PageRange> chosen = program.choosePages();
    if (!chosen) {
        throw ReportError(report_error::cancelled, "ยกเลิกการพิมพ์");
    }
    return pagesToPrint(*chosen);
}

ReportEngine& engineOf(const Program& program) {
    if (program.reports() == nullptr) {
        throw ReportError(report_error::noEngine, "ไม่มีระบบพิมพ์รายงาน");
    }
    return *program.reports();
}

void printPages(Program& program) {
    const PageRange pages = choosePages(program);
    for (const ReportTemplate& report : reportTemplates()) {
        if (report.page >= pages.from && report.page <= pages.to) {
            printPage(report, program.state, program.host().programFolder(), engineOf(program));
        }
    }
}

void tellFailure(Program& program, const ReportError& error) {
    if (error.number() != report_error::cancelled) {
        program.show(printFailureBox(error));
    }
}

} // namespace

Box printFailureBox(const ReportError& error) {
    return {.text = "มีข้อผิดพลาดในการพิมพ์ รหัส " + std::to_string(error.number()) + " - " + error.what(),
        .title = "ข้อผิดพลาด"};
}

void PrintReturn(Program& program) {
    try {
        printPages(program);
    } catch (const ReportError& error) {
        tellFailure(program, error);
    } catch (const std::exception& error) {
        tellFailure(program, ReportError(report_error::programFault, error.what()));
    }
}

void printPage(const ReportTemplate& report, ReturnState& state, const std::filesystem::path& programFolder,
    ReportEngine& engine) {
    if (report.prepare != nullptr) {
        report.prepare(state);
    }
    engine.setReportFileName(programFolder / (std::string(report.name) + ".rpt"));
    for (const ReportField& field : fieldsOf(report)) {
        if (field.row->isSent != nullptr && !field.row->isSent(state)) {
            continue;
        }
        engine.setFormula(field.slot, blankAssignment(field));
        if (const auto value = valueOf(field, state)) {
            engine.setFormula(field.slot, valueAssignment(field, *value));
        }
    }
    engine.setOutputOption(0);
    engine.setAction(1);
}

} // namespace lodge
