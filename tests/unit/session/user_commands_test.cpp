// What a person does, as the commands of a script.

#include "stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace lodge {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// Plays the lines on `stage` and gives the cause of their fault.
std::string faultOf(Stage& stage, const std::string& lines) {
    EXPECT_EQ(stage.play("on frmStage\n" + lines), SessionEnd::ScriptAtFault) << lines;
    return stage.errors.str();
}

void goesThrough(Stage& stage, const std::string& lines) {
    EXPECT_EQ(stage.play("on frmStage\n" + lines), SessionEnd::AllWentThrough) << stage.errors.str();
}

// --- Typing ---

TEST(UserCommands, TypeGoesThereTypesChangesOnceAndLeaves) {
    Stage stage;
    goesThrough(stage, "type txtName ab\nexpect txtName ab\n");
    EXPECT_THAT(stage.events,
        ElementsAre("txtName got", "txtName key 97", "txtName key 98", "txtName change", "txtName lost"));
    EXPECT_EQ(stage.program.desk.focus(), nullptr);
}

TEST(UserCommands, TypeOfAnEmptyTextEmptiesWithOneChange) {
    Stage stage;
    goesThrough(stage, "type txtName \"\"\nexpect txtName \"\"\n");
    EXPECT_THAT(stage.events, ElementsAre("txtName got", "txtName change", "txtName lost"));
}

TEST(UserCommands, AMaskedBoxTakesTheDigits) {
    Stage stage;
    goesThrough(stage, "type mskDay 01/02/2561\nexpect mskDay 01022561\nexpect mskDay.text 01/02/2561\n");
}

TEST(UserCommands, TypeWhoseLostFocusKeepsTheFocusLeavesItThere) {
    Stage stage;
    stage.form().txtName.onLostFocus = [&] { stage.form().txtName.setFocus(); };
    goesThrough(stage, "type txtName ab\nexpect-focus txtName\n");
}

TEST(UserCommands, FocusAndLeaveAreTheTwoHalves) {
    Stage stage;
    goesThrough(stage, "focus txtName\nexpect-focus txtName\nleave txtName\n");
    EXPECT_THAT(stage.events, ElementsAre("txtName got", "txtName lost"));
}

TEST(UserCommands, NobodyLeavesWhereHeIsNot) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "leave txtName\n"), HasSubstr("frmStage.txtName does not have the focus"));
}

TEST(UserCommands, EnterMovesOnToTheNextControl) {
    Stage stage;
    goesThrough(stage, "enter txtName\nexpect-focus txtAmount\n");
}

TEST(UserCommands, OnlyABoxIsTypedInto) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "type chkYes 1\n"), HasSubstr("frmStage.chkYes is not a box to type into"));
}

// --- Clicking ---

TEST(UserCommands, ClickIsDownToggleUp) {
    Stage stage;
    goesThrough(stage, "click chkYes\nexpect chkYes 1\n");
    EXPECT_THAT(stage.events, ElementsAre("chkYes got", "chkYes down", "chkYes click", "chkYes up"));
}

TEST(UserCommands, ClickLeavesTheControlWithTheFocusFirst) {
    Stage stage;
    goesThrough(stage, "focus txtName\nclick cmdGo\n");
    EXPECT_THAT(stage.events,
        ElementsAre("txtName got", "txtName lost", "cmdGo got", "cmdGo down", "cmdGo click", "cmdGo up"));
}

TEST(UserCommands, AClickDoesNotHappenWhenTheFocusIsTakenBack) {
    Stage stage;
    stage.form().txtName.onLostFocus = [&] { stage.form().txtName.setFocus(); };
    goesThrough(stage, "focus txtName\nclick cmdGo\nexpect-focus txtName\n");
    EXPECT_THAT(stage.events, Not(::testing::Contains("cmdGo click")));
    EXPECT_THAT(stage.events, Not(::testing::Contains("cmdGo down")));
}

TEST(UserCommands, AMouseDownThatTakesTheChangeOverLeavesTheReleaseAlone) {
    Stage stage;
    stage.form().chkYes.onMouseDown = [&](MousePress& press) {
        press.follow = MousePress::Follow::ReleaseOnly;
    };
    goesThrough(stage, "click chkYes\nexpect chkYes 0\n");
    EXPECT_THAT(stage.events, ElementsAre("chkYes got", "chkYes up"));
}

TEST(UserCommands, AMouseDownThatCancelsLeavesNothing) {
    Stage stage;
    stage.form().chkYes.onMouseDown = [&](MousePress& press) { press.follow = MousePress::Follow::Nothing; };
    goesThrough(stage, "tick chkYes\nexpect chkYes 0\n");
    EXPECT_THAT(stage.events, ElementsAre("chkYes got"));
}

TEST(UserCommands, TickAndUntickClickOnlyABoxInTheOtherState) {
    Stage stage;
    goesThrough(stage, "tick chkKind(1)\ntick chkKind(1)\nexpect chkKind(1) 1\n"
                       "untick chkKind(1)\nuntick chkKind(1)\nexpect chkKind(1) 0\n");
    EXPECT_EQ(std::count(stage.events.begin(), stage.events.end(), "chkKind(1) click"), 2);
}

TEST(UserCommands, TickChoosesAnOptionAndTheOthersLoseIt) {
    Stage stage;
    goesThrough(stage, "tick optFirst\ntick optSecond\nexpect optFirst 0\nexpect optSecond 1\n");
}

TEST(UserCommands, AnOptionCannotBeUnticked) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "tick optFirst\nuntick optFirst\n"), HasSubstr("only to another one"));
}

TEST(UserCommands, OnlyATickBoxIsTicked) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "tick cmdGo\n"), HasSubstr("frmStage.cmdGo is nothing to tick"));
}

TEST(UserCommands, DoubleClickIsItsOwnEvent) {
    Stage stage;
    goesThrough(stage, "doubleclick grdFound\n");
    EXPECT_THAT(stage.events, ElementsAre("grdFound got", "grdFound doubleclick"));
}

// --- Gestures ---

TEST(UserCommands, AGestureIsPressAndReleaseWithoutAClick) {
    Stage stage;
    goesThrough(stage, "mouse right+ctrl chkYes\nexpect chkYes 0\n");
    EXPECT_THAT(stage.events, ElementsAre("chkYes down", "chkYes up"));
}

TEST(UserCommands, AGestureTellsItsButtonAndKeys) {
    Stage stage;
    std::vector<MouseGesture> seen;
    stage.form().lblSum.onMouseDown = [&](MousePress& press) { seen.push_back(press.gesture); };
    goesThrough(stage, "mouse right+alt+shift lblSum\nmouse left lblSum\nmouse ctrl+left lblSum\n");
    ASSERT_EQ(seen.size(), 3U);
    EXPECT_EQ(seen[0].button, MouseButton::Right);
    EXPECT_TRUE(seen[0].shift && seen[0].alt && !seen[0].ctrl);
    EXPECT_EQ(seen[1].button, MouseButton::Left);
    EXPECT_FALSE(seen[1].shift || seen[1].alt || seen[1].ctrl);
    EXPECT_EQ(seen[2].button, MouseButton::Left);
    EXPECT_TRUE(seen[2].ctrl);
}

TEST(UserCommands, AGestureGoesToAFormAsWell) {
    Stage stage;
    goesThrough(stage, "mouse right+shift+ctrl+alt frmStage\n");
    EXPECT_THAT(stage.events, ElementsAre("frmStage all keys"));
}

TEST(UserCommands, AGestureHasOneButtonAndEachKeyOnce) {
    for (const char* gesture :
        {"shift", "left+right", "left+left", "left+", "+left", "left+ctrl+ctrl", "middle"}) {
        Stage stage;
        faultOf(stage, "mouse " + std::string(gesture) + " lblSum\n");
        EXPECT_THAT(stage.events, IsEmpty()) << gesture;
    }
    Stage stage;
    EXPECT_THAT(faultOf(stage, "mouse left+strg lblSum\n"), HasSubstr("no \"strg\"; the nearest name is \""));
}

// --- Lists ---

TEST(UserCommands, ChooseSelectsByTextOrByPlace) {
    Stage stage;
    goesThrough(stage,
        "choose cboTitle นาง\nexpect cboTitle นาง\nexpect cboTitle.index 2\n"
        "choose cboTitle #1\nexpect cboTitle นาย\nchoose lstLines \"#0\"\nexpect lstLines.index 0\n");
    EXPECT_THAT(stage.events, ElementsAre("cboTitle got", "cboTitle click", "cboTitle click", "cboTitle lost",
                                  "lstLines got", "lstLines click"));
}

TEST(UserCommands, OfEqualEntriesTheFirstIsChosen) {
    Stage stage;
    goesThrough(
        stage, "choose cboTitle นนร.\nexpect cboTitle.index 3\nchoose cboTitle #4\nexpect cboTitle นนร.\n");
}

TEST(UserCommands, AnEntryThatIsNotThereIsAFaultWithTheNearest) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "choose lstLines ปลูกขาว\n"),
        HasSubstr("no entry \"ปลูกขาว\"; the nearest name is \"ปลูกข้าว\""));
    Stage other;
    EXPECT_THAT(faultOf(other, "choose lstLines #2\n"), HasSubstr("frmStage.lstLines has no such entry"));
}

TEST(UserCommands, OnlyAListIsChosenFrom) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "choose grdFound #0\n"), HasSubstr("frmStage.grdFound is no list"));
}

TEST(UserCommands, PickClicksARow) {
    Stage stage;
    goesThrough(stage, "pick grdFound 1\nexpect grdFound.index 1\n");
    EXPECT_THAT(stage.events, ElementsAre("grdFound got", "grdFound click"));
}

TEST(UserCommands, ARowThatIsNotThereIsAFault) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "pick grdFound 2\n"), HasSubstr("frmStage.grdFound has no row 2"));
    Stage other;
    EXPECT_THAT(faultOf(other, "pick grdFound first\n"), HasSubstr("\"first\" is no row number"));
    Stage third;
    EXPECT_THAT(faultOf(third, "pick lstLines 0\n"), HasSubstr("frmStage.lstLines is no grid"));
}

// --- Forms ---

TEST(UserCommands, CloseClosesAFormByItsFrame) {
    Stage stage;
    stage.program.desk.show(frmPopup::formName);
    goesThrough(stage, "expect-shown frmPopup\nclose frmPopup\nexpect-hidden frmPopup\n");
}

TEST(UserCommands, WhatIsNotOnScreenCannotBeReached) {
    for (const char* line :
        {"click frmPopup.cmdExit", "type frmPopup.txtIn x", "close frmPopup", "mouse left frmPopup",
            "focus frmPopup.txtIn", "tick frmPopup.cmdExit", "choose frmPopup.cboKind x"}) {
        Stage stage;
        EXPECT_THAT(faultOf(stage, line), HasSubstr("frmPopup is not on screen")) << line;
        EXPECT_EQ(stage.program.desk.find(frmPopup::formName), nullptr) << "nothing is loaded for a script";
    }
}

TEST(UserCommands, WhatLiesUnderAModalFormCannotBeReached) {
    Stage stage;
    stage.program.desk.show(frmPopup::formName, Modality::Modal);
    EXPECT_THAT(faultOf(stage, "click cmdGo\n"), HasSubstr("frmStage lies under a modal form"));
    Stage other;
    other.program.desk.show(frmPopup::formName, Modality::Modal);
    goesThrough(other, "type frmPopup.txtIn 5\nclose frmPopup\nclick cmdGo\n");
}

TEST(UserCommands, WhatIsDisabledHiddenLockedOrSwitchedOffCannotBeReached) {
    Stage disabled;
    disabled.form().txtName.setEnabled(false);
    EXPECT_THAT(faultOf(disabled, "type txtName x\n"), HasSubstr("frmStage.txtName is disabled"));
    Stage hidden;
    hidden.form().cmdGo.setVisible(false);
    EXPECT_THAT(faultOf(hidden, "click cmdGo\n"), HasSubstr("frmStage.cmdGo is hidden"));
    Stage locked;
    locked.form().txtName.setLocked(true);
    EXPECT_THAT(faultOf(locked, "type txtName x\n"), HasSubstr("frmStage.txtName is locked"));
    Stage off;
    off.form().setEnabled(false);
    EXPECT_THAT(faultOf(off, "click cmdGo\n"), HasSubstr("frmStage is switched off"));
    Stage inFrame;
    inFrame.form().cmdGo.putIn(inFrame.form().fraAll);
    inFrame.form().fraAll.setEnabled(false);
    EXPECT_THAT(faultOf(inFrame, "click cmdGo\n"), HasSubstr("frmStage.cmdGo is disabled"));
    EXPECT_THAT(inFrame.events, IsEmpty());
}

TEST(UserCommands, AFormIsNoControl) {
    Stage stage;
    EXPECT_THAT(faultOf(stage, "click frmStage\n"), HasSubstr("\"frmStage\" is a form"));
    Stage other;
    EXPECT_THAT(faultOf(other, "click cmdGo.caption\n"), HasSubstr("more than a control"));
}

// --- Time ---

TEST(UserCommands, WaitLetsTimersFire) {
    Stage stage;
    stage.form().tmrTick.setEnabled(true);
    goesThrough(stage, "wait 249\n");
    EXPECT_THAT(stage.events, IsEmpty());
    goesThrough(stage, "wait 1\nwait 500\n");
    EXPECT_THAT(stage.events, ElementsAre("tmrTick timer", "tmrTick timer", "tmrTick timer"));
}

TEST(UserCommands, WaitOfDaysIsQuick) {
    Stage stage;
    int ticks = 0;
    stage.form().tmrTick.onTimer = [&] { ++ticks; };
    stage.form().tmrTick.setEnabled(true);
    goesThrough(stage, "wait 259200000\n"); // three days
    EXPECT_EQ(ticks, 3 * 24 * 60 * 60 * 4);
}

TEST(UserCommands, WaitTakesATimeThatAClockCanCount) {
    for (const char* time : {"-1", "1.5", "soon", "", "99999999999999999999", "31622400001"}) {
        Stage stage;
        EXPECT_THAT(
            faultOf(stage, "wait \"" + std::string(time) + "\"\n"), HasSubstr("no time in milliseconds"));
    }
}

TEST(UserCommands, AQuestionInsideATimerNeedsItsAnswerToo) {
    Stage stage;
    stage.form().tmrTick.onTimer = [&] { stage.program.show({.text = "ต่อ", .buttons = Buttons::YesNo}); };
    stage.form().tmrTick.setEnabled(true);
    EXPECT_THAT(faultOf(stage, "wait 1000\n"), HasSubstr("test.session:2: a question without an answer"));
}

} // namespace
} // namespace lodge
