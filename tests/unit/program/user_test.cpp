#include "controls/label.h"
#include "program/user.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

using Log = std::vector<std::string>;

class SampleForm : public Form {
  public:
    explicit SampleForm(Desk& desk) : Form(desk, "frmSample") {
        txtMoney.setTextKind(TextKind::Amount);
        txtMoney.setMaxLength(16);
        txtName.setMaxLength(5);
        txtHidden.setVisible(false);
        txtLocked.setLocked(true);
        cboTitle.setItems({"", "นาย"});
        gridFound.setRows({{"1"}});
    }
    TextBox txtName{*this, "txtName"};
    TextBox txtHidden{*this, "txtHidden"};
    TextBox txtLocked{*this, "txtLocked"};
    Label lblSum{*this, "lblSum"};
    TextBox txtMoney{*this, "txtMoney"};
    MaskedBox mskDate{*this, "mskDate"};
    CheckBox chkFirst{*this, "chkFirst"};
    CommandButton cmdOk{*this, "cmdOk"};
    ComboBox cboTitle{*this, "cboTitle"};
    Grid gridFound{*this, "gridFound"};
};

class UserTest : public testing::Test {
  protected:
    UserTest() {
        desk.add("frmSample", [this] { return std::make_unique<SampleForm>(desk); });
        desk.add("frmOver", [this] { return std::make_unique<Form>(desk, "frmOver"); });
        form = static_cast<SampleForm*>(&desk.show("frmSample"));
    }

    Desk desk;
    User user{desk};
    SampleForm* form = nullptr;
    Log log;
};

TEST_F(UserTest, TypingIsGotFocusAKeyACharacterOneChangeAndLostFocus) {
    form->txtName.onGotFocus = [this] { log.emplace_back("got"); };
    form->txtName.onKey = [this](KeyPress&) { log.emplace_back("key"); };
    form->txtName.onChange = [this] { log.push_back("change " + form->txtName.text()); };
    form->txtName.onLostFocus = [this] { log.emplace_back("lost"); };
    EXPECT_EQ(user.type(form->txtName, "กข"), std::nullopt);
    EXPECT_EQ(log, (Log{"got", "key", "key", "change กข", "lost"}));
    EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(UserTest, TypingNothingEmptiesTheBoxWithOneChange) {
    form->txtName.setText("กข");
    form->txtName.onChange = [this] { log.emplace_back("change"); };
    user.type(form->txtName, "");
    EXPECT_EQ(form->txtName.text(), "");
    EXPECT_EQ(log, Log{"change"});
}

TEST_F(UserTest, AHandlerMaySwallowOrChangeAKey) {
    form->txtName.onKey = [](KeyPress& press) {
        press.swallowed = press.key == U'x';
        press.key = press.key == U'a' ? U'A' : press.key;
    };
    user.type(form->txtName, "axb");
    EXPECT_EQ(form->txtName.text(), "Ab");
}

TEST_F(UserTest, ABoxTakesNoMoreCharactersThanItsLength) {
    user.type(form->txtName, "กำไรสุทธิ");
    EXPECT_EQ(form->txtName.text(), "กำไรส") << "five letters, vowels and marks, not five bytes";
}

TEST_F(UserTest, AnAmountThatIsTooLongLosesItsSeparatorsBeforeItIsCut) {
    user.type(form->txtMoney, "9,999,999,999,999.99");
    EXPECT_EQ(form->txtMoney.text(), "9999999999999.99");
    user.type(form->txtMoney, "10,000,000,000,000.00");
    EXPECT_EQ(form->txtMoney.text(), "10000000000000.0");
    user.type(form->txtMoney, "1,234.50");
    EXPECT_EQ(form->txtMoney.text(), "1,234.50") << "what fits stays as it was typed";
}

TEST_F(UserTest, ABoxMakesTypedTextRegular) {
    user.type(form->txtMoney, "๑,๒๓๔.๕๐|");
    EXPECT_EQ(form->txtMoney.text(), "1,234.50");
}

TEST_F(UserTest, ADateBoxTakesThaiDigitsAndShortDates) {
    EXPECT_EQ(acceptedDigits("๐๑๐๑๒๕๖๑"), "01012561");
    EXPECT_EQ(acceptedDigits("1/5/2561"), "01052561");
    EXPECT_EQ(acceptedDigits("01/05/2561"), "01052561");
    EXPECT_EQ(acceptedDigits("1-5-2561"), "01052561");
    EXPECT_EQ(acceptedDigits("0105"), "0105");
    EXPECT_EQ(acceptedDigits("010525619"), "01052561");
    EXPECT_EQ(acceptedDigits("no date"), "");
}

TEST_F(UserTest, AClickOnACheckBoxTogglesBetweenMouseDownAndMouseUp) {
    form->chkFirst.onMouseDown = [this](MousePress&) { log.emplace_back("down"); };
    form->chkFirst.onClick = [this] { log.emplace_back("click"); };
    form->chkFirst.onMouseUp = [this](const MouseGesture&) { log.emplace_back("up"); };
    user.click(form->chkFirst);
    EXPECT_EQ(log, (Log{"down", "click", "up"}));
    EXPECT_TRUE(form->chkFirst.value());
}

TEST_F(UserTest, AMouseDownThatTookTheChangeOverIsFollowedByTheReleaseAlone) {
    form->chkFirst.onMouseDown = [this](MousePress& press) {
        form->chkFirst.setValue(true);
        press.follow = MousePress::Follow::ReleaseOnly;
    };
    form->chkFirst.onMouseUp = [this](const MouseGesture&) { log.emplace_back("up"); };
    user.click(form->chkFirst);
    EXPECT_TRUE(form->chkFirst.value());
    EXPECT_EQ(log, Log{"up"});
}

TEST_F(UserTest, AMouseDownThatCancelsIsFollowedByNothing) {
    form->chkFirst.onMouseDown = [](MousePress& press) { press.follow = MousePress::Follow::Nothing; };
    form->chkFirst.onMouseUp = [this](const MouseGesture&) { log.emplace_back("up"); };
    user.click(form->chkFirst);
    EXPECT_FALSE(form->chkFirst.value());
    EXPECT_TRUE(log.empty());
}

TEST_F(UserTest, AClickDoesNotHappenWhenTheFieldThatIsLeftTakesTheFocusBack) {
    form->txtName.onLostFocus = [this] { form->txtName.setFocus(); };
    form->cmdOk.onClick = [this] { log.emplace_back("ok"); };
    user.focus(form->txtName);
    EXPECT_EQ(user.click(form->cmdOk), std::nullopt) << "the person did press; it is no fault";
    EXPECT_TRUE(log.empty());
    EXPECT_TRUE(form->txtName.hasFocus());
}

TEST_F(UserTest, AClickOnALabelLeavesTheFieldToo) {
    form->txtName.onLostFocus = [this] { log.emplace_back("lost"); };
    form->lblSum.onClick = [this] { log.emplace_back("label"); };
    user.focus(form->txtName);
    user.click(form->lblSum);
    EXPECT_EQ(log, (Log{"lost", "label"}));
}

TEST_F(UserTest, EnterMovesOnToTheNextFieldWithinReach) {
    user.enter(form->txtName);
    EXPECT_TRUE(form->txtMoney.hasFocus()) << "hidden and locked boxes are passed over";
    user.moveOn(form->txtMoney, true);
    EXPECT_TRUE(form->txtName.hasFocus());
}

TEST_F(UserTest, AGestureIsMouseDownAndUpWithoutAClick) {
    form->lblSum.onMouseDown = [this](MousePress& press) {
        log.emplace_back(
            press.gesture.button == MouseButton::Right && press.gesture.ctrl ? "right+ctrl" : "?");
    };
    form->lblSum.onClick = [this] { log.emplace_back("click"); };
    user.mouse(form->lblSum, {.button = MouseButton::Right, .ctrl = true});
    EXPECT_EQ(log, Log{"right+ctrl"});
}

TEST_F(UserTest, WhatAPersonCannotReachIsRefusedWithAReason) {
    EXPECT_EQ(user.type(form->txtHidden, "x"), "frmSample.txtHidden is hidden");
    EXPECT_EQ(user.type(form->txtLocked, "x"), "frmSample.txtLocked is locked");
    form->txtName.setEnabled(false);
    EXPECT_EQ(user.type(form->txtName, "x"), "frmSample.txtName is disabled");
    form->setEnabled(false);
    EXPECT_EQ(user.click(form->cmdOk), "frmSample is switched off");
    form->setEnabled(true);
    desk.show("frmOver", Modality::Modal);
    EXPECT_EQ(user.click(form->cmdOk), "frmSample lies under a modal form");
    desk.unload("frmOver");
    desk.hide("frmSample");
    EXPECT_EQ(user.click(form->cmdOk), "frmSample is not on screen");
}

TEST_F(UserTest, AnEntryOrRowThatIsNotThereCannotBeChosen) {
    EXPECT_NE(user.choose(form->cboTitle, 2), std::nullopt);
    EXPECT_EQ(user.choose(form->cboTitle, 1), std::nullopt);
    EXPECT_EQ(form->cboTitle.selectedText(), "นาย");
    EXPECT_NE(user.pick(form->gridFound, 1), std::nullopt);
    EXPECT_EQ(user.pick(form->gridFound, 0), std::nullopt);
}

} // namespace
} // namespace lodge
