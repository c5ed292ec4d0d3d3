#include "tax_fixture.h"

namespace lodge {
namespace {

class GreenSheet : public TaxTest {
  protected:
    /// Page 2 of a bank with the reduced rate (2.1) ticked, and its green sheet over it.
    frmLodgePage1_2& open() {
        bank();
        show();
        click("chkTaxPay(0)");
        click("ChkBox_NewAtt(1)");
        click("Cmd_Deposit");
        auto* sheet = program.desk.find<frmLodgePage1_2>();
        if (sheet == nullptr) throw std::runtime_error("the sheet did not open");
        return *sheet;
    }
    Control& onSheet(const std::string& name) { return control(name, frmLodgePage1_2::formName); }
    void typeOnSheet(const std::string& name, const std::string& text) {
        EXPECT_EQ(user.type(onSheet(name), text), std::nullopt) << name;
    }
};

TEST(FormatMoneyOfTheSheet, ShowsNegativesInBrackets) {
    EXPECT_EQ(FormatMoney("1234.5"), "1,234.50");
    EXPECT_EQ(FormatMoney("-5"), "(5.00)");
    EXPECT_EQ(FormatMoney(""), "");
}

TEST(IsAmountTextOfTheSheet, TakesNumbersAndNothing) {
    EXPECT_TRUE(IsAmountText(""));
    EXPECT_TRUE(IsAmountText("1,234.50"));
    EXPECT_TRUE(IsAmountText("-5"));
    EXPECT_FALSE(IsAmountText("5x"));
    EXPECT_FALSE(IsAmountText("(5)")) << "brackets are shown, not typed";
}

TEST(IsAmountTextOfTheSheet, KnowsTheLargestAmountOfTheForm) {
    EXPECT_TRUE(IsAmountText("9,999,999,999,999.99"));
    EXPECT_FALSE(IsAmountText("10,000,000,000,000.00"));
}

TEST_F(GreenSheet, NeedsARateFirst) {
    bank();
    show();
    click("Cmd_Deposit");
    EXPECT_EQ(shown(), messages({"M123"}));
    EXPECT_EQ(program.desk.find<frmLodgePage1_2>(), nullptr);
}

TEST_F(GreenSheet, HidesPage2WhileItStands) {
    auto& sheet = open();
    EXPECT_TRUE(sheet.isModal());
    EXPECT_FALSE(program.desk.find<frmLodgePage2>()->isShown());
    EXPECT_FALSE(control("Cmd_Deposit").enabled());
    user.close(sheet);
    EXPECT_TRUE(program.desk.find<frmLodgePage2>()->isShown());
    EXPECT_TRUE(control("Cmd_Deposit").enabled());
}

TEST_F(GreenSheet, OpensTheRowsOfTheBusiness) {
    auto& sheet = open();
    EXPECT_EQ(sheet.lbShowRate.caption(), "(1.1)");
    EXPECT_EQ(sheet.lblRow[0].caption(), "1.1กรณีลดอัตราภาษี ");
    EXPECT_TRUE(sheet.txtIncome[0].enabled());
    EXPECT_FALSE(sheet.txtIncome[1].enabled());
    EXPECT_FALSE(sheet.txtIncome[2].enabled());
    EXPECT_TRUE(sheet.txtIncome[3].enabled());
    EXPECT_FALSE(state.IsRate17);
}

// Row 0 by its code 1.1, 20%; row 3 by its tag, 10%.
TEST_F(GreenSheet, TaxesEachRowAndHandsTheTotalsToPage2) {
    auto& sheet = open();
    typeOnSheet("txtIncome(0)", "1000000");
    typeOnSheet("txtIncome(3)", "500000");
    EXPECT_EQ(sheet.txtSum[0].text(), "200,000.00");
    EXPECT_EQ(sheet.txtSum[3].text(), "50,000.00");
    EXPECT_EQ(sheet.txtIncomeSum.text(), "1,500,000.00");
    EXPECT_EQ(sheet.txtSumTax.text(), "250,000.00");
    EXPECT_EQ(sheet.lbSumTotal.caption(), "250,000.00");
    EXPECT_EQ(sheet.lbIncomeSum.caption(), "1,500,000.00");
    EXPECT_EQ(sheet.lbSumR[3].caption(), "50,000.00");
    EXPECT_EQ(state.modGreen.GreenIncomeSum, "1500000.00");
    EXPECT_EQ(state.modGreen.GreenTaxSum, "250000.00");
    EXPECT_EQ(state.modGreen.GreenIncome[0], "1000000");
    EXPECT_EQ(state.modGreen.GreenTax[0], "200,000.00");
    EXPECT_EQ(user.click(sheet.Cmd_Ok), std::nullopt);
    EXPECT_EQ(program.desk.find<frmLodgePage1_2>(), nullptr);
    EXPECT_EQ(reading("lblMoney1"), "250,000.00");
    EXPECT_EQ(reading("txtMoney(0)"), "1,500,000.00");
    EXPECT_EQ(record.TaxValue, "250000.00");
    EXPECT_EQ(state.strFldPage1_2[5], "250000.00");
    EXPECT_TRUE(control("Cmd_Deposit").enabled());
}

TEST_F(GreenSheet, BothSpellingsOfTenPercentAreOne) {
    zone();
    state.DataCtrl_P1.ChkStatus14 = 1;
    auto& sheet = open();
    typeOnSheet("txtIncome(1)", "1234.50"); // 3%: 37.035
    typeOnSheet("txtIncome(2)", "1234.50"); // "0.1"
    typeOnSheet("txtIncome(3)", "1234.50"); // "0.10"
    EXPECT_EQ(sheet.txtSum[1].text(), "37.04");
    EXPECT_EQ(sheet.txtSum[2].text(), "123.45");
    EXPECT_EQ(sheet.txtSum[3].text(), "123.45");
}

TEST_F(GreenSheet, ACodeWithoutRateGivesNoTaxOnRow0) {
    auto& sheet = open();
    sheet.lbShowRate.setCaption("(1.7)");
    typeOnSheet("txtIncome(0)", "1000");
    EXPECT_EQ(sheet.txtSum[0].text(), "0.00");
}

TEST_F(GreenSheet, RefusesWhatIsNoAmount) {
    auto& sheet = open();
    typeOnSheet("txtIncome(0)", "5x");
    EXPECT_EQ(shown(), messages({"M075"}));
    EXPECT_EQ(sheet.txtIncome[0].text(), "");
    typeOnSheet("txtIncome(0)", "-5");
    EXPECT_EQ(shown(), messages({"M073"}));
    EXPECT_EQ(sheet.txtIncome[0].text(), "");
    EXPECT_EQ(sheet.txtIncomeSum.text(), "");
    EXPECT_EQ(sheet.txtSum[0].text(), "");
}

TEST_F(GreenSheet, EmptyingItsRowsEmptiesTheSums) {
    auto& sheet = open();
    typeOnSheet("txtIncome(0)", "100");
    typeOnSheet("txtIncome(0)", "");
    EXPECT_EQ(sheet.txtIncomeSum.text(), "");
    EXPECT_EQ(sheet.txtSumTax.text(), "");
    EXPECT_EQ(state.modGreen.GreenTaxSum, "");
}

// Line form: 1,000 at 20%, 2,000 of the bank at 10%; the third box belongs to the zone.
TEST_F(GreenSheet, TheLineFormSumsItsBoxes) {
    auto& sheet = open();
    typeOnSheet("txtMoney71(0)", "1000");
    typeOnSheet("txtMoney71(1)", "2000");
    typeOnSheet("txtMoney71(2)", "333.5"); // 3%: 10.005
    EXPECT_EQ(sheet.lblSumMoney71.caption(), "3,333.50");
    EXPECT_EQ(sheet.lblMoney73[0].caption(), "200.00");
    EXPECT_EQ(sheet.lblMoney73[1].caption(), "200.00");
    EXPECT_EQ(sheet.lblMoney2_9.caption(), "10.01");
    EXPECT_EQ(sheet.lblMoney73[2].caption(), "410.01");
    EXPECT_EQ(state.Sheet71a, "1,000.00");
    EXPECT_EQ(state.Sheet71c, "333.50");
    sheet.P1_2_DataToArray();
    EXPECT_EQ(state.strFldPage1_2[0], "1000.00");
    EXPECT_EQ(state.strFldPage1_2[2], "3333.50");
    EXPECT_EQ(state.strFldPage1_2[5], "410.01");
    EXPECT_EQ(state.strFldPage1_2[7], "10.01");
    EXPECT_EQ(state.strFldPage1_2[8], "");
    EXPECT_EQ(state.SheetTax, 410.01);
    EXPECT_EQ(reading("txtMoney(0)"), "3,333.50");
    EXPECT_TRUE(control("txtMoney(0)").locked());
    EXPECT_EQ(reading("lblMoney1"), "410.01");
}

TEST_F(GreenSheet, ABlankLineHasNoTax) {
    auto& sheet = open();
    typeOnSheet("txtMoney71(0)", "1000");
    typeOnSheet("txtMoney71(0)", "");
    EXPECT_EQ(sheet.lblMoney73[0].caption(), "");
    EXPECT_EQ(sheet.lblMoney73[2].caption(), "");
    EXPECT_EQ(sheet.lblSumMoney71.caption(), "");
}

TEST_F(GreenSheet, ClosedByItsFrameItKeepsTheIncomeAndTouchesNothing) {
    auto& sheet = open();
    const std::string before = reading("txtMoney(0)");
    typeOnSheet("txtMoney71(0)", "1000");
    user.close(sheet);
    EXPECT_EQ(state.SheetIncome, "1000.00");
    EXPECT_EQ(reading("txtMoney(0)"), before);
    click("Cmd_Deposit");
    EXPECT_EQ(program.desk.find<frmLodgePage1_2>()->txtMoney71[0].text(), "1,000.00");
}

TEST_F(GreenSheet, ABusinessThatIsNoBankHasNoBankLine) {
    status("1", {"(2.1)"}, 2); // two statuses: the sheet is needed
    state.strFldPage1_2[1] = "77.00";
    show();
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(1)");
    click("Cmd_Deposit");
    auto* sheet = program.desk.find<frmLodgePage1_2>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->txtMoney71[1].locked());
    EXPECT_FALSE(sheet->txtIncome[3].enabled());
}

} // namespace
} // namespace lodge
