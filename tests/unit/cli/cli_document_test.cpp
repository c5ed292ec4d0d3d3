// The examples of docs/cli.md are called here, and their output is what the document shows.
#include "cli_call.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <span>
#include <sstream>
#include <string>
#include <vector>

namespace lodge {
namespace {

/// A call of the document with the lines shown below it; "..." stands for lines left out.
struct Example {
    std::vector<std::string> arguments;
    std::vector<std::string> shown;
};

std::vector<std::string> wordsOf(const std::string& call) {
    std::istringstream text(call);
    std::vector<std::string> words;
    for (std::string word; text >> word;)
        words.push_back(word);
    return words;
}

std::vector<std::string> linesIn(std::istream& text) {
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

std::vector<Example> examples() {
    static const std::string prompt = "$ lodge77-cli ";
    std::ifstream document(LODGE_SOURCE_DIR "/docs/cli.md");
    std::vector<Example> found;
    bool inExample = false;
    for (const std::string& line : linesIn(document)) {
        if (line.starts_with("```")) {
            inExample = line == "```console";
        } else if (inExample && line.starts_with(prompt)) {
            found.push_back({wordsOf(line.substr(prompt.size())), {}});
        } else if (inExample && !found.empty()) {
            found.back().shown.push_back(line);
        }
    }
    return found;
}

/// Whether the lines are those shown, with anything where "..." stands.
bool areShown(std::span<const std::string> lines, std::span<const std::string> shown) {
    if (shown.empty()) return lines.empty();
    if (shown.front() != "...")
        return !lines.empty() && lines.front() == shown.front()
               && areShown(lines.subspan(1), shown.subspan(1));
    for (std::size_t skipped = 0; skipped <= lines.size(); ++skipped) {
        if (areShown(lines.subspan(skipped), shown.subspan(1))) return true;
    }
    return false;
}

TEST(CliDocument, ShowsWhatTheExamplesPrint) {
    std::filesystem::current_path(LODGE_SOURCE_DIR);
    EXPECT_GE(examples().size(), 7U);
    for (const Example& example : examples()) {
        const Result result = run(example.arguments);
        std::istringstream printed(result.out + result.err);
        const std::vector<std::string> lines = linesIn(printed);
        EXPECT_TRUE(areShown(lines, example.shown)) << testing::PrintToString(example.arguments) << "\n"
                                                    << printed.str();
    }
}

TEST(CliDocument, TellsOfEveryCommandInTheOrderOfTheHelp) {
    std::istringstream help(run({"--help"}).out);
    std::vector<std::string> commands;
    bool inList = false;
    for (const std::string& line : linesIn(help)) {
        if (inList && !line.empty()) commands.push_back("## " + wordsOf(line).at(0));
        inList = inList || line == "Subcommands:";
    }
    std::ifstream document(LODGE_SOURCE_DIR "/docs/cli.md");
    std::vector<std::string> headings = linesIn(document);
    std::erase_if(headings, [](const std::string& line) { return !line.starts_with("## "); });
    EXPECT_EQ(headings, commands);
}

} // namespace
} // namespace lodge
