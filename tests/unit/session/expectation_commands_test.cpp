// What a script expects of targets, forms, the focus and files.

#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace lodge {
namespace {

using ::testing::HasSubstr;

/// What the line, played on the stage's form, fails with; empty when it goes through.
std::string failureOf(Stage& stage, const std::string& line) {
    const SessionEnd end = stage.play("on frmStage\n" + line + '\n');
    EXPECT_NE(end, SessionEnd::ScriptAtFault) << stage.errors.str();
    return end == SessionEnd::AllWentThrough ? "" : stage.errors.str();
}

TEST(Expectations, ExpectComparesExactly) {
    Stage stage;
    EXPECT_EQ(failureOf(stage, "expect lblSum 0.00"), "");
    EXPECT_EQ(failureOf(stage, "expect txtName \"as designed\""), "");
    EXPECT_THAT(failureOf(stage, "expect lblSum \"0.00 \""),
        HasSubstr("expected lblSum = \"0.00 \", found \"0.00\""));
    EXPECT_THAT(failureOf(stage, "expect lblSum 0"), HasSubstr("found \"0.00\""));
}

TEST(Expectations, ExpectNotIsItsOpposite) {
    Stage stage;
    EXPECT_EQ(failureOf(stage, "expect-not lblSum 0"), "");
    EXPECT_THAT(
        failureOf(stage, "expect-not lblSum 0.00"), HasSubstr("to differ from \"0.00\", found \"0.00\""));
}

TEST(Expectations, ExpectLikeMatchesAPattern) {
    Stage stage;
    EXPECT_EQ(failureOf(stage, "expect-like txtName \"as*\""), "");
    EXPECT_THAT(
        failureOf(stage, "expect-like txtName *drawn"), HasSubstr("like \"*drawn\", found \"as designed\""));
}

TEST(Expectations, ExpectFocusTellsWhereItIs) {
    Stage stage;
    EXPECT_THAT(failureOf(stage, "expect-focus txtName"),
        HasSubstr("the focus on frmStage.txtName, found it nowhere"));
    stage.form().cmdGo.setFocus();
    EXPECT_THAT(failureOf(stage, "expect-focus txtName"), HasSubstr("found it on frmStage.cmdGo"));
    EXPECT_EQ(failureOf(stage, "expect-focus cmdGo"), "");
}

TEST(Expectations, AControlOfAFormThatIsNotLoadedDoesNotHaveTheFocus) {
    Stage stage;
    EXPECT_THAT(failureOf(stage, "expect-focus frmPopup.txtIn"), HasSubstr("found it nowhere"));
}

TEST(Expectations, AFormIsShownOrHiddenAlsoWhenNotLoaded) {
    Stage stage;
    EXPECT_EQ(failureOf(stage, "expect-shown frmStage"), "");
    EXPECT_EQ(failureOf(stage, "expect-hidden frmPopup"), "");
    EXPECT_THAT(failureOf(stage, "expect-hidden frmStage"), HasSubstr("frmStage not on screen, found it is"));
    EXPECT_THAT(failureOf(stage, "expect-shown frmPopup"), HasSubstr("frmPopup on screen, found it is not"));
    stage.program.desk.load(frmPopup::formName);
    EXPECT_EQ(failureOf(stage, "expect-hidden frmPopup"), "");
    stage.program.desk.hide(frmStage::formName);
    EXPECT_EQ(failureOf(stage, "expect-hidden frmStage"), "");
}

TEST(Expectations, AFormUnderAnotherIsStillShown) {
    Stage stage;
    stage.program.desk.show(frmPopup::formName, Modality::Modal);
    EXPECT_EQ(failureOf(stage, "expect-shown frmStage"), "");
}

TEST(Expectations, FilesAndFoldersExistOrDoNot) {
    Stage stage;
    const std::string folder = std::filesystem::temp_directory_path().string();
    EXPECT_EQ(failureOf(stage, "expect-file \"" + folder + "\""), "");
    EXPECT_EQ(failureOf(stage, "expect-no-file /nowhere/at/all"), "");
    EXPECT_THAT(
        failureOf(stage, "expect-file /nowhere/at/all"), HasSubstr("the file or folder \"/nowhere/at/all\""));
    EXPECT_THAT(failureOf(stage, "expect-no-file \"" + folder + "\""), HasSubstr("no file or folder"));
}

TEST(Expectations, APathMayBeWrittenWithBackslashes) {
    Stage stage;
    EXPECT_EQ(failureOf(stage, R"(expect-file \tmp)"), "");
}

TEST(Expectations, ShowPrintsTheTargetAndItsReading) {
    Stage stage;
    stage.form().lblSum.setCaption("a\r\"b\"\\");
    EXPECT_EQ(failureOf(stage, "show lblSum.caption"), "");
    EXPECT_EQ(stage.transcript.str(), "lblSum.caption = \"a\\r\\\"b\\\"\\\\\"\n");
}

} // namespace
} // namespace lodge
