// Boxes that come up: what the script answers, what the transcript says, what the script expects.

#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

namespace lodge {
namespace {

using ::testing::HasSubstr;

const Box short12Months{.text = "รอบระยะเวลาบัญชี\rสั้น",
    .buttons = Buttons::OkCancel,
    .defaultAnswer = Answer::Cancel,
    .title = "คำเตือน"};
const Box leave{.text = "ออก", .buttons = Buttons::YesNo};

TEST(Boxes, AMessageNeedsNoAnswerAndTakesNone) {
    Stage stage;
    std::optional<Answer> answer;
    stage.form().cmdGo.onClick = [&] {
        stage.program.notify("ข้อความ");
        answer = stage.program.show(short12Months);
    };
    EXPECT_EQ(stage.play("answer OK\nclick frmStage.cmdGo\n"), SessionEnd::AllWentThrough);
    EXPECT_EQ(answer, Answer::Ok);
    EXPECT_EQ(stage.transcript.str(), "message \"ข้อความ\"\nquestion \"รอบระยะเวลาบัญชี\\rสั้น\" -> OK\n");
}

TEST(Boxes, AnswersAreGivenInTheirOrder) {
    Stage stage;
    std::vector<Answer> answers;
    stage.form().cmdGo.onClick = [&] {
        answers.push_back(stage.program.show(short12Months));
        answers.push_back(stage.program.show(leave));
        answers.push_back(stage.program.show(leave));
    };
    EXPECT_EQ(stage.play("answer Cancel Yes\nanswer No\nclick frmStage.cmdGo\n"), SessionEnd::AllWentThrough);
    EXPECT_THAT(answers, ::testing::ElementsAre(Answer::Cancel, Answer::Yes, Answer::No));
}

TEST(Boxes, AQuestionWithoutAnAnswerStopsTheCommandThere) {
    Stage stage;
    bool wentOn = false;
    stage.form().txtName.onChange = [&] {
        stage.program.show(leave);
        wentOn = true;
    };
    EXPECT_EQ(stage.play("on frmStage\ntype txtName x\nclick cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_EQ(stage.errors.str(), "test.session:2: a question without an answer: \"ออก\"\n");
    EXPECT_FALSE(wentOn);
    EXPECT_EQ(stage.transcript.str(), "");
}

TEST(Boxes, TheStopLeavesTheDeskInOrder) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] {
        stage.program.desk.unload(frmStage::formName);
        stage.program.show(leave);
    };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
    // Timers run again and an unloaded form is gone: no event and no box is held open.
    stage.program.desk.show(frmStage::formName);
    stage.form().tmrTick.setEnabled(true);
    stage.events.clear();
    stage.program.desk.pass(std::chrono::milliseconds(250));
    EXPECT_THAT(stage.events, ::testing::ElementsAre("tmrTick timer"));
}

TEST(Boxes, AnErrorTrapOfTheProgramDoesNotSwallowTheFault) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] {
        try {
            stage.program.show(leave);
        } catch (const std::exception&) {
            stage.program.notify("trapped");
        }
    };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_EQ(stage.transcript.str(), "");

    Stage other;
    other.form().cmdGo.onClick = [&] {
        try {
            other.program.show(leave);
        } catch (...) {
            other.program.notify("trapped");
        }
    };
    EXPECT_EQ(other.play("click frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(other.errors.str(), HasSubstr("test.session:1: a question without an answer"));
}

TEST(Boxes, AnAnswerThatTheBoxDoesNotOfferIsAFault) {
    for (const char* answer : {"Yes", "No"}) {
        Stage stage;
        stage.form().cmdGo.onClick = [&] { stage.program.show(short12Months); };
        EXPECT_EQ(stage.play("answer " + std::string(answer) + "\nclick frmStage.cmdGo\n"),
            SessionEnd::ScriptAtFault);
        EXPECT_THAT(stage.errors.str(), HasSubstr("the answer " + std::string(answer) + " is none"));
    }
    for (const char* answer : {"OK", "Cancel"}) {
        Stage stage;
        stage.form().cmdGo.onClick = [&] { stage.program.show(leave); };
        EXPECT_EQ(stage.play("answer " + std::string(answer) + "\nclick frmStage.cmdGo\n"),
            SessionEnd::ScriptAtFault);
    }
}

TEST(Boxes, AnotherWordIsNoAnswer) {
    Stage stage;
    EXPECT_EQ(stage.play("answer OK Canel\n"), SessionEnd::ScriptAtFault);
    EXPECT_THAT(stage.errors.str(), HasSubstr("\"Canel\" is no answer; the nearest name is \"Cancel\""));
}

TEST(Boxes, AnInputBoxTakesTheQueuedText) {
    Stage stage;
    std::vector<std::optional<std::string>> texts;
    stage.form().lblSum.onMouseDown = [&](MousePress&) {
        texts.push_back(stage.program.ask({.prompt = "Edit Tax", .title = "แก้ไขภาษี"}));
    };
    EXPECT_EQ(stage.play("input 1,500.00\ninput \"\"\nmouse right+shift+ctrl+alt frmStage.lblSum\n"
                         "mouse right frmStage.lblSum\n"),
        SessionEnd::AllWentThrough);
    EXPECT_THAT(texts, ::testing::ElementsAre("1,500.00", ""));
    EXPECT_EQ(stage.transcript.str(), "input \"Edit Tax\" -> 1,500.00\ninput \"Edit Tax\" -> \n");
}

TEST(Boxes, AnInputBoxIsNoMessage) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.ask({.prompt = "Edit Tax"}); };
    EXPECT_EQ(stage.play("input 1\nclick frmStage.cmdGo\nexpect-no-message\n"), SessionEnd::AllWentThrough);
}

TEST(Boxes, DialogsWithNothingQueuedAreFaults) {
    struct Case {
        void (*open)(Stage&);
        const char* told;
    };
    for (const Case& dialog : {
             Case{[](Stage& stage) { stage.program.ask({.prompt = "Edit Tax"}); }, "an input box"},
             Case{[](Stage& stage) { stage.program.chooseFile({.title = "เปิด", .filter = ""}); },
                 "a file dialog \"เปิด\""},
             Case{[](Stage& stage) { stage.program.chooseFolder("/"); }, "a folder dialog"},
         }) {
        Stage stage;
        stage.form().cmdGo.onClick = [&] { dialog.open(stage); };
        EXPECT_EQ(stage.play("click frmStage.cmdGo\n"), SessionEnd::ScriptAtFault);
        EXPECT_THAT(stage.errors.str(), HasSubstr(dialog.told));
    }
}

TEST(Boxes, AFileDialogTakesTheQueuedPath) {
    Stage stage;
    std::vector<std::optional<std::filesystem::path>> files;
    stage.form().cmdGo.onClick = [&] {
        files.push_back(stage.program.chooseFile({.title = "", .filter = ""}));
        files.push_back(stage.program.chooseFolder("/"));
        files.push_back(stage.program.chooseFile({.title = "", .filter = ""}));
    };
    EXPECT_EQ(
        stage.play("file \"/home/my returns/a.txt\"\nfile ${SCRIPT}\nfile \"\"\nclick frmStage.cmdGo\n"),
        SessionEnd::AllWentThrough);
    EXPECT_THAT(files, ::testing::ElementsAre("/home/my returns/a.txt", "/home/sessions", std::nullopt));
}

TEST(Boxes, APrintDialogTakesTheQueuedRange) {
    Stage stage;
    std::vector<std::optional<PageRange>> ranges;
    stage.form().cmdGo.onClick = [&] { ranges.push_back(stage.host.choosePages()); };
    EXPECT_EQ(stage.play("range 3 9\nrange cancel\nclick frmStage.cmdGo\nclick frmStage.cmdGo\n"),
        SessionEnd::AllWentThrough);
    ASSERT_EQ(ranges.size(), 2U);
    ASSERT_TRUE(ranges[0].has_value());
    EXPECT_EQ(ranges[0]->from, 3);
    EXPECT_EQ(ranges[0]->to, 9);
    EXPECT_FALSE(ranges[1].has_value());
}

TEST(Boxes, APrintDialogWithoutARangeReadsZeroToZero) {
    Stage stage;
    std::optional<PageRange> range;
    stage.form().cmdGo.onClick = [&] { range = stage.host.choosePages(); };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\n"), SessionEnd::AllWentThrough);
    ASSERT_TRUE(range.has_value());
    EXPECT_EQ(range->from, 0);
    EXPECT_EQ(range->to, 0);
}

TEST(Boxes, ARangeIsTwoNumbersOrCancel) {
    for (const char* line : {"range 3", "range x 9", "range 3 cancel", "range cancel 3"}) {
        Stage stage;
        EXPECT_EQ(stage.play(line), SessionEnd::ScriptAtFault) << line;
    }
}

TEST(Boxes, AreExpectedInTheirOrderByCodeOrByText) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] {
        stage.program.message("M026");
        stage.program.show(short12Months);
        stage.program.message("M534.2");
    };
    EXPECT_EQ(stage.play("answer OK\nclick frmStage.cmdGo\nexpect-message M026\nexpect-title ก.ข.ค.77\n"
                         "expect-message \"รอบระยะเวลาบัญชี\\rสั้น\"\nexpect-title คำเตือน\n"
                         "expect-message M534.2\nexpect-no-message\n"),
        SessionEnd::AllWentThrough)
        << stage.errors.str();
}

TEST(Boxes, AnotherMessageThanTheExpectedOneFails) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.notify("ข้อความ "); };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\nexpect-message ข้อความ\n"), SessionEnd::ExpectationFailed);
    EXPECT_EQ(stage.errors.str(), "test.session:2: expected the message \"ข้อความ\", found \"ข้อความ \"\n");
}

TEST(Boxes, ACatalogueCodeIsToldWithItsWholeText) {
    Stage stage;
    EXPECT_EQ(stage.play("expect-message M026\n"), SessionEnd::ExpectationFailed);
    EXPECT_EQ(stage.errors.str(), "test.session:1: expected the message \"M026 : กรุณาระบุ วัน เดือน ปี "
                                  "ให้ถูกต้อง\", found no further box\n");
}

TEST(Boxes, ACodeOutsideTheCatalogueIsATextOfItsOwn) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.notify("M999"); };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\nexpect-message M999\n"), SessionEnd::AllWentThrough);
}

TEST(Boxes, ABoxThatNobodyExpectedFailsExpectNoMessage) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.show(leave); };
    EXPECT_EQ(
        stage.play("answer No\nclick frmStage.cmdGo\nexpect-no-message\n"), SessionEnd::ExpectationFailed);
    EXPECT_THAT(stage.errors.str(), HasSubstr("expected no further message, found \"ออก\""));
}

TEST(Boxes, ForgottenOnesNeedNotBeExpected) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.notify("one"); };
    stage.form().optFirst.onClick = [&] { stage.program.notify("two"); };
    EXPECT_EQ(stage.play("on frmStage\nclick cmdGo\nforget-messages\nexpect-no-message\n"
                         "click optFirst\nexpect-message two\n"),
        SessionEnd::AllWentThrough);
}

TEST(Boxes, ATitleWithoutAMatchedBoxFails) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.notify("one"); };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\nexpect-title ก.ข.ค.77\n"), SessionEnd::ExpectationFailed);
    EXPECT_THAT(stage.errors.str(), HasSubstr("no box matched"));
}

TEST(Boxes, AnotherTitleFails) {
    Stage stage;
    stage.form().cmdGo.onClick = [&] { stage.program.notify("one"); };
    EXPECT_EQ(stage.play("click frmStage.cmdGo\nexpect-message one\nexpect-title two\n"),
        SessionEnd::ExpectationFailed);
    EXPECT_EQ(stage.errors.str(), "test.session:3: expected the title \"two\", found \"ก.ข.ค.77\"\n");
}

} // namespace
} // namespace lodge
