// `lodge77-cli show`: every value of stored returns by its name, for people and for other programs.

#include "cli/cli.h"
#include "cli/stored_files.h"
#include "file/return_file.h"
#include "file/return_json.h"
#include "file/store_load.h"
#include "state/field_names.h"
#include "state/item8_sum.h"
#include "state/return_state.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

namespace {

struct ShowOptions {
    std::vector<std::string> files;
    bool asJson = false;
    bool filledOnly = false;
};

// A text between quotes, as a session script writes it.
std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
        case '"': result += "\\\""; break;
        case '\\': result += "\\\\"; break;
        case '\n': result += "\\n"; break;
        case '\r': result += "\\r"; break;
        default: result += c;
        }
    }
    return result + '"';
}

void printPlain(CommandContext& context, ReturnState& state, const ShowOptions& options) {
    forEachStateValue(state, [&](const std::string& name, const StateValue& value) {
        const std::string text = value.get();
        if (!options.filledOnly || !text.empty()) context.out << name << " = " << inQuotes(text) << '\n';
    });
}

void showFiles(CommandContext& context, const ShowOptions& options) {
    nlohmann::ordered_json all = nlohmann::ordered_json::array();
    bool isFirst = true;
    for (const std::string& file : options.files) {
        const InnerFile inner = readInnerFile(file);
        if (!inner.error.empty()) {
            reportFault(context, file, inner.error);
            continue;
        }
        ReturnState state;
        const ReadResult read = readReturn(inner.bytes, state);
        if (read.status != ReadStatus::Loaded) {
            reportFault(context, file, read.cause);
            continue;
        }
        sumItem8Lines15To26(state);
        reportDamage(context, file, read.damagedLines);
        if (options.asJson) {
            all.push_back(returnJson(state, file, read.damagedLines,
                options.filledOnly ? JsonFields::FilledOnly : JsonFields::All));
            continue;
        }
        if (options.files.size() > 1) printHeading(context, file, isFirst);
        isFirst = false;
        printPlain(context, state, options);
    }
    if (options.asJson) context.out << jsonText(all);
}

} // namespace

void addShowCommand(CLI::App& app, CommandContext& context) {
    const auto options = std::make_shared<ShowOptions>();
    CLI::App* const command = app.add_subcommand("show", "Print every field of stored returns by its name");
    command->add_option("FILE", options->files, std::string(filesHelp))->required();
    command->add_flag("--json", options->asJson, "Print JSON: an array with one object a file");
    command->add_flag("--filled", options->filledOnly, "Leave out the fields that are empty");
    command->footer("Plain output is one field a line, NAME = \"VALUE\", in a fixed order; inside the quotes "
                    "\\\", \\\\, \\n and\n"
                    "\\r are escapes. With several files each begins with a heading \"==> FILE <==\".\n"
                    "JSON output holds, for each file that could be read, \"file\", \"damagedLines\" "
                    "(numbers from 1) and\n"
                    "\"fields\", an object from name to value. All values are texts: numbers in decimal, "
                    "flags True or False.\n\n"
                    + std::string(faultsHelp));
    command->callback([options, &context] { showFiles(context, *options); });
}

} // namespace lodge
