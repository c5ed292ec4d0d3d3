// What the tests of printed pages share: templates made up on the spot, and what a reader finds in a PDF.
#pragma once

#include "paper/drawn_template.h"
#include "paper/page_painter.h"
#include "paper/pdf_document.h"
#include "program/report_engine.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>

namespace lodge {

/// A template page with these elements on it.
inline std::string svgPage(std::string_view elements) {
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="210mm" height="297mm" viewBox="0 0 210 297" )"
           R"(font-family="Laksaman" fill="#14202C">)"
           + std::string(elements) + "</svg>";
}

inline std::shared_ptr<const DrawnTemplate> templateOf(std::string_view elements) {
    return std::make_shared<const DrawnTemplate>("rptTest.rpt", svgPage(elements));
}

/// A folder of one test, gone with it.
class TestFolder {
  public:
    TestFolder()
        : path(std::filesystem::temp_directory_path()
               / ("lodge77-paper-" + std::to_string(getpid()) + "-"
                   + ::testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::create_directories(path);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder() { std::filesystem::remove_all(path); }

    [[nodiscard]] std::filesystem::path write(const std::string& name, std::string_view bytes) const {
        std::ofstream(path / name, std::ios::binary) << bytes;
        return path / name;
    }

    const std::filesystem::path path;
};

/// What a command prints. Throws when it fails.
inline std::string outputOf(const std::string& command) {
    FILE* const pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) throw std::runtime_error(command);
    std::string output;
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = fread(part.data(), 1, part.size(), pipe)) > 0;)
        output.append(part.data(), count);
    if (pclose(pipe) != 0) throw std::runtime_error(command);
    return output;
}

/// The text that a person can copy out of the document.
inline std::string textOf(const std::string& pdf) {
    const TestFolder folder;
    return outputOf("pdftotext -layout " + folder.write("page.pdf", pdf).string() + " -");
}

/// The document of one page.
inline std::string pdfOf(const FilledPage& page) {
    PdfDocument document;
    document.add(page);
    return document.finish("test");
}

/// The number and the text of the ReportError that the work throws.
template <typename Work>
std::string failureOf(const Work& work) {
    try {
        work();
    } catch (const ReportError& error) {
        return std::to_string(error.number()) + " " + error.what();
    }
    return "";
}

} // namespace lodge
