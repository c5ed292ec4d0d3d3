// The user guide explains every message: people search it by the code that they see on the screen.
#include "values/messages.h"
#include "values/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace lodge {
namespace {

/// What a row of the guide's tables says of one message.
struct GuideRow {
    std::string text;
    std::string cause;
    std::string cure;
};

constexpr std::size_t cellsOfRow = 4; // code, text, cause, cure

std::string withSingleBlanks(std::string_view text) {
    std::istringstream words{std::string(text)};
    std::string joined;
    for (std::string word; words >> word;) {
        joined += (joined.empty() ? "" : " ") + word;
    }
    return joined;
}

std::vector<std::string> cellsOf(const std::string& line) {
    std::istringstream row(line.substr(1));
    std::vector<std::string> cells;
    for (std::string cell; std::getline(row, cell, '|');) {
        cells.emplace_back(trimBlanks(cell));
    }
    return cells;
}

bool isCode(std::string_view cell) {
    return cell.size() >= 4 && cell.front() == 'M' && cell[1] >= '0' && cell[1] <= '9';
}

/// The rows of all message tables; a code that is explained twice is given to `twice`.
std::map<std::string, GuideRow, std::less<>> readGuide(std::vector<std::string>& twice) {
    std::ifstream guide(LODGE_SOURCE_DIR "/docs/user-guide.th.md");
    EXPECT_TRUE(guide.is_open());
    std::map<std::string, GuideRow, std::less<>> rows;
    for (std::string line; std::getline(guide, line);) {
        if (!line.starts_with("| M")) {
            continue;
        }
        const std::vector<std::string> cells = cellsOf(line);
        if (!isCode(cells.front())) {
            continue;
        }
        if (cells.size() != cellsOfRow) {
            ADD_FAILURE() << "a row has other cells than code, text, cause and cure: " << line;
            continue;
        }
        if (!rows.emplace(cells[0], GuideRow{cells[1], cells[2], cells[3]}).second) {
            twice.push_back(cells[0]);
        }
    }
    return rows;
}

/// The text as the guide writes it: on one line, without the code in front, which has a cell of its own.
std::string textInGuide(const MessageRow& message) {
    const std::string whole = withSingleBlanks(message.text);
    return std::string(trimBlanks(std::string_view(whole).substr(whole.find(':') + 1)));
}

TEST(UserGuide, EveryMessageStandsThereWithItsTextACauseAndACure) {
    std::vector<std::string> twice;
    const auto rows = readGuide(twice);
    for (const MessageRow& message : messageRows()) {
        SCOPED_TRACE(message.code);
        const auto row = rows.find(message.code);
        if (row == rows.end()) {
            ADD_FAILURE() << "the guide does not explain this message";
            continue;
        }
        EXPECT_EQ(row->second.text, textInGuide(message));
        EXPECT_FALSE(row->second.cause.empty());
        EXPECT_FALSE(row->second.cure.empty());
    }
}

TEST(UserGuide, NoMessageIsExplainedTwice) {
    std::vector<std::string> twice;
    (void)readGuide(twice);
    EXPECT_EQ(twice, std::vector<std::string>{});
}

TEST(UserGuide, EveryCodeThatItExplainsIsInTheCatalogue) {
    std::vector<std::string> twice;
    const auto messages = messageRows();
    for (const auto& [code, row] : readGuide(twice)) {
        EXPECT_NE(std::ranges::find(messages, std::string_view(code), &MessageRow::code), messages.end())
            << code;
    }
}

TEST(UserGuide, EveryPictureThatItShowsIsThere) {
    std::ifstream guide(LODGE_SOURCE_DIR "/docs/user-guide.th.md");
    constexpr std::string_view opening = "](images/";
    int pictures = 0;
    for (std::string line; std::getline(guide, line);) {
        const std::size_t start = line.find(opening);
        if (start == std::string::npos) {
            continue;
        }
        const std::size_t name = start + opening.size();
        const std::string picture = line.substr(name, line.find(')', name) - name);
        EXPECT_TRUE(std::filesystem::is_regular_file(LODGE_SOURCE_DIR "/docs/images/" + picture)) << picture;
        ++pictures;
    }
    EXPECT_GT(pictures, 0);
}

} // namespace
} // namespace lodge
