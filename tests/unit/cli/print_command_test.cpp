// The command `print`, run as a program: it loads the press from the folder of its own executable.
#include "cli_call.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace lodge {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

namespace fs = std::filesystem;

const std::string ordinary = storedReturn("ordinary-company", "C");
const std::string everyField = storedReturn("every-field");

/// What a command of the shell prints on both of its outputs, and how it ends.
struct Ended {
    int status;
    std::string said;
};

Ended ended(const std::string& command) {
    FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) throw std::runtime_error(command);
    std::string said;
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = fread(part.data(), 1, part.size(), pipe)) > 0;)
        said.append(part.data(), count);
    return {WEXITSTATUS(pclose(pipe)), said};
}

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class PrintCommand : public ::testing::Test {
  protected:
    void SetUp() override {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    [[nodiscard]] static Ended print(const std::string& arguments) {
        return ended(std::string(LODGE_CLI) + " print " + arguments);
    }
    [[nodiscard]] static std::string textOf(const fs::path& pdf, const std::string& options = "") {
        return ended("pdftotext -layout " + options + " " + pdf.string() + " -").said;
    }
    [[nodiscard]] static int pagesOf(const fs::path& pdf) {
        return std::stoi(ended("pdfinfo " + pdf.string() + " | sed -n 's/^Pages: *//p'").said);
    }

    /// Whether anything is drawn inside the tick box of page 1 whose corner stands at these tenths of a
    /// millimetre; its frame is left out.
    [[nodiscard]] static bool isTicked(const fs::path& pdf, int left, int top) {
        constexpr int frame = 6;
        constexpr int inner = 20;
        const std::string image =
            ended("pdftoppm -gray -r 254 -l 1 -x " + std::to_string(left + frame) + " -y "
                  + std::to_string(top + frame) + " -W " + std::to_string(inner) + " -H "
                  + std::to_string(inner) + " " + pdf.string())
                .said;
        return std::any_of(image.end() - inner * inner, image.end(),
            [](char grey) { return static_cast<unsigned char>(grey) < 128; });
    }

    const fs::path folder = fs::path(testing::TempDir()) / ("lodge77-print-" + std::to_string(getpid()));
    const fs::path pdf = folder / "return.pdf";
};

// --- One return ---

TEST_F(PrintCommand, OneReturnBecomesAPdfOfTenPages) {
    const Ended print = this->print(ordinary + " -o " + pdf.string());
    EXPECT_EQ(print.status, exitDone);
    EXPECT_EQ(print.said, "");
    EXPECT_EQ(pagesOf(pdf), 10);
    EXPECT_THAT(textOf(pdf, "-l 1"), AllOf(HasSubstr("0105536000313"), HasSubstr("ซูเปอร์มาร์เก็ต"),
                                         HasSubstr("นายสมชาย ใจดี"), HasSubstr("ธันวาคม")));
    EXPECT_THAT(textOf(pdf, "-f 2 -l 2"), HasSubstr("440,000.00"));
}

TEST_F(PrintCommand, ThePdfIsSmall) {
    (void)print(everyField + " -o " + pdf.string());
    EXPECT_LT(fs::file_size(pdf), 300U * 1024);
}

TEST_F(PrintCommand, ThePdfCarriesWhatShowPrintsAsJson) {
    (void)print(ordinary + " -o " + pdf.string());
    EXPECT_EQ(ended("pdfdetach -save 1 -o /dev/stdout " + pdf.string()).said,
        run({"show", "--json", ordinary}).out);
    EXPECT_THAT(ended("pdfdetach -list " + pdf.string()).said, HasSubstr("return.json"));
}

TEST_F(PrintCommand, TheFormTellsTheFileThatItWasPrintedFrom) {
    (void)print(ordinary + " -o " + pdf.string() + " --pages 1");
    EXPECT_THAT(textOf(pdf), HasSubstr("01055360003132561100C.txt"));
}

// The file holds the company status as a number; page 1 of the return turns it into a tick.
TEST_F(PrintCommand, TheCompanyStatusIsTickedOnPage1) {
    (void)print(ordinary + " -o " + pdf.string() + " --pages 1");
    EXPECT_TRUE(isTicked(pdf, 150, 691)) << "(1), a company under Thai law";
    EXPECT_FALSE(isTicked(pdf, 150, 738)) << "(2), a foreign one";
}

TEST_F(PrintCommand, AFolderTakesThePrintUnderTheNameOfItsReturn) {
    EXPECT_EQ(print(ordinary + " -o " + folder.string()).status, exitDone);
    EXPECT_TRUE(fs::exists(folder / "01055360003132561100C.pdf"));
}

// --- Pages ---

TEST_F(PrintCommand, ARangePrintsItsPages) {
    EXPECT_EQ(print(ordinary + " -o " + pdf.string() + " --pages 1-5").status, exitDone);
    EXPECT_EQ(pagesOf(pdf), 5);
    EXPECT_EQ(print(ordinary + " -o " + pdf.string() + " --pages 2").status, exitDone);
    EXPECT_EQ(pagesOf(pdf), 1);
    EXPECT_THAT(textOf(pdf), HasSubstr("หน้า 2"));
}

TEST_F(PrintCommand, TheAttachmentsArePrintedTogether) {
    (void)print(ordinary + " -o " + pdf.string() + " --pages 9");
    EXPECT_EQ(pagesOf(pdf), 2);
    (void)print(ordinary + " -o " + pdf.string() + " --pages 3-9");
    EXPECT_EQ(pagesOf(pdf), 8);
    (void)print(ordinary + " -o " + pdf.string() + " --pages 10");
    EXPECT_EQ(pagesOf(pdf), 1);
}

TEST_F(PrintCommand, WhatIsNoRangeIsRefused) {
    for (const char* pages : {"0", "11", "5-1", "1-", "-5", "1-11", "x", "1-5-6", "' 1'"}) {
        const Ended refused = print(ordinary + " -o " + pdf.string() + " --pages=" + pages);
        EXPECT_EQ(refused.status, exitAtFault) << pages;
        EXPECT_THAT(refused.said, HasSubstr("--pages")) << pages;
    }
    EXPECT_FALSE(fs::exists(pdf));
}

// --- Several returns ---

TEST_F(PrintCommand, SeveralReturnsGoIntoAFolderPastThoseThatCannotBeRead) {
    const fs::path target = folder / "prints";
    const std::string missing = (folder / "missing.txt").string();
    const std::string refused = storedReturn("version-2560");
    const Ended print =
        this->print(missing + " " + refused + " " + ordinary + " " + everyField + " -o " + target.string());
    EXPECT_EQ(print.status, exitAtFault);
    EXPECT_THAT(
        print.said, AllOf(HasSubstr(missing + ": "), HasSubstr(refused + ": "), Not(HasSubstr(ordinary))));
    EXPECT_EQ(pagesOf(target / "01055360003132561100C.pdf"), 10);
    EXPECT_EQ(pagesOf(target / "01055360003132561100N.pdf"), 10);
}

TEST_F(PrintCommand, EachPrintHoldsItsOwnReturnAlone) {
    ASSERT_EQ(print(everyField + " " + ordinary + " -o " + folder.string()).status, exitDone);
    ASSERT_EQ(print(ordinary + " -o " + pdf.string()).status, exitDone);
    EXPECT_EQ(textOf(folder / "01055360003132561100C.pdf"), textOf(pdf));
}

TEST_F(PrintCommand, TwoReturnsOfOneNameDoNotReplaceEachOther) {
    const std::string other = storedReturn("first-153-lines");
    const Ended print = this->print(everyField + " " + other + " -o " + folder.string());
    EXPECT_EQ(print.status, exitAtFault);
    EXPECT_THAT(print.said, AllOf(HasSubstr(other + ": "), HasSubstr("is the print of " + everyField)));
    EXPECT_THAT(textOf(folder / "01055360003132561100N.pdf"), HasSubstr("1,322.22"));
}

TEST_F(PrintCommand, SeveralReturnsDoNotFitIntoOneFile) {
    const Ended refused = print(ordinary + " " + everyField + " -o " + pdf.string());
    EXPECT_EQ(refused.status, exitAtFault);
    EXPECT_THAT(refused.said, HasSubstr("folder"));
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(PrintCommand, DamagedLinesAreToldBesideThePrint) {
    const std::string damaged = storedReturn("damaged-line-17");
    const Ended print = this->print(damaged + " -o " + pdf.string());
    EXPECT_EQ(print.status, exitDone);
    EXPECT_EQ(print.said, damaged + ": damaged line 17\n");
}

// --- What is in the way ---

TEST_F(PrintCommand, AnEarlierPrintIsReplaced) {
    (void)print(ordinary + " -o " + pdf.string() + " --pages 1");
    EXPECT_EQ(print(ordinary + " -o " + pdf.string() + " --pages 1-2").status, exitDone);
    EXPECT_EQ(pagesOf(pdf), 2);
}

TEST_F(PrintCommand, TheReturnItselfOrAnyOtherFileIsNotReplaced) {
    const fs::path copy = folder / "return.txt";
    fs::copy_file(ordinary, copy);
    const std::string before = contentOf(copy);
    const Ended refused = print(copy.string() + " -o " + copy.string());
    EXPECT_EQ(refused.status, exitAtFault);
    EXPECT_THAT(refused.said, HasSubstr("no PDF"));
    EXPECT_EQ(contentOf(copy), before);
}

TEST_F(PrintCommand, AMissingTemplateIsToldWithItsNumberAndThePagesBeforeItAreKept) {
    for (const char* name : {"rptLodgePage1.rpt", "rptLodgePage2.rpt"})
        fs::copy_file(fs::path(LODGE_CLI).parent_path() / name, folder / name);
    const Ended print =
        this->print(ordinary + " -o " + pdf.string() + " --program-folder " + folder.string());
    EXPECT_EQ(print.status, exitAtFault);
    EXPECT_THAT(print.said,
        AllOf(HasSubstr(ordinary + ": มีข้อผิดพลาดในการพิมพ์ รหัส 2 - "), HasSubstr("rptLodgePage3.rpt")));
    EXPECT_EQ(pagesOf(pdf), 2);
}

TEST_F(PrintCommand, WithoutTheFirstTemplateNothingIsWritten) {
    const Ended print =
        this->print(ordinary + " -o " + pdf.string() + " --program-folder " + folder.string());
    EXPECT_EQ(print.status, exitAtFault);
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(PrintCommand, ATargetThatCannotBeWrittenIsToldByItsPath) {
    const std::string target = (folder / "nowhere" / "return.pdf").string();
    const Ended print = this->print(ordinary + " -o " + target);
    EXPECT_EQ(print.status, exitAtFault);
    EXPECT_THAT(print.said, AllOf(HasSubstr(ordinary + ": "), HasSubstr(target)));
}

TEST_F(PrintCommand, WithoutATargetTheCallIsAtFault) {
    EXPECT_EQ(print(ordinary).status, exitAtFault);
    EXPECT_EQ(print("-o " + pdf.string()).status, exitAtFault);
}

// --- The press ---

TEST_F(PrintCommand, TheOtherCommandsLoadNoDrawingLibrary) {
    const std::string libraries = ended(std::string("ldd ") + LODGE_CLI).said;
    for (const char* library : {"cairo", "pango", "rsvg", "qpdf", "Qt"})
        EXPECT_THAT(libraries, Not(HasSubstr(library)));
}

TEST_F(PrintCommand, AProgramWithoutItsPressSaysSo) {
    const fs::path program = folder / "lodge77-cli";
    fs::copy_file(LODGE_CLI, program);
    const Ended refused = ended(program.string() + " print " + ordinary + " -o " + pdf.string());
    EXPECT_EQ(refused.status, exitAtFault);
    EXPECT_THAT(refused.said, AllOf(HasSubstr("nothing can be printed"), HasSubstr("lodge77-paper.so")));
}

} // namespace
} // namespace lodge
