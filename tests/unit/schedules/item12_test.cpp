#include "open_page.h"
#include "pages/schedules/item12_checks.h"
#include "pages/schedules/item12_page.h"
#include "values/messages.h"

#include <gtest/gtest.h>

namespace lodge {
namespace {

constexpr const char* fillRegistered = "กรุณากรอกทุนจดทะเบียน (ทุนจดทะเบียนต้องมากกว่าหรือเท่ากับ ทุนที่ออกชำระแล้ว)";
constexpr const char* registeredTooSmall = "ทุนจดทะเบียน ต้องมากกว่าหรือเท่ากับ ทุนที่ออกชำระแล้ว";

class Item12 : public testing::Test, public Desktop {
  protected:
    frmLodgePage7_12& page = open<frmLodgePage7_12>();
    Control& result() { return page.txtMoney4[3]; }

    bool storeRefuses() {
        host.shown.clear();
        state().intError = 0;
        Chk_Item12Store(program);
        return state().intError == 1;
    }
};

// --- Cells and sums ---

TEST_F(Item12, AddsUpBothSidesOfTheBalanceSheet) {
    for (int i = 0; i < 9; ++i)
        type(page, "txtMoney2(" + std::to_string(i) + ")", "100");
    for (int i = 0; i < 6; ++i)
        type(page, "txtMoney3(" + std::to_string(i) + ")", "50");
    for (int i = 0; i < 3; ++i)
        type(page, "txtMoney4(" + std::to_string(i) + ")", "200");
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(page.lblSumMoney2.caption(), "900.00");
    EXPECT_EQ(page.lblSumMoney3.caption(), "300.00");
    EXPECT_EQ(page.lblSumMoney4.caption(), "600.00");
    EXPECT_EQ(page.lblSumMoney34.caption(), "900.00");
}

TEST_F(Item12, EmptiesASumWhoseCellsAreAllEmpty) {
    type(page, "txtMoney2(0)", "100");
    type(page, "txtMoney3(0)", "0");
    EXPECT_EQ(page.lblSumMoney3.caption(), "0.00");
    EXPECT_EQ(page.lblSumMoney34.caption(), "0.00");
    type(page, "txtMoney2(0)", "");
    type(page, "txtMoney3(0)", "");
    EXPECT_EQ(page.lblSumMoney2.caption(), "");
    EXPECT_EQ(page.lblSumMoney3.caption(), "");
    EXPECT_EQ(page.lblSumMoney4.caption(), "");
    EXPECT_EQ(page.lblSumMoney34.caption(), "");
}

TEST_F(Item12, ShowsAnAmountBelowZeroInBrackets) {
    type(page, "txtMoney4(2)", "-1234.5");
    EXPECT_EQ(page.txtMoney4[2].text(), "(1,234.50)");
    EXPECT_EQ(page.lblSumMoney4.caption(), "(1,234.50)");
    user.focus(page.txtMoney4[2]);
    EXPECT_EQ(page.txtMoney4[2].text(), "-1234.50");
}

TEST_F(Item12, EmptiesACellOfRefusedTextAndKeepsTheFocus) {
    type(page, "txtMoney2(3)", "70");
    type(page, "txtMoney2(3)", "7x");
    EXPECT_EQ(lastMessage(), GetMessage("M075"));
    EXPECT_EQ(state().intError, 1);
    EXPECT_EQ(page.txtMoney2[3].text(), "");
    EXPECT_EQ(page.lblSumMoney2.caption(), "");
    EXPECT_TRUE(page.txtMoney2[3].hasFocus());
}

// --- Profit or loss ---

TEST_F(Item12, NamesBothKindsOfResult) {
    EXPECT_EQ(page.chkProfit.caption(), "กำไร");
    EXPECT_EQ(page.chkLose.caption(), "ขาดทุน");
}

TEST_F(Item12, OpensTheResultOnlyForAProfitOrALoss) {
    EXPECT_FALSE(result().enabled());
    EXPECT_EQ(result().back(), BackColour::Button);
    user.click(page.chkProfit);
    EXPECT_TRUE(result().enabled());
    EXPECT_EQ(result().back(), BackColour::Window);
    EXPECT_TRUE(result().hasFocus());
    type(page, "txtMoney4(3)", "80");
    EXPECT_EQ(page.lblSumMoney4.caption(), "80.00");
    user.click(page.chkProfit);
    EXPECT_FALSE(result().enabled());
    EXPECT_EQ(page.txtMoney4[3].text(), "");
    EXPECT_EQ(page.lblSumMoney4.caption(), "");
    EXPECT_EQ(page.lblSumMoney34.caption(), "");
}

TEST_F(Item12, TakesALossOffTheEquity) {
    type(page, "txtMoney4(2)", "70");
    user.click(page.chkLose);
    type(page, "txtMoney4(3)", "100");
    EXPECT_EQ(page.lblSumMoney4.caption(), "(30.00)");
    EXPECT_EQ(page.lblSumMoney34.caption(), "(30.00)");
}

TEST_F(Item12, ChangingProfitIntoLossBeginsWithAnEmptyResult) {
    user.click(page.chkProfit);
    type(page, "txtMoney4(3)", "100");
    user.click(page.chkLose);
    EXPECT_FALSE(page.chkProfit.value());
    EXPECT_TRUE(page.chkLose.value());
    EXPECT_EQ(page.txtMoney4[3].text(), "");
    EXPECT_TRUE(result().enabled());
    EXPECT_TRUE(result().hasFocus());
    EXPECT_EQ(page.lblSumMoney4.caption(), "");
}

TEST_F(Item12, ShowsAndStoresItsTicks) {
    state().strFldPage7_12[20] = "100.00";
    state().strFldPage7_12[24] = "1";
    P7_12_ArrayToVar(program);
    EXPECT_TRUE(page.chkLose.value());
    EXPECT_TRUE(result().enabled());
    EXPECT_EQ(page.txtMoney4[3].text(), "100.00");
    state().strFldPage7_12 = {};
    P7_12_DataToArray(program);
    EXPECT_EQ(state().strFldPage7_12[20], "100.00");
    EXPECT_EQ(state().strFldPage7_12[23], "0");
    EXPECT_EQ(state().strFldPage7_12[24], "1");
}

TEST_F(Item12, GoneWithoutAStoreLeavesTheSignsInTheArray) {
    state().strFldPage7_12[21] = "-9.00";
    P7_12_ArrayToVar(program);
    EXPECT_EQ(page.lblSumMoney4.caption(), "(9.00)");
    EXPECT_EQ(state().strFldPage7_12[21], "9.00");
    program.desk.unload("frmLodgePage7_12");
    EXPECT_EQ(state().strFldPage7_12[21], "-9.00");
}

TEST_F(Item12, StoresEveryCellInItsEntry) {
    for (int i = 0; i < 9; ++i)
        page.txtMoney2[i].setText(std::to_string(i));
    for (int i = 0; i < 6; ++i)
        page.txtMoney3[i].setText(std::to_string(10 + i));
    for (int i = 0; i < 4; ++i)
        page.txtMoney4[i].setText(std::to_string(17 + i));
    page.lblSumMoney2.setCaption("9");
    page.lblSumMoney3.setCaption("16");
    page.lblSumMoney4.setCaption("21");
    page.lblSumMoney34.setCaption("22");
    P7_12_DataToArray(program);
    for (std::size_t entry = 0; entry <= 22; ++entry)
        EXPECT_EQ(state().strFldPage7_12[entry], std::to_string(entry));
}

TEST_F(Item12, IsWalkedWhenItIsLeft) {
    page.txtMoney2[0].setText("(5.00)");
    page.txtMoney3[2].setText("x");
    P7_12_PageChk(program);
    EXPECT_EQ(page.lblSumMoney2.caption(), "(5.00)");
    EXPECT_EQ(state().intError, 1);
    EXPECT_EQ(lastMessage(), GetMessage("M075"));
    EXPECT_EQ(page.txtMoney3[2].text(), "");
}

// --- The capital ---

TEST_F(Item12, AsksForTheRegisteredCapitalWhenItIsLeftBlank) {
    page.txtMoney4[1].setText("500");
    type(page, "txtMoney4(0)", "");
    EXPECT_EQ(lastMessage(), fillRegistered);
    EXPECT_TRUE(page.txtMoney4[0].hasFocus());
    type(page, "txtMoney4(0)", "0");
    EXPECT_EQ(lastMessage(), fillRegistered);
}

TEST_F(Item12, RefusesARegisteredCapitalBelowThePaidUp) {
    page.txtMoney4[1].setText("500");
    type(page, "txtMoney4(0)", "499.99");
    EXPECT_EQ(lastMessage(), registeredTooSmall);
    EXPECT_TRUE(page.txtMoney4[0].hasFocus());
    host.shown.clear();
    type(page, "txtMoney4(0)", "500");
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Item12, ReturnsToThePaidUpCapitalThatIsTooLarge) {
    type(page, "txtMoney4(1)", "500");
    EXPECT_EQ(lastMessage(), registeredTooSmall) << "a blank registered capital is below it, too";
    EXPECT_TRUE(page.txtMoney4[1].hasFocus());
    EXPECT_EQ(page.txtMoney4[1].text(), "500.00");
}

TEST_F(Item12, SaysNothingOfTheCapitalWhileBothAreBlank) {
    type(page, "txtMoney4(0)", "");
    type(page, "txtMoney4(1)", "");
    EXPECT_TRUE(host.shown.empty());
}

// --- The store ---

TEST_F(Item12, AnEmptyPageIsRefusedAtTheStore) {
    EXPECT_TRUE(storeRefuses());
    EXPECT_EQ(lastMessage(), GetMessage("M105"));
}

TEST_F(Item12, OneSideAloneIsRefusedAtTheStore) {
    state().strFldPage7_12[9] = "0.00"; // equal to nothing as a number, but the other side is missing
    EXPECT_TRUE(storeRefuses());
    EXPECT_EQ(lastMessage(), GetMessage("M105"));
}

TEST_F(Item12, SidesThatDifferAreRefusedFirst) {
    state().strFldPage7_12[9] = "100.00";
    EXPECT_TRUE(storeRefuses());
    EXPECT_EQ(lastMessage(), GetMessage("M084"));
    state().strFldPage7_12[22] = "100";
    EXPECT_FALSE(storeRefuses());
}

TEST_F(Item12, ASmallCompanysRateNeedsACapitalOfAtMostFiveMillion) {
    state().strFldPage7_12[9] = state().strFldPage7_12[22] = "1.00";
    state().strFldPage1[12] = "1";
    state().strFldPage2[26] = "1";
    state().strFldPage2[44] = "(2.5)";
    state().strFldPage7_12[18] = "5000000.00";
    EXPECT_FALSE(storeRefuses());
    state().strFldPage7_12[18] = "5000000.01";
    EXPECT_TRUE(storeRefuses());
    EXPECT_EQ(lastMessage(), GetMessage("M100"));
    state().strFldPage2[44] = "(2.4)";
    EXPECT_FALSE(storeRefuses());
    state().strFldPage2[44] = "(2.5)";
    state().strFldPage1[12] = "0";
    EXPECT_FALSE(storeRefuses());
    state().strFldPage1[12] = "1";
    state().strFldPage2[26] = "";
    EXPECT_FALSE(storeRefuses());
}

} // namespace
} // namespace lodge
