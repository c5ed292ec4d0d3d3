#include "controls/buttons.h"
#include "controls/control_array.h"
#include "controls/desk.h"
#include "controls/label.h"
#include "controls/lists.h"
#include "controls/text_box.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

class SampleForm : public Form {
  public:
    explicit SampleForm(Desk& desk) : Form(desk, "frmSample") {
        optYes.putIn(fraFirst);
        optNo.putIn(fraFirst);
        optOther.putIn(fraSecond);
    }

    TextBox txtName{*this, "txtName"};
    MaskedBox mskDate{*this, "mskDate"};
    CheckBox chkFirst{*this, "chkFirst"};
    ControlArray<CheckBox> chkStatus{*this, "chkStatus", 3};
    Frame fraFirst{*this, "fraFirst"};
    OptionButton optYes{*this, "optYes"};
    OptionButton optNo{*this, "optNo"};
    Frame fraSecond{*this, "fraSecond"};
    OptionButton optOther{*this, "optOther"};
    Label lblSum{*this, "lblSum"};
    ListBox lstCodes{*this, "lstCodes"};
    ComboBox cboTitle{*this, "cboTitle"};
    Grid gridFound{*this, "gridFound"};
};

class Controls : public testing::Test {
  protected:
    Controls() {
        desk.add("frmSample", [this] { return std::make_unique<SampleForm>(desk); });
        form = static_cast<SampleForm*>(&desk.show("frmSample"));
    }

    Desk desk;
    SampleForm* form = nullptr;
    int raised = 0;
    Handler count = [this] { ++raised; };
};

TEST_F(Controls, AChangeFromCodeRaisesTheEventOfAUsersChange) {
    form->txtName.onChange = count;
    form->chkFirst.onClick = count;
    form->lblSum.onChange = count;
    form->mskDate.onChange = count;
    form->txtName.setText("ก");
    form->chkFirst.setValue(true);
    form->lblSum.setCaption("0.00");
    form->mskDate.setDigits("01012561");
    EXPECT_EQ(raised, 4);
}

TEST_F(Controls, GivingAControlTheValueThatItHoldsRaisesNothing) {
    form->txtName.setText("ก");
    form->chkFirst.setValue(true);
    form->optYes.setValue(true);
    form->lblSum.setCaption("0.00");
    form->cboTitle.setItems({"", "นาย"});
    form->cboTitle.select(1);
    form->txtName.onChange = form->chkFirst.onClick = form->optYes.onClick = count;
    form->lblSum.onChange = form->cboTitle.onClick = count;
    form->txtName.setText("ก");
    form->chkFirst.setValue(true);
    form->optYes.setValue(true);
    form->lblSum.setCaption("0.00");
    form->cboTitle.select(1);
    EXPECT_EQ(raised, 0);
}

TEST_F(Controls, AMaskedBoxTakesDigitsAloneAndAtMostEight) {
    form->mskDate.setDigits("01/01/2561 and 9");
    EXPECT_EQ(form->mskDate.digits(), "01012561");
    EXPECT_EQ(form->mskDate.text(), "01/01/2561");
}

TEST_F(Controls, AMaskedBoxShowsAnUnderscoreForEachMissingDigit) {
    EXPECT_EQ(form->mskDate.text(), "__/__/____");
    form->mskDate.setDigits("010");
    EXPECT_EQ(form->mskDate.text(), "01/0_/____");
}

TEST_F(Controls, ChoosingAnOptionTakesTheChoiceFromItsOwnFrameOnly) {
    form->optOther.setValue(true);
    form->optYes.setValue(true);
    form->optYes.onClick = count;
    form->optNo.setValue(true);
    EXPECT_FALSE(form->optYes.value());
    EXPECT_TRUE(form->optNo.value());
    EXPECT_TRUE(form->optOther.value());
    EXPECT_EQ(raised, 0) << "losing the choice raises nothing";
}

TEST_F(Controls, AControlInAClosedOrHiddenFrameIsClosedOrHidden) {
    form->fraFirst.setEnabled(false);
    EXPECT_TRUE(form->optYes.enabled());
    EXPECT_FALSE(form->optYes.isOpen());
    form->fraFirst.setVisible(false);
    EXPECT_TRUE(form->optYes.visible());
    EXPECT_FALSE(form->optYes.isShown());
}

TEST_F(Controls, AControlIsFoundByItsNameAndIndex) {
    EXPECT_EQ(form->find("txtName"), &form->txtName);
    EXPECT_EQ(form->find("chkStatus(2)"), &form->chkStatus[2]);
    EXPECT_EQ(form->find("chkStatus(3)"), nullptr);
    for (const char* other : {"chkStatus", "chkStatus(", "chkStatus()", "chkStatus(2", "chkStatus(02)",
             "chkStatus(+2)", "chkStatus(2)x", "chkStatus(-1)", "txtName(0)", "txtName(-1)", "(2)", ""})
        EXPECT_EQ(form->find(other), nullptr) << other;
}

TEST_F(Controls, StandInTheOrderOfThePaperWhenTheyAreBroughtIntoIt) {
    const std::size_t place = 3; // behind txtName, mskDate, chkFirst
    form->orderOnPaper({&form->chkStatus[2], &form->chkStatus[0], &form->chkStatus[1], &form->lblSum});
    ASSERT_EQ(form->controls()[place], &form->chkStatus[2]);
    EXPECT_EQ(form->controls()[place + 1], &form->chkStatus[0]);
    EXPECT_EQ(form->controls()[place + 3], &form->lblSum);
    EXPECT_EQ(form->controls()[place + 4], &form->fraFirst);
    EXPECT_EQ(form->controls().size(), 15U);
}

TEST_F(Controls, RemovingAnEntryKeepsTheSelectionOnItsText) {
    form->cboTitle.setItems({"", "นาย", "นาง"});
    form->cboTitle.select(2);
    form->cboTitle.removeItem(1);
    EXPECT_EQ(form->cboTitle.selectedText(), "นาง");
    form->cboTitle.removeItem(1);
    EXPECT_EQ(form->cboTitle.selected(), -1);
}

TEST_F(Controls, AListReadsAllItsEntriesAndAGridItsRows) {
    form->lstCodes.addItem("(1)");
    form->lstCodes.addItem("(2.1)");
    EXPECT_EQ(form->lstCodes.reading(), "(1),(2.1)");
    form->gridFound.setRows({{"1", "641910", "ธนาคารพาณิชย์"}});
    EXPECT_EQ(form->gridFound.reading(), "1");
    EXPECT_EQ(form->gridFound.cell(0, 1), "641910");
    EXPECT_EQ(form->gridFound.cell(1, 0), "");
}

TEST_F(Controls, PickingTheSameRowAgainRaisesItsClickAgain) {
    form->gridFound.setRows({{"1"}, {"2"}});
    form->gridFound.onClick = count;
    form->gridFound.pick(1);
    form->gridFound.pick(1);
    form->gridFound.pick(2);
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(form->gridFound.picked(), 1);
}

TEST_F(Controls, AnObserverLearnsWhichAspectOfWhichControlChanged) {
    struct Watcher : DeskObserver {
        void controlChanged(Control& control, Aspect aspect) override {
            seen.emplace_back(control.fullName(), aspect);
        }
        std::vector<std::pair<std::string, Aspect>> seen;
    } watcher;
    desk.observe(watcher);
    form->chkStatus[1].setValue(true);
    form->txtName.setEnabled(false);
    form->txtName.setEnabled(false);
    desk.forget(watcher);
    form->txtName.setText("not seen");
    const std::vector<std::pair<std::string, Aspect>> wanted = {
        {"chkStatus(1)", Aspect::Value}, {"txtName", Aspect::Enabled}};
    EXPECT_EQ(watcher.seen, wanted);
}

} // namespace
} // namespace lodge
