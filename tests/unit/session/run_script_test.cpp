// Scripts over the whole program, from files and from standard input.

#include "session/run_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace lodge {
namespace {

using ::testing::HasSubstr;

class RunScript : public ::testing::Test {
  protected:
    RunScript() : folder_(std::filesystem::temp_directory_path() / "lodge77 run script") {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    ~RunScript() override { std::filesystem::remove_all(folder_); }

    SessionEnd runFile(const std::string& lines) {
        const std::filesystem::path script = folder_ / "a.session";
        std::ofstream(script, std::ios::binary) << lines;
        return run(script.string());
    }

    SessionEnd run(const std::string& script, const std::string& standardInput = {}) {
        std::istringstream input(standardInput);
        return runScript(
            {.script = script, .programFolder = folder_, .defines = defines_}, input, out_, errors_);
    }

    std::filesystem::path folder_;
    Substitutes defines_;
    std::ostringstream out_;
    std::ostringstream errors_;
};

TEST_F(RunScript, TheProgramStartsWithFrameAndStartScreen) {
    EXPECT_EQ(runFile("expect-shown MDILodge\nexpect-shown frmLodgeStart\n"), SessionEnd::AllWentThrough)
        << errors_.str();
}

TEST_F(RunScript, ReadsStandardInputForADash) {
    // The test's program folder is bare, so the start screen may say what it misses.
    EXPECT_EQ(run("-", "forget-messages\nclick frmLodgeStart.CmdOK1\nexpect-message M026\nshow nothing\n"),
        SessionEnd::ScriptAtFault);
    EXPECT_THAT(out_.str(), HasSubstr("message \"M026 : "));
    EXPECT_THAT(errors_.str(), HasSubstr("-:4: "));
}

TEST_F(RunScript, TheFoldersOfScriptAndProgramAreKnown) {
    EXPECT_EQ(runFile("expect-file \"${SCRIPT}/a.session\"\nexpect-file \"${PROGRAM}\"\n"),
        SessionEnd::AllWentThrough)
        << errors_.str();
    EXPECT_EQ(run("-", "expect-file \"${SCRIPT}\"\n"), SessionEnd::AllWentThrough);
}

TEST_F(RunScript, DefinedNamesAreReplaced) {
    defines_ = {{"START", "01012561"}};
    EXPECT_EQ(runFile("on frmLodgeStart\ntype mskDate1 ${START}\nexpect mskDate1 01012561\n"),
        SessionEnd::AllWentThrough)
        << errors_.str();
}

TEST_F(RunScript, TheNamesOfTheFoldersCannotBeDefined) {
    defines_ = {{"SCRIPT", "/elsewhere"}};
    EXPECT_EQ(runFile(""), SessionEnd::ScriptAtFault);
    EXPECT_THAT(errors_.str(), HasSubstr("${SCRIPT} has its own meaning"));
}

TEST_F(RunScript, ADefinedValueIsUtf8) {
    defines_ = {{"NAME", "\xA1"}};
    EXPECT_EQ(runFile(""), SessionEnd::ScriptAtFault);
}

TEST_F(RunScript, AScriptThatCannotBeReadIsAtFault) {
    EXPECT_EQ(run((folder_ / "none.session").string()), SessionEnd::ScriptAtFault);
    EXPECT_THAT(errors_.str(), HasSubstr("none.session: cannot be read: No such file"));
    EXPECT_EQ(run(folder_.string()), SessionEnd::ScriptAtFault);
    EXPECT_THAT(errors_.str(), HasSubstr("is a folder"));
}

TEST_F(RunScript, ALostTranscriptIsNotPassedOver) {
    out_.setstate(std::ios::badbit);
    EXPECT_EQ(runFile("click frmLodgeStart.CmdOK1\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(errors_.str(), HasSubstr("the transcript could not be written"));
}

TEST(ParseDefines, TakesNameAndValue) {
    EXPECT_EQ(
        parseDefines({"A=1", "B=", "C=x=y", "A=2"}), (Substitutes{{"A", "2"}, {"B", ""}, {"C", "x=y"}}));
    EXPECT_EQ(parseDefines({}), Substitutes{});
}

TEST(ParseDefines, RefusesWhatHasNoNameOrNoValue) {
    EXPECT_EQ(parseDefines({"A"}), std::nullopt);
    EXPECT_EQ(parseDefines({"=1"}), std::nullopt);
}

} // namespace
} // namespace lodge
