// `lodge77-cli lines`: the lines of stored returns in plain text, to read, compare and search.

#include "cli/cli.h"
#include "cli/stored_files.h"
#include "file/return_file.h"
#include "file/store_load.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace lodge {

namespace {

void printLines(CommandContext& context, const std::vector<std::string>& files) {
    bool isFirst = true;
    for (const std::string& file : files) {
        const InnerFile inner = readInnerFile(file);
        if (!inner.error.empty()) {
            reportFault(context, file, inner.error);
            continue;
        }
        const std::vector<FileLine> lines = decodeFile(inner.bytes);
        if (lines.empty()) {
            reportFault(context, file, "no line in it");
            continue;
        }
        if (files.size() > 1) printHeading(context, file, isFirst);
        isFirst = false;
        for (const FileLine& line : lines)
            context.out << line.text << '\n';
        reportDamage(context, file, damagedLineNumbers(lines));
    }
}

} // namespace

void addLinesCommand(CLI::App& app, CommandContext& context) {
    const auto files = std::make_shared<std::vector<std::string>>();
    CLI::App* const command = app.add_subcommand("lines", "Print the decoded lines of stored returns");
    command->add_option("FILE", *files, std::string(filesHelp))->required();
    command->footer(
        "Each line of the file is printed as one line of UTF-8 text; a damaged line reads \"-1\". With\n"
        "several files each begins with a heading \"==> FILE <==\".\n\n"
        + std::string(faultsHelp));
    command->callback([files, &context] { printLines(context, *files); });
}

} // namespace lodge
