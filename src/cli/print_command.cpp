// `lodge77-cli print`: stored returns as PDF, the printed form with the data of the return attached.

#include "cli/cli.h"
#include "cli/stored_files.h"
#include "file/safe_writer.h"
#include "file/store_load.h"
#include "print/document_data.h"
#include "print/press_loader.h"
#include "print/print_return.h"
#include "program/machine_clock.h"
#include "program/program.h"
#include "program/program_folder.h"
#include "shell/shell.h"
#include "shell/silent_host.h"
#include "shell/start_screen.h"
#include "state/item8_sum.h"
#include "state/lookup_tables.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace lodge {

namespace {

namespace fs = std::filesystem;

// 0 and 0 are what a print dialog says in which nobody has chosen: the whole return.
constexpr PageRange allPages{.from = 0, .to = 0};
constexpr int pageCount = 10;
constexpr const char* printExtension = ".pdf";
constexpr std::string_view pdfBegin = "%PDF-";

struct PrintOptions {
    std::vector<std::string> files;
    std::string target;
    std::string pages;
    std::string programFolder;
};

std::optional<int> pageNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isPage =
        error == std::errc{} && end == text.data() + text.size() && number >= 1 && number <= pageCount;
    return isPage ? std::optional(number) : std::nullopt;
}

/// "3" or "1-5"; all pages for an empty text, nothing for one that is no range.
std::optional<PageRange> pageRange(std::string_view text) {
    if (text.empty()) return allPages;
    const std::size_t hyphen = text.find('-');
    const auto from = pageNumber(text.substr(0, hyphen));
    const auto to = hyphen == std::string_view::npos ? from : pageNumber(text.substr(hyphen + 1));
    if (!from || !to || *from > *to) return std::nullopt;
    return PageRange{.from = *from, .to = *to};
}

/// Answers the print dialog with the pages of the command line and keeps what a box tells of a failure.
class PrintHost final : public SilentHost {
  public:
    PrintHost(fs::path programFolder, PageRange pages)
        : SilentHost({machineToday(), Calendar::Christian}), programFolder_(std::move(programFolder)),
          pages_(pages) {}

    Answer show(const Box& box) override {
        failure_ = box.text;
        return SilentHost::show(box);
    }
    std::optional<PageRange> choosePages() override { return pages_; }
    [[nodiscard]] fs::path programFolder() const override { return programFolder_; }

    /// What went wrong since the last call; empty when nothing did.
    std::string takeFailure() { return std::exchange(failure_, {}); }

  private:
    fs::path programFolder_;
    PageRange pages_;
    std::string failure_;
};

/// Where the prints go: one file, or a folder in which each bears the name of its return.
class Target {
  public:
    explicit Target(const PrintOptions& options)
        : path_(options.target),
          isFolder_(options.files.size() > 1 || fs::is_directory(path_) || !path_.has_filename()) {}

    /// The folder is made when it is not there. The cause when it cannot be.
    [[nodiscard]] std::string prepare() const {
        if (!isFolder_) return {};
        if (path_.extension() == printExtension && !fs::is_directory(path_))
            return "several returns need a folder";
        SystemFiles files;
        const SafeStoreResult made = makeFolderSafely(files, (path_ / "").parent_path().string());
        return made.ok() ? std::string{} : std::generic_category().message(made.error);
    }

    [[nodiscard]] fs::path pathFor(const std::string& file) const {
        return isFolder_ ? path_ / fs::path(file).stem().concat(printExtension) : path_;
    }

  private:
    fs::path path_;
    bool isFolder_;
};

/// The path of the text inside a packed return, from which the form tells the file; an unpacked one is that
/// text.
std::string innerPathOf(const std::string& file) {
    constexpr std::string_view extension = ".txt";
    constexpr std::string_view innerEnd = "M.txt";
    if (file.ends_with(innerEnd)) return file;
    const std::size_t stem = file.ends_with(extension) ? file.size() - extension.size() : file.size();
    return file.substr(0, stem).append(innerEnd);
}

/// Nothing but an earlier print is replaced: a slip of the hand must not cost a return.
bool isSomethingElse(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) return false;
    std::array<char, pdfBegin.size()> begin{};
    stream.read(begin.data(), begin.size());
    return std::string_view(begin.data(), static_cast<std::size_t>(stream.gcount())) != pdfBegin;
}

class ReturnPrinter {
  public:
    ReturnPrinter(CommandContext& context, PdfPress& press, PrintHost& host, const Target& target)
        : context_(context), press_(press), host_(host), target_(target) {
        fillLookupTables(empty_);
        program_.attach(press_);
    }

    void print(const std::string& file) {
        const InnerFile inner = readInnerFile(file);
        if (!inner.error.empty()) return reportFault(context_, file, inner.error);
        const auto data = dataOf(file, inner.bytes);
        if (!data) return;
        const fs::path path = target_.pathFor(file);
        if (!claim(file, path)) return;

        load(file, inner.bytes);
        press_.beginDocument();
        PrintReturn(program_);
        shell_.UnloadPages();
        if (const std::string failure = host_.takeFailure(); !failure.empty())
            reportFault(context_, file, failure);
        // Pages that were done stay done, also when a later one failed.
        if (press_.pageCount() > 0) store(file, path, *data);
    }

  private:
    /// What travels with the print: the same that `show --json` tells of the file.
    std::optional<Attachment> dataOf(const std::string& file, std::string_view text) {
        ReturnState state;
        const ReadResult read = readReturn(text, state);
        if (read.status != ReadStatus::Loaded) {
            reportFault(context_, file, read.cause);
            return std::nullopt;
        }
        sumItem8Lines15To26(state);
        reportDamage(context_, file, read.damagedLines);
        return attachedData(state, file, read.damagedLines);
    }

    bool claim(const std::string& file, const fs::path& path) {
        if (isSomethingElse(path)) {
            reportFault(context_, file, path.string() + " is there already and is no PDF");
            return false;
        }
        const auto [earlier, isNew] = claimed_.emplace(path, file);
        if (!isNew) reportFault(context_, file, path.string() + " is the print of " + earlier->second);
        return isNew;
    }

    /// As on the desktop, a loaded return comes up with its page 1, which ticks the company status that the
    /// file holds as a number, and printing stores that page first.
    void load(const std::string& file, std::string_view text) {
        program_.state = empty_;
        loadReturnText(text, program_.state, machineYear(host_));
        beginLoadedReturn(program_.state);
        program_.state.strFileName = innerPathOf(file);
        shell_.ShowPage1();
        shell_.StorePageOnScreen();
        host_.takeFailure(); // what page 1 has to say is no failure of the print
    }

    void store(const std::string& file, const fs::path& path, const Attachment& data) {
        try {
            const std::string pdf = press_.finishDocument(documentTitle(program_.state), data);
            SystemFiles files;
            const SafeStoreResult stored = storeSafely(files, path.string(), pdf);
            if (!stored.ok()) {
                reportFault(
                    context_, file, path.string() + ": " + std::generic_category().message(stored.error));
            }
        } catch (const ReportError& error) {
            reportFault(context_, file, error.what());
        }
    }

    CommandContext& context_;
    PdfPress& press_;
    PrintHost& host_;
    const Target& target_;
    Program program_{host_};
    Shell shell_{program_};
    ReturnState empty_;
    std::map<fs::path, std::string> claimed_;
};

void print(CommandContext& context, const PrintOptions& options) {
    const auto refuse = [&context](const std::string& cause) {
        context.err << cause << '\n';
        context.exitStatus = exitAtFault;
    };
    const auto pages = pageRange(options.pages);
    if (!pages) return refuse("--pages: write a page from 1 to 10, or two as 1-5");
    const Target target(options);
    if (const std::string cause = target.prepare(); !cause.empty())
        return refuse(options.target + ": " + cause);
    try {
        const auto press = loadPdfPress(folderOfExecutable());
        PrintHost host(
            options.programFolder.empty() ? programFolder() : fs::absolute(options.programFolder), *pages);
        ReturnPrinter printer(context, *press, host, target);
        for (const std::string& file : options.files)
            printer.print(file);
    } catch (const ReportError& error) {
        refuse(std::string("nothing can be printed: ") + error.what());
    }
}

} // namespace

void addPrintCommand(CLI::App& app, CommandContext& context) {
    const auto options = std::make_shared<PrintOptions>();
    CLI::App* const command = app.add_subcommand("print", "Print stored returns into PDF files");
    command->add_option("FILE", options->files, std::string(filesHelp))->required();
    command
        ->add_option("-o,--output", options->target,
            "The PDF file; for several returns a folder, in which each is FILE's name with .pdf")
        ->type_name("PDF|DIR")
        ->required();
    command
        ->add_option(
            "--pages", options->pages, "A page or a range of pages of the form, 1 to 10 (default: all)")
        ->type_name("FROM-TO");
    command
        ->add_option("--program-folder", options->programFolder,
            "The folder in which the report templates stand (default: that of the executable; where it is "
            "installed for all users, ~/.local/share/lodge77)")
        ->type_name("DIR")
        ->check(CLI::ExistingDirectory);
    command->footer("Pages 1 to 8 are the form, 9 and 10 its attachments, which are printed together. A "
                    "print carries the\n"
                    "data of the return as an attached file, return.json, as \"show --json\" prints it. An "
                    "earlier PDF is\n"
                    "replaced, any other file is left alone. Where a page cannot be printed, those before it "
                    "are kept.\n\n"
                    + std::string(faultsHelp));
    command->callback([options, &context] { print(context, *options); });
}

} // namespace lodge
