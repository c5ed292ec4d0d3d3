// Calls of the command line inside one process, and files to call it with.
#pragma once

#include "cli/cli.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace lodge {

struct Result {
    int status;
    std::string out;
    std::string err;
};

inline Result run(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "lodge77-cli");
    std::ostringstream out;
    std::ostringstream err;
    const int status = runCli(arguments, out, err);
    return {status, out.str(), err.str()};
}

inline std::string storedReturn(const std::string& story, const std::string& storeType = "N") {
    return LODGE_TEST_DATA "/returns/" + story + "/01055360003132561100" + storeType + ".txt";
}

/// A file with the given content, gone with the test.
class TestFile {
  public:
    explicit TestFile(const std::string& content) {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        path = testing::TempDir() + "lodge-" + test->test_suite_name() + "-" + test->name() + ".txt";
        std::ofstream(path) << content;
    }
    TestFile(const TestFile&) = delete;
    TestFile& operator=(const TestFile&) = delete;
    ~TestFile() { std::remove(path.c_str()); }

    std::string path;
};

} // namespace lodge
