// What ten filled pages cost, against the same texts and rules drawn by hand, the same templates without
// values, and the start of a process.
#include "bare_pages.h"
#include "paper/attachment.h"
#include "paper/page_image.h"
#include "paper/paper_press.h"
#include "ratios.h"
#include "yardsticks.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

namespace {

using namespace lodge;
using namespace lodge::bench;

constexpr std::array templateNames{"rptLodgePage1", "rptLodgePage2", "rptLodgePage3", "rptLodgePage4",
    "rptLodgePage5", "rptLodgePage6", "rptLodgePage7", "rptLodgePage8", "rptLodgePageIHQ",
    "rptLodgeAttachPage"};

std::string templatePath(const char* name) { return std::string(LODGE_TEMPLATES "/") + name + ".svg"; }

/// A value such as an ordinary return has in that place.
std::string valueOf(const Slot& slot, std::size_t index) {
    switch (slot.kind) {
    case SlotKind::Tick: return slot.tickedBy;
    case SlotKind::Comb: return std::string("0105536000313").substr(0, slot.cells.size());
    case SlotKind::Money: return index % 4 == 0 ? "(1,234,567.89)" : "12,345,678.90";
    case SlotKind::Text: break;
    }
    return slot.box.width < 30 ? "2561" : "บริษัท น้ำดื่มไทย จำกัด";
}

FilledPage filledPage(const std::shared_ptr<const DrawnTemplate>& form) {
    FilledPage page{.form = form, .values = {}};
    for (std::size_t i = 0; i < form->slots().size(); ++i)
        page.values.emplace(form->slots()[i].field, valueOf(form->slots()[i], i));
    return page;
}

double numberIn(const std::string& element, const char* attribute) {
    std::smatch found;
    const std::regex pattern(std::string(" ") + attribute + "=\"([-0-9.]+)\"");
    return std::regex_search(element, found, pattern) ? std::stod(found[1]) : 0;
}

/// The boxes and lines of a drawing, which are all but a handful of its shapes.
std::vector<BareRule> rulesIn(const std::string& drawing) {
    static const std::regex shape("<(rect|path) [^>]*>");
    static const std::regex line(" d=\"M([-0-9.]+) ([-0-9.]+)(L|v|h)([-0-9.]+) ?([-0-9.]*)\"");
    std::vector<BareRule> rules;
    for (std::sregex_iterator at(drawing.begin(), drawing.end(), shape), end; at != end; ++at) {
        const std::string element = at->str();
        BareRule rule;
        rule.stroke = numberIn(element, "stroke-width");
        rule.isDotted = element.find("dasharray") != std::string::npos;
        std::smatch found;
        if ((*at)[1] == "rect") {
            rule.isBox = true;
            rule.isShaded = element.find("fill=\"#") != std::string::npos;
            rule.x = numberIn(element, "x");
            rule.y = numberIn(element, "y");
            rule.width = numberIn(element, "width");
            rule.height = numberIn(element, "height");
            if (!rule.isShaded && rule.stroke == 0) continue; // a slot
        } else if (std::regex_search(element, found, line)) {
            rule.x = std::stod(found[1]);
            rule.y = std::stod(found[2]);
            if (found[3] == "L") {
                rule.width = std::stod(found[4]) - rule.x;
                rule.height = std::stod(found[5]) - rule.y;
            } else {
                (found[3] == "v" ? rule.height : rule.width) = std::stod(found[4]);
            }
        }
        rules.push_back(rule);
    }
    return rules;
}

double alignOf(SlotAlign align) {
    return align == SlotAlign::Start ? 0 : align == SlotAlign::Middle ? 0.5 : 1;
}

BarePage barePage(const FilledPage& page, const char* name) {
    std::ifstream file(templatePath(name));
    const std::string svg{std::istreambuf_iterator<char>(file), {}};
    const TemplateParts parts = readTemplate(svg, name);
    BarePage bare{.texts = {}, .rules = rulesIn(parts.drawing)};
    for (const Caption& caption : parts.captions) {
        bare.texts.push_back({.x = caption.x,
            .baseline = caption.baseline,
            .size = caption.size,
            .align = alignOf(caption.align),
            .isBold = caption.isBold,
            .text = caption.text});
    }
    for (const Slot& slot : parts.slots) {
        if (slot.kind == SlotKind::Tick) continue;
        const double align = alignOf(slot.align);
        bare.texts.push_back({.x = slot.box.x + align * slot.box.width,
            .baseline = slot.box.y + 0.75 * slot.box.height,
            .size = slot.size,
            .align = align,
            .isBold = false,
            .text = page.values.find(slot.field)->second});
    }
    return bare;
}

/// The ten pages in every form that is measured, the templates read once.
struct Sample {
    TemplateShelf shelf;
    std::vector<FilledPage> filled;
    std::vector<FilledPage> empty;
    std::vector<BarePage> bare;
    std::string pdf;
    std::string list = (std::filesystem::temp_directory_path() / "lodge77-bare-pages.txt").string();
    std::string target = (std::filesystem::temp_directory_path() / "lodge77-bench.pdf").string();
};

std::string draw(const std::vector<FilledPage>& pages) {
    PdfDocument document;
    for (const FilledPage& page : pages)
        document.add(page);
    return document.finish("");
}

const Sample& sample() {
    static const Sample theSample = [] {
        Sample made;
        for (const char* name : templateNames) {
            const auto form = made.shelf.take(templatePath(name));
            made.filled.push_back(filledPage(form));
            made.empty.push_back({.form = form, .values = {}});
            made.bare.push_back(barePage(made.filled.back(), name));
        }
        made.pdf = draw(made.filled);
        std::ofstream list(made.list);
        writePages(list, made.bare);
        return made;
    }();
    return theSample;
}

template <typename Work>
void measure(benchmark::State& rounds, const Work& work) {
    (void)sample();
    for ([[maybe_unused]] const auto round : rounds)
        benchmark::DoNotOptimize(work());
}

void tenPages(benchmark::State& rounds) {
    measure(rounds, [] { return draw(sample().filled); });
}
void tenEmptyPages(benchmark::State& rounds) {
    measure(rounds, [] { return draw(sample().empty); });
}
void tenBarePages(benchmark::State& rounds) {
    measure(rounds, [] { return drawBare(sample().bare); });
}
void readTemplates(benchmark::State& rounds) {
    measure(rounds, [] {
        TemplateShelf shelf;
        for (const char* name : templateNames)
            (void)shelf.take(templatePath(name));
        return shelf;
    });
}
void attach(benchmark::State& rounds) {
    const Attachment data{
        .name = "return.json", .mimeType = "application/json", .bytes = std::string(60000, '1')};
    measure(rounds, [&data] { return withAttachment(sample().pdf, data); });
}
void preview(benchmark::State& rounds) {
    measure(rounds, [] { return pageImage(sample().filled.front(), 96); });
}
void cliPrint(benchmark::State& rounds) {
    measure(rounds, [] { return runProgram({LODGE_CLI, "print", LODGE_RETURN, "-o", sample().target}); });
}
void cliLines(benchmark::State& rounds) {
    measure(rounds, [] { return runProgram({LODGE_CLI, "lines", LODGE_RETURN}); });
}
/// The command line writes its file so that it outlives a power cut; the bare process does not.
void writeOut(benchmark::State& rounds) {
    const std::string folder = std::filesystem::temp_directory_path().string();
    measure(rounds, [&folder] {
        writeSynced(folder, "lodge77-bench.pdf", sample().pdf);
        return 0;
    });
}
void bareProcess(benchmark::State& rounds) {
    measure(rounds, [] { return runProgram({LODGE_BARE_PRINT, sample().list, "/dev/null"}); });
}

// clang-format off
constexpr std::array measurements{
    Measurement{"ten-pages", tenPages},
    Measurement{"ten-empty-pages", tenEmptyPages},
    Measurement{"ten-bare-pages", tenBarePages},
    Measurement{"read-templates", readTemplates},
    Measurement{"attach-data", attach},
    Measurement{"preview-of-a-page", preview},
    Measurement{"cli-print", cliPrint},
    Measurement{"cli-lines", cliLines},
    Measurement{"bare-process", bareProcess},
    Measurement{"write-synced", writeOut},
};
// clang-format on

const std::array ratios{
    Ratio{Clock::Processor, "ten-pages", {"ten-bare-pages"}, 1.5},
    Ratio{Clock::Wall, "ten-pages", {"ten-bare-pages"}, 1.5},
    Ratio{Clock::Processor, "ten-pages", {"ten-empty-pages"}, 2.0},
    // The command reads the return and the templates as well, and attaches the data.
    Ratio{Clock::Wall, "cli-print", {"bare-process", "write-synced"}, 2.0},
    Ratio{Clock::Wall, "cli-print", {"cli-lines"}, 60.0},
};

} // namespace

int main(int argumentCount, char** argumentTexts) {
    const int status =
        runMeasurements(argumentCount, argumentTexts, benchmark::kMillisecond, measurements, ratios);
    if (status != 0) return status;
    constexpr std::size_t aim = 300;
    const std::size_t size = sample().pdf.size() / 1024;
    fmt::print("\nten filled pages: {} KiB, aim {}{}\n", size, aim, size > aim ? "  missed" : "");
    return 0;
}
