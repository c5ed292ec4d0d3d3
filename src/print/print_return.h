// Prints the return: asks for the pages, fills the template of each page and hands it to the report engine.
#pragma once

#include "print/field_map.h"
#include "program/program.h"
#include "program/report_engine.h"

#include <filesystem>

namespace lodge {

/// Prints the pages that the person chooses, 1 to 10; both ends 0 mean all of them, and a range that reaches
/// the headquarters attachment (9) takes the rate worksheet (10) with it. What goes wrong is told in a box
/// and ends the run: pages that were taken before stay printed. Cancelling the dialog ends it silently.
void PrintReturn(Program& program);

/// What a person is told of a page that could not be printed.
[[nodiscard]] Box printFailureBox(const ReportError& error);

/// Runs one template: every formula blank first, then with its value, in the order of the slots. The template
/// stands in `programFolder` as the name with ".rpt". Throws ReportError when the page cannot be printed.
void printPage(const ReportTemplate& report, ReturnState& state, const std::filesystem::path& programFolder,
    ReportEngine& engine);

} // namespace lodge
