// docs/file-format.md tells people what the layout table tells the program. This holds the one against the
// other.
#include "file/layout.h"
#include "stored_returns.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

namespace lodge {
namespace {

// The rows of the document's table of lines, "17 | …" and "39 to 47 | …", without the bars' escapes.
std::vector<std::string> documentedRows() {
    static const std::regex row(R"(^\| (\d+(?: to \d+)?) \| (.*) \|$)");
    static const std::regex escapedBar(R"(\\\|)");
    std::vector<std::string> rows;
    for (const std::string& line : textLines(LODGE_SOURCE_DIR "/docs/file-format.md")) {
        std::smatch match;
        if (!std::regex_match(line, match, row)) continue;
        rows.push_back(match[1].str() + " | " + std::regex_replace(match[2].str(), escapedBar, "|"));
    }
    return rows;
}

std::vector<std::string> tableRows() {
    std::vector<std::string> rows;
    for (const LayoutRow& row : layoutRows()) {
        const std::string lines = row.firstLine == row.lastLine
                                      ? std::to_string(row.firstLine)
                                      : fmt::format("{} to {}", row.firstLine, row.lastLine);
        rows.push_back(lines + " | " + describeRow(row));
    }
    return rows;
}

TEST(FormatDocument, ShowsTheRowsOfTheLayoutTable) {
    const std::vector<std::string> documented = documentedRows();
    const std::vector<std::string> wanted = tableRows();
    ASSERT_EQ(documented.size(), wanted.size());
    for (std::size_t k = 0; k < wanted.size(); ++k)
        EXPECT_EQ(documented[k], wanted[k]);
}

} // namespace
} // namespace lodge
