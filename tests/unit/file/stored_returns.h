// The stored returns of tests/data/returns, and folders to work in.
#pragma once

#include "file/file_io.h"
#include "file/reading_limits.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace lodge {

inline std::string storedReturn(const std::string& story, const std::string& storeType = "N") {
    return std::string(LODGE_TEST_DATA "/returns/") + story + "/01055360003132561100" + storeType + ".txt";
}

inline std::vector<std::string> textLines(const std::string& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

/// The decoded lines of a story, as they stand beside its packed file.
inline std::vector<std::string> storyLines(const std::string& story) {
    return textLines(std::string(LODGE_TEST_DATA "/returns/") + story + "/lines.txt");
}

inline std::string bytesOf(const std::string& path) {
    const FileContent file = readWholeFile(path, readingLimits.fileBytes);
    EXPECT_EQ(file.error, "") << path;
    return file.bytes;
}

/// A folder of the test's own, gone with it.
class WorkFolder {
  public:
    WorkFolder() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string("lodge-") + test->test_suite_name() + "-" + test->name();
        for (char& c : name) {
            if (c == '/') c = '-';
        }
        folder = std::filesystem::temp_directory_path() / (name + "-" + std::to_string(::getpid()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    [[nodiscard]] std::string path(const std::string& name) const { return (folder / name).string(); }
    [[nodiscard]] std::string text() const { return folder.string(); }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            found.push_back(entry.path().filename());
        return found;
    }

  private:
    std::filesystem::path folder;
};

} // namespace lodge
