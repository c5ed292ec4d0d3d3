#include "session/recording_engine.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace lodge {
namespace {

class Recording : public testing::Test {
  protected:
    void SetUp() override { std::filesystem::create_directory(folder_); }
    void TearDown() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    void runJob(const std::string& templateName) {
        engine_.setReportFileName("/opt/lodge77/" + templateName + ".rpt");
        engine_.setFormula(0, "lblFld00 = ' ' ");
        engine_.setOutputOption(0);
        engine_.setAction(1);
    }
    [[nodiscard]] std::string contentOf(const std::string& name) const {
        std::ifstream file(folder_ / name, std::ios::binary);
        EXPECT_TRUE(file) << name;
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] bool has(const std::string& name) const { return std::filesystem::exists(folder_ / name); }

    std::filesystem::path folder_ = std::filesystem::temp_directory_path()
                                    / ("lodge-recording-" + std::to_string(::getpid()) + "-"
                                        + testing::UnitTest::GetInstance()->current_test_info()->name());
    std::ostringstream transcript_;
    SessionHost host_{"/opt/lodge77", transcript_};
    RecordingEngine engine_{host_};
};

TEST_F(Recording, WritesTheLastFormulaOfEachSlotInTheOrderOfTheSlots) {
    host_.setReportFolder(folder_);
    engine_.setReportFileName("/opt/lodge77/rptLodgePage7.rpt");
    engine_.setFormula(2, "c = ' ' ");
    engine_.setFormula(10, "d = '1' ");
    engine_.setFormula(0, "a = ' ' ");
    engine_.setFormula(2, "c =  ' ก ' ");
    engine_.setOutputOption(0);
    engine_.setAction(1);
    EXPECT_EQ(contentOf("01-rptLodgePage7.formulas"), "a = ' ' \nc =  ' ก ' \nd = '1' \n");
}

TEST_F(Recording, CountsTheJobsOfEachFolderFromOne) {
    host_.setReportFolder(folder_ / "a");
    runJob("rptLodgePage1");
    runJob("rptLodgePage2");
    host_.setReportFolder(folder_ / "b");
    runJob("rptLodgePage3");
    host_.setReportFolder(folder_ / "a");
    runJob("rptLodgePageIHQ");
    EXPECT_TRUE(has("a/01-rptLodgePage1.formulas"));
    EXPECT_TRUE(has("a/02-rptLodgePage2.formulas"));
    EXPECT_TRUE(has("b/01-rptLodgePage3.formulas"));
    EXPECT_TRUE(has("a/03-rptLodgePageIHQ.formulas"));
}

TEST_F(Recording, ForgetsTheFormulasOfTheJobBefore) {
    host_.setReportFolder(folder_);
    engine_.setReportFileName("one.rpt");
    engine_.setFormula(7, "left over");
    runJob("two");
    EXPECT_EQ(contentOf("01-two.formulas"), "lblFld00 = ' ' \n");
}

TEST_F(Recording, WithoutAFolderSendsTheJobsNowhere) {
    EXPECT_NO_THROW(runJob("rptLodgePage1"));
    EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(Recording, RefusesAFolderThatCannotTakeTheJobAndCountsOnlyTheJobsThatAreThere) {
    host_.setReportFolder(folder_ / "missing" / "folder");
    try {
        runJob("rptLodgePage1");
        FAIL() << "there is no folder above it";
    } catch (const ReportError& error) {
        EXPECT_EQ(error.number(), report_error::targetUnwritable);
        EXPECT_NE(
            std::string(error.what()).find((folder_ / "missing" / "folder").string()), std::string::npos);
    }
    std::filesystem::create_directory(folder_ / "missing");
    runJob("rptLodgePage1");
    EXPECT_TRUE(has("missing/folder/01-rptLodgePage1.formulas"));
}

} // namespace
} // namespace lodge
