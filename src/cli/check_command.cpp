// `lodge77-cli check`: everything that stands in the way of filing stored returns, of one or of a whole
// folder.

#include "cli/cli.h"
#include "cli/in_order.h"
#include "cli/stored_files.h"
#include "file/store_load.h"
#include "program/host.h"
#include "program/machine_clock.h"
#include "shell/problem_list.h"
#include "shell/start_screen.h"
#include "state/lookup_tables.h"
#include "values/money.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {

namespace {

/// More would only stand in each other's way.
constexpr unsigned mostJobs = 256;

struct CheckOptions {
    std::vector<std::string> files;
    bool asJson = false;
    unsigned jobs = 1;
};

/// What the check of one file came to, ready to be written.
struct Checked {
    std::string out;
    std::string err;
    bool isReturn = false;
    std::size_t problems = 0;
};

/// A return as it is loaded into an empty program.
ReturnState emptyReturn() {
    ReturnState state;
    fillLookupTables(state);
    return state;
}

std::string difference(const Sides& sides) { return formatBracket(std::abs(sides.here - sides.there)); }

std::string plainProblem(const Problem& problem) {
    const Refusal& refusal = problem.refusal;
    std::string line = fmt::format("{}: {} [{}{}{}]", problem.pageName, onOneLine(refusal.text), refusal.form,
        refusal.control.empty() ? "" : ".", refusal.control);
    if (refusal.sides) {
        line += fmt::format(" {} / {}: {}", formatBracket(refusal.sides->here),
            formatBracket(refusal.sides->there), difference(*refusal.sides));
    }
    return line + '\n';
}

nlohmann::ordered_json asJson(const Problem& problem) {
    const Refusal& refusal = problem.refusal;
    nlohmann::ordered_json json = {{"code", refusal.code}, {"text", onOneLine(refusal.text)},
        {"page", problem.page}, {"pageName", problem.pageName}, {"form", refusal.form},
        {"field", refusal.control}};
    if (refusal.sides) {
        json["here"] = formatBracket(refusal.sides->here);
        json["there"] = formatBracket(refusal.sides->there);
        json["difference"] = difference(*refusal.sides);
    }
    return json;
}

/// Checks one file after the other; a worker has one of its own.
class FileChecker {
  public:
    FileChecker(const CheckOptions& options, const Today& today)
        : options_(options), today_(today), lister_(today) {}

    Checked check(const std::string& file) {
        std::ostringstream out;
        std::ostringstream err;
        CommandContext context{out, err};
        Checked checked;
        ReadResult read;
        if (loads(context, file, read)) {
            checked.isReturn = true;
            const std::vector<Problem> problems = lister_.list(state_);
            checked.problems = problems.size();
            reportDamage(context, file, read.damagedLines);
            options_.asJson ? printJson(out, file, read, problems) : printPlain(out, problems);
        }
        checked.out = out.str();
        checked.err = err.str();
        return checked;
    }

  private:
    bool loads(CommandContext& context, const std::string& file, ReadResult& read) {
        const InnerFile inner = readInnerFile(file);
        if (!inner.error.empty()) {
            reportFault(context, file, inner.error);
            return false;
        }
        state_ = empty_;
        read = loadReturnText(inner.bytes, state_, machineYear(SilentHost(today_)));
        if (read.status != ReadStatus::Loaded) {
            reportFault(context, file, read.cause);
            return false;
        }
        beginLoadedReturn(state_);
        return true;
    }

    static void printPlain(std::ostream& out, const std::vector<Problem>& problems) {
        if (problems.empty()) out << "nothing in the way\n";
        for (const Problem& problem : problems)
            out << plainProblem(problem);
    }

    static void printJson(std::ostream& out, const std::string& file, const ReadResult& read,
        const std::vector<Problem>& problems) {
        nlohmann::ordered_json list = nlohmann::ordered_json::array();
        for (const Problem& problem : problems)
            list.push_back(asJson(problem));
        const nlohmann::ordered_json json = {
            {"file", file}, {"damagedLines", read.damagedLines}, {"problems", std::move(list)}};
        out << json.dump(2, ' ', false, nlohmann::json::error_handler_t::replace);
    }

    const CheckOptions& options_;
    Today today_;
    ReturnState empty_ = emptyReturn();
    ReturnState state_;
    ProblemLister lister_;
};

/// Writes the checks of files in the order of the files, and counts them.
class CheckReport {
  public:
    CheckReport(CommandContext& context, const CheckOptions& options) : context_(context), options_(options) {
        if (options_.asJson) context_.out << '[';
    }

    void add(const std::string& file, const Checked& checked) {
        context_.err << checked.err;
        if (!checked.isReturn) {
            ++unreadable_;
            return;
        }
        if (options_.asJson) {
            context_.out << (readable_ == 0 ? "\n" : ",\n") << checked.out;
        } else {
            if (options_.files.size() > 1) printHeading(context_, file, readable_ == 0);
            context_.out << checked.out;
        }
        ++readable_;
        if (checked.problems > 0) ++inTheWay_;
        problems_ += checked.problems;
    }

    void finish() {
        if (options_.asJson) context_.out << "\n]\n";
        if (!options_.asJson && options_.files.size() > 1) {
            context_.out << fmt::format(
                "\n{} files: {} with nothing in the way, {} with something ({} in all), {} unreadable\n",
                options_.files.size(), readable_ - inTheWay_, inTheWay_, problems_, unreadable_);
        }
        context_.exitStatus = unreadable_ > 0 ? exitAtFault : inTheWay_ > 0 ? exitFailed : exitDone;
    }

  private:
    CommandContext& context_;
    const CheckOptions& options_;
    std::size_t readable_ = 0;
    std::size_t unreadable_ = 0;
    std::size_t inTheWay_ = 0;
    std::size_t problems_ = 0;
};

void checkFiles(CommandContext& context, const CheckOptions& options) {
    const Today today{machineToday(), Calendar::Christian};
    CheckReport report(context, options);
    const auto worker = [&] {
        return [checker = std::make_shared<FileChecker>(options, today), &options](
                   std::size_t at) { return checker->check(options.files[at]); };
    };
    inOrder<Checked>(options.files.size(), options.jobs, worker,
        [&](std::size_t at, const Checked& checked) { report.add(options.files[at], checked); });
    report.finish();
}

} // namespace

void addCheckCommand(CLI::App& app, CommandContext& context) {
    const auto options = std::make_shared<CheckOptions>();
    CLI::App* const command =
        app.add_subcommand("check", "List everything in the way of filing stored returns");
    command->add_option("FILE", options->files, std::string(filesHelp))->required();
    command->add_flag("--json", options->asJson, "Print JSON: an array with one object a file");
    command->add_option("-j,--jobs", options->jobs, "How many files to check at the same time (default: 1)")
        ->type_name("N")
        ->check(CLI::Range(1U, mostJobs));
    command->footer(
        "Every message that a complete store would stop at is one line: the page, the message, the field to\n"
        "mend it at in brackets and, where two amounts must agree, both and their difference. A file with\n"
        "nothing in the way says so. With several files each begins with a heading \"==> FILE <==\", and a\n"
        "last line counts them. JSON output holds, for each file that could be read, \"file\", "
        "\"damagedLines\"\n"
        "and \"problems\": \"code\", \"text\", \"page\", \"pageName\", \"form\", \"field\" and, where two "
        "amounts\n"
        "must agree, \"here\", \"there\" and \"difference\".\n\n"
        "The exit status is 0 when nothing is in the way and 1 when something is.\n\n"
        + std::string(faultsHelp));
    command->callback([options, &context] { checkFiles(context, *options); });
}

} // namespace lodge
