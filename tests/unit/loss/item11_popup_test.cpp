#include "item11_desktop.h"
#include "pages/loss/item11_popup.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

class Item11Popup : public testing::Test, public Item11Desktop {
  protected:
    frmLodgePage6_11Popup& popup = openPopup();
    frmLodgePage6_11& page = *program.desk.find<frmLodgePage6_11>();

    bool isOpen(const Control& box) const { return box.enabled() && box.back() == BackColour::Window; }
    bool isClosed(const Control& box) const { return !box.enabled() && box.back() == BackColour::Button; }
};

// --- Opening and closing ---

TEST_F(Item11Popup, StandsOverAPageThatIsSwitchedOff) {
    EXPECT_FALSE(popup.isModal());
    EXPECT_FALSE(page.enabled());
    EXPECT_FALSE(shell.toolsOn);
    user.click(popup.cmdCan01);
    EXPECT_EQ(program.desk.find("frmLodgePage6_11Popup"), nullptr);
    EXPECT_TRUE(page.enabled());
    EXPECT_TRUE(shell.toolsOn);
}

TEST_F(Item11Popup, ClosedByItsFrameGivesThePageBack) {
    user.close(popup);
    EXPECT_TRUE(page.enabled());
    EXPECT_TRUE(shell.toolsOn);
}

TEST_F(Item11Popup, TellsWhichYearItAsksForAndThePeriodOfTheReturn) {
    EXPECT_EQ(popup.Label2.caption(), "กรุณาบันทึกข้อมูลรอบระยะเวลาบัญชี ปีที่ 1 ก่อนปีปัจจุบันที่ท่านกำลังทำข้อมูลยื่นแบบ ");
    EXPECT_EQ(popup.caption(), popup.Label2.caption());
    EXPECT_EQ(popup.Label3.caption(), "รอบระยะเวลาบัญชีตั้งแต่วันที่ 1 มกราคม พ.ศ. 2561 ถึงวันที่ 31 ธันวาคม พ.ศ. 2561");
    EXPECT_EQ(popup.Check1.caption(), "ได้รับยกเว้นภาษีเงินได้");
    EXPECT_EQ(popup.Check2.caption(), "ต้องเสียภาษีเงินได้");
    EXPECT_EQ(popup.mskDateTo[0].text(), "31/12/2560");
}

TEST_F(Item11Popup, OpensWithEverythingClosed) {
    EXPECT_TRUE(isClosed(popup.mskDateFrom[0]));
    EXPECT_TRUE(isClosed(popup.mskDateTo[0]));
    for (int cell = 0; cell < 4; ++cell)
        EXPECT_TRUE(isClosed(popup.txtMoney1[cell]));
}

// --- The kind of business ---

TEST_F(Item11Popup, OpensAllCellsForAnExemptBusiness) {
    user.click(popup.Check1);
    EXPECT_TRUE(isOpen(popup.mskDateFrom[0]));
    for (int cell = 0; cell < 4; ++cell)
        EXPECT_TRUE(isOpen(popup.txtMoney1[cell]));
    EXPECT_TRUE(isClosed(popup.mskDateTo[0]));
}

TEST_F(Item11Popup, KeepsTheExemptCellsBlankForATaxableBusiness) {
    user.click(popup.Check1);
    type(popup, "txtMoney1(0)", "5");
    type(popup, "txtMoney1(3)", "7");
    user.click(popup.Check2);
    EXPECT_FALSE(popup.Check1.value());
    EXPECT_EQ(popup.txtMoney1[0].text(), "");
    EXPECT_EQ(popup.txtMoney1[3].text(), "7.00");
    EXPECT_TRUE(isClosed(popup.txtMoney1[0]));
    EXPECT_TRUE(isClosed(popup.txtMoney1[1]));
    EXPECT_TRUE(isOpen(popup.txtMoney1[2]));
    EXPECT_TRUE(isOpen(popup.mskDateFrom[0]));
    user.click(popup.Check1);
    EXPECT_FALSE(popup.Check2.value());
    EXPECT_TRUE(isOpen(popup.txtMoney1[0]));
}

TEST_F(Item11Popup, ClosesAndClearsWhenNoBusinessIsChosenAnyMore) {
    user.click(popup.Check1);
    type(popup, "mskDateFrom(0)", "01012560");
    type(popup, "txtMoney1(1)", "5");
    user.click(popup.Check1);
    EXPECT_TRUE(isClosed(popup.mskDateFrom[0]));
    EXPECT_EQ(popup.mskDateFrom[0].digits(), "");
    EXPECT_TRUE(isClosed(popup.txtMoney1[1]));
    EXPECT_EQ(popup.txtMoney1[1].text(), "");
    EXPECT_EQ(popup.mskDateTo[0].digits(), "31122560") << "the end is the chain's";
}

// --- Dates and amounts ---

TEST_F(Item11Popup, ClearsAStartThatItRefusesAndTakesTheFocusBack) {
    user.click(popup.Check2);
    for (const auto& [start, message] : std::vector<std::pair<const char*, const char*>>{
             {"31112560", "M026"}, {"01012561", "M537"}, {"31122560", "M542"}, {"31122559", "M147"}}) {
        type(popup, "mskDateFrom(0)", start);
        expectMessage(message);
        EXPECT_EQ(popup.mskDateFrom[0].digits(), "") << start;
        EXPECT_TRUE(popup.mskDateFrom[0].hasFocus()) << start;
        EXPECT_EQ(popup.mskDateTo[0].digits(), "31122560") << start;
    }
    type(popup, "mskDateFrom(0)", "01012560");
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Item11Popup, TakesTheWrongEndAwayAndLeavesTheStart) {
    user.click(popup.Check2);
    popup.mskDateTo[0].setDigits("01012561");
    type(popup, "mskDateFrom(0)", "01022560");
    expectMessage("M120");
    EXPECT_EQ(popup.mskDateTo[0].digits(), "");
    EXPECT_EQ(popup.mskDateFrom[0].digits(), "01022560");
    EXPECT_TRUE(popup.mskDateFrom[0].hasFocus());
}

TEST_F(Item11Popup, AsksForTheStartBeforeAnEndThatWereOpen) {
    user.click(popup.Check2);
    popup.mskDateTo[0].setEnabled(true);
    user.focus(popup.mskDateTo[0]);
    expectMessage("M536");
    EXPECT_TRUE(popup.mskDateFrom[0].hasFocus());
}

TEST_F(Item11Popup, RefusesAnEndThatWereTyped) {
    user.click(popup.Check2);
    type(popup, "mskDateFrom(0)", "01012560");
    popup.mskDateTo[0].setEnabled(true);
    type(popup, "mskDateTo(0)", "3112");
    expectMessage("M026");
    EXPECT_EQ(popup.mskDateTo[0].digits(), "31122560") << "coming back to it shows the chain's end again";
}

TEST_F(Item11Popup, TakesEitherAProfitOrALoss) {
    user.click(popup.Check1);
    for (const int cell : {0, 1, 2, 3}) {
        const int partner = cell ^ 1;
        type(popup, "txtMoney1(" + std::to_string(partner) + ")", "10");
        type(popup, "txtMoney1(" + std::to_string(cell) + ")", "1234567.8");
        EXPECT_EQ(popup.txtMoney1[cell].text(), "1,234,567.80");
        EXPECT_EQ(popup.txtMoney1[partner].text(), "");
    }
    type(popup, "txtMoney1(0)", "");
    EXPECT_EQ(popup.txtMoney1[1].text(), "1,234,567.80") << "an empty cell clears nothing";
}

TEST_F(Item11Popup, EmptiesACellOfRefusedText) {
    user.click(popup.Check1);
    type(popup, "txtMoney1(1)", "10");
    type(popup, "txtMoney1(0)", "1a");
    expectMessage("M075");
    EXPECT_EQ(popup.txtMoney1[0].text(), "");
    EXPECT_TRUE(popup.txtMoney1[0].hasFocus());
    EXPECT_EQ(popup.txtMoney1[1].text(), "10.00");
}

// --- Adding ---

TEST_F(Item11Popup, RefusesAnIncompleteEntryStepByStep) {
    user.click(popup.cmdOK01);
    expectMessage("M534.1");
    user.click(popup.Check1);
    user.click(popup.cmdOK01);
    expectMessage("M534.2");
    type(popup, "mskDateFrom(0)", "01012560");
    user.click(popup.cmdOK01);
    expectMessage("M534.3");
    popup.txtMoney1[2].setText("   ");
    user.click(popup.cmdOK01);
    expectMessage("M534.3");
    type(popup, "txtMoney1(2)", "5");
    user.click(popup.cmdOK01);
    expectMessage("M534"); // an exempt business states its own result
    EXPECT_EQ(popup.mskDateFrom[0].digits(), "01012560");
    EXPECT_EQ(popup.txtMoney1[2].text(), "5.00");
    popup.mskDateFrom[0].setDigits("31122560");
    user.click(popup.cmdOK01);
    expectMessage("M542");
    EXPECT_EQ(state().intItem11Count, 0);
    EXPECT_TRUE(program.desk.find("frmLodgePage6_11Popup") != nullptr);
}

TEST_F(Item11Popup, PutsATaxablePeriodIntoTheLowestRow) {
    addTaxable(popup, "01012560", "1500.5");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(page.mskDateFrom[12].text(), "01/01/2560");
    EXPECT_EQ(page.mskDateTo[12].text(), "31/12/2560");
    EXPECT_EQ(page.txtMoney1[40].text(), "");
    EXPECT_EQ(page.txtMoney1[41].text(), "1,500.50");
    EXPECT_EQ(state().strItem11Start[0], "01/01/2560");
    EXPECT_EQ(state().strItem11End[0], "31/12/2560");
    EXPECT_EQ(state().intItem11Type[0], 12);
    EXPECT_EQ(state().intItem11Count, 1);
    EXPECT_EQ(state().intItem11CountA, 0);
    EXPECT_EQ(state().intItem11CountB, 1);
}

TEST_F(Item11Popup, PutsAnExemptPeriodWithAllItsResultsIntoBlock1) {
    user.click(popup.Check1);
    type(popup, "mskDateFrom(0)", "01012560");
    type(popup, "txtMoney1(1)", "300");
    type(popup, "txtMoney1(2)", "40");
    user.click(popup.cmdOK01);
    EXPECT_EQ(page.mskDateFrom[7].digits(), "01012560");
    EXPECT_EQ(page.txtMoney1[28].text(), "");
    EXPECT_EQ(page.txtMoney1[29].text(), "300.00");
    EXPECT_EQ(page.txtMoney1[30].text(), "40.00");
    EXPECT_EQ(page.txtMoney1[31].text(), "");
    EXPECT_EQ(state().intItem11CountA, 1);
}

TEST_F(Item11Popup, StaysOpenForThePeriodBefore) {
    addTaxable(popup, "01042560", "1"); // nine months
    EXPECT_EQ(popup.mskDateFrom[0].digits(), "");
    EXPECT_EQ(popup.txtMoney1[3].text(), "");
    EXPECT_TRUE(popup.Check2.value());
    EXPECT_EQ(popup.mskDateTo[0].digits(), "31032560");
    EXPECT_EQ(popup.Label2.caption(), "กรุณาบันทึกข้อมูลรอบระยะเวลาบัญชี ปีที่ 2 ก่อนปีปัจจุบันที่ท่านกำลังทำข้อมูลยื่นแบบ ");
    EXPECT_EQ(popup.caption(), popup.Label2.caption());
    EXPECT_TRUE(page.DelButton[12].visible());
    addExempt(popup, "01042559", "2");
    EXPECT_FALSE(page.DelButton[12].visible());
    EXPECT_TRUE(page.DelButton[7].visible());
    EXPECT_EQ(state().strItem11End[1], "31/03/2560") << "the chain runs across both blocks";
}

TEST_F(Item11Popup, TakesFiveTaxablePeriods) {
    for (const char* start : {"01012560", "01012559", "01012558", "01012557", "01012556"})
        addTaxable(popup, start, "10");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(page.mskDateFrom[8].digits(), "01012556");
    EXPECT_EQ(page.txtMoney1[33].text(), "10.00");
    addTaxable(popup, "01012555", "10");
    expectMessage("M533");
    EXPECT_EQ(state().intItem11CountB, 5);
    EXPECT_EQ(state().intItem11Count, 5);
    EXPECT_EQ(popup.mskDateFrom[0].digits(), "01012555") << "the popup keeps what was typed";
}

TEST_F(Item11Popup, TakesEightExemptPeriodsAndStillATaxableOne) {
    for (const char* start :
        {"01012560", "01012559", "01012558", "01012557", "01012556", "01012555", "01012554", "01012553"})
        addExempt(popup, start, "10");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(page.mskDateFrom[0].digits(), "01012553");
    EXPECT_EQ(page.txtMoney1[1].text(), "10.00");
    addExempt(popup, "01012552", "10");
    expectMessage("M533");
    EXPECT_EQ(state().intItem11CountA, 8);
    addTaxable(popup, "01012552", "10");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(page.mskDateFrom[12].digits(), "01012552");
    EXPECT_EQ(state().intItem11Count, 9);
}

} // namespace
} // namespace lodge
