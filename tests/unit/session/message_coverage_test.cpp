// Completeness: every numbered message has a session script that provokes it, or stands here with the reason
// why no script can.
#include "values/messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <set>
#include <span>
#include <sstream>
#include <string>
#include <string_view>

namespace lodge {
namespace {

namespace fs = std::filesystem;

struct Unprovoked {
    std::string_view code;
    std::string_view reason;
};

// clang-format off
constexpr auto unprovoked = std::to_array<Unprovoked>({
    {"M101", "the dates of item 11's table are closed for typing; the rule is held by a unit test"},
    {"M120", "the popup computes the end of a period, and never beyond the return's own start"},
    {"M124", "without a status no way leads from page 1 past M006, which is asked before"},
    {"M135", "the id in the store dialog must equal that of page 1, which is then not empty"},
    {"M149", "the dates of item 11's table are closed for typing; the rule is held by a unit test"},
    {"M150", "the dates of item 11's table are closed for typing; the rule is held by a unit test"},
    {"M154", "a file of another version is refused by M121 before page 1 could speak of its age"},
    {"M535", "M534.1 asks for the same before"},
    {"M536", "the end of a period in the popup is closed for typing; the rule is held by a unit test"},
});
// clang-format on

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return std::move(content).str();
}

/// The codes that a line of a script below tests/sessions expects.
std::set<std::string> codesInSessions() {
    constexpr std::string_view command = "expect-message M";
    std::set<std::string> codes;
    for (const auto& entry : fs::recursive_directory_iterator(LODGE_SOURCE_DIR "/tests/sessions")) {
        if (entry.path().extension() != ".session") continue;
        std::istringstream lines(contentOf(entry.path()));
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(command)) codes.insert(line.substr(command.size() - 1));
        }
    }
    return codes;
}

/// The sources that may name a message: all but the catalogue itself.
std::string sources() {
    std::string all;
    for (const auto& entry : fs::recursive_directory_iterator(LODGE_SOURCE_DIR "/src")) {
        const fs::path& file = entry.path();
        const bool isSource = file.extension() == ".cpp" || file.extension() == ".h";
        if (isSource && file.stem() != "messages") all += contentOf(file);
    }
    return all;
}

bool nobodyRaises(std::string_view code) {
    return std::ranges::find(messagesNobodyRaises(), code) != messagesNobodyRaises().end();
}

bool isUnprovoked(std::string_view code) {
    return std::ranges::find(unprovoked, code, &Unprovoked::code) != unprovoked.end();
}

TEST(MessageCoverage, EveryMessageIsProvokedByASessionOrHasItsReason) {
    const std::set<std::string> provoked = codesInSessions();
    for (const MessageRow& row : messageRows()) {
        EXPECT_TRUE(
            provoked.contains(std::string(row.code)) || isUnprovoked(row.code) || nobodyRaises(row.code))
            << row.code << " has no session that expects it";
    }
}

TEST(MessageCoverage, AReasonStandsOnlyBesideAMessageThatIsRaisedAndNotProvoked) {
    const std::set<std::string> provoked = codesInSessions();
    for (const Unprovoked& row : unprovoked) {
        EXPECT_FALSE(GetMessage(row.code).empty()) << row.code;
        EXPECT_FALSE(provoked.contains(std::string(row.code))) << row.code << " needs no reason any more";
        EXPECT_FALSE(nobodyRaises(row.code)) << row.code;
    }
}

TEST(MessageCoverage, SessionsExpectOnlyCodesOfTheCatalogue) {
    for (const std::string& code : codesInSessions())
        EXPECT_FALSE(GetMessage(code).empty()) << code;
}

TEST(MessageCoverage, TheSourcesNameEachMessageButThoseThatNobodyRaises) {
    const std::string all = sources();
    for (const MessageRow& row : messageRows()) {
        const bool isNamed = all.find('"' + std::string(row.code) + '"') != std::string::npos;
        const bool cannotArise = nobodyRaises(row.code) || row.code == "M154";
        EXPECT_NE(isNamed, cannotArise) << row.code;
    }
}

} // namespace
} // namespace lodge
