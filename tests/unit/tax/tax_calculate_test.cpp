#include "tax_fixture.h"

namespace lodge {
namespace {

class TaxCalculation : public TaxTest {
  protected:
    /// Profit of 2,200,000 at the general rate: tax 440,000.
    void showProfit() {
        show();
        click("chkTaxPay(0)");
        click("ChkBox_NewAtt(0)");
        type("txtIncome(0)", "2200000");
        ASSERT_EQ(reading("lblMoney1"), "440,000.00");
    }
};

TEST_F(TaxCalculation, TakesLine3OffTheTax) {
    showProfit();
    type("txtMoney(4)", "100000");
    EXPECT_EQ(reading("txtMoney(4)"), "100,000.00");
    EXPECT_EQ(reading("lblMoney2(0)"), "100,000.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "340,000.00");
    EXPECT_EQ(reading("lblMoney2(3)"), "340,000.00");
    EXPECT_EQ(reading("chkTaxAdd4") + reading("chkTaxAdvance4"), "10");
    EXPECT_EQ(reading("chkTaxAdd6") + reading("chkTaxAdvance6"), "10");
    EXPECT_EQ(state.strFldPage1[29], "340,000.00");
    EXPECT_EQ(reading("lblMoney1"), "440,000.00");
}

TEST_F(TaxCalculation, SumsTheSixCredits) {
    state.strFldPage1[9] = "1";
    state.intInvestment = 1;
    showProfit();
    click("chkInvestType(0)");
    type("txtMoney(2)", "1.01");
    type("txtMoney(3)", "2.02");
    type("txtMoney(4)", "3.03");
    type("txtMoney(5)", "4.04");
    type("txtMoney(6)", "5.05");
    type("txtMoney(7)", "6.06");
    EXPECT_EQ(reading("lblMoney2(0)"), "21.21");
    EXPECT_EQ(reading("lblMoney2(1)"), "439,978.79");
}

TEST_F(TaxCalculation, WhatIsOverpaidStandsInBrackets) {
    showProfit();
    type("txtMoney(4)", "440000.01");
    EXPECT_EQ(reading("lblMoney2(1)"), "(0.01)");
    EXPECT_EQ(reading("chkTaxAdd4") + reading("chkTaxAdvance4"), "01");
    EXPECT_EQ(reading("chkTaxAdd6") + reading("chkTaxAdvance6"), "01");
    EXPECT_EQ(state.strFldPage1[30], "(0.01)");
}

TEST_F(TaxCalculation, ABalanceOfNilTicksNeither) {
    showProfit();
    type("txtMoney(4)", "440000");
    EXPECT_EQ(reading("lblMoney2(1)"), "0.00");
    EXPECT_EQ(
        reading("chkTaxAdd4") + reading("chkTaxAdvance4") + reading("chkTaxAdd6") + reading("chkTaxAdvance6"),
        "0000");
}

TEST_F(TaxCalculation, BinaryNoiseIsNoBalance) {
    show();
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "1.5"); // tax 0.30
    type("txtMoney(2)", "0.1");
    type("txtMoney(3)", "0.2"); // 0.1 + 0.2 is not 0.3 in binary
    EXPECT_EQ(reading("lblMoney2(1)"), "0.00");
    EXPECT_EQ(reading("chkTaxAdd4") + reading("chkTaxAdvance4"), "00");
}

TEST_F(TaxCalculation, ANegativeCreditStandsInBrackets) {
    showProfit();
    type("txtMoney(2)", "-50");
    EXPECT_EQ(reading("txtMoney(2)"), "(50.00)");
    EXPECT_EQ(reading("lblMoney2(0)"), "(50.00)");
    EXPECT_EQ(reading("lblMoney2(1)"), "440,050.00");
    user.focus(control("txtMoney(2)"));
    EXPECT_EQ(reading("txtMoney(2)"), "-50.00");
}

TEST_F(TaxCalculation, ABadCreditIsEmptiedAndKeepsTheFocus) {
    showProfit();
    type("txtMoney(2)", "5x");
    EXPECT_EQ(shown(), messages({"M075"}));
    EXPECT_EQ(reading("txtMoney(2)"), "");
    EXPECT_EQ(focused(), "txtMoney(2)");
    EXPECT_EQ(state.intError, 1);
}

TEST_F(TaxCalculation, EmptyingLine3EmptiesItsSum) {
    showProfit();
    type("txtMoney(4)", "100");
    type("txtMoney(4)", "");
    EXPECT_EQ(reading("lblMoney2(0)"), "");
    EXPECT_EQ(reading("lblMoney2(1)"), "440,000.00");
}

TEST_F(TaxCalculation, ANilLine1ClearsTheCaseButNotLine3) {
    item3("-500.00");
    show();
    click("chkTaxPay(1)");
    type("txtMoney(4)", "100");
    type("txtMoney(0)", "0");
    EXPECT_EQ(reading("chkTaxPay(1)"), "0");
    EXPECT_EQ(reading("chkTaxCal(1)") + reading("chkTaxCal(2)"), "00");
    EXPECT_FALSE(control("chkTaxCal(1)").visible());
    EXPECT_EQ(reading("txtMoney(0)"), "0.00");
    EXPECT_EQ(reading("txtMoney(4)"), "100.00");
}

TEST_F(TaxCalculation, AnExemptBusinessStatesNil) {
    status("14", {"-"});
    show();
    type("txtMoney(0)", "250");
    EXPECT_EQ(reading("txtMoney(0)"), "0.00");
    EXPECT_EQ(reading("lblMoney1"), "0.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "");
}

TEST_F(TaxCalculation, ALossTooLongIsEmptied) {
    item3("-500.00");
    show();
    click("chkTaxPay(1)");
    type("txtMoney(0)", "9999999999999.99");
    EXPECT_EQ(reading("txtMoney(0)"), "(9,999,999,999,999.99)") << "eighteen characters without commas";
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

TEST_F(TaxCalculation, EntryOfLine4FollowsTheStoredTaxAndCredits) {
    showProfit();
    state.strFldPage2[33] = "500.00";
    state.strFldPage2[40] = "120.50";
    type("txtMoney(2)", "1");
    EXPECT_EQ(state.strFldPage2[41], "379.5");
    state.strFldPage2[40] = "";
    type("txtMoney(2)", "2");
    EXPECT_EQ(state.strFldPage2[41], "500.00");
    state.strFldPage2[33] = "";
    state.strFldPage2[40] = "7.00";
    type("txtMoney(2)", "3");
    EXPECT_EQ(state.strFldPage2[41], "7.00");
}

TEST_F(TaxCalculation, TheTaxCanBeEditedByHandBehindThreeKeys) {
    showProfit();
    host.input = "1,234.5";
    const MouseGesture gesture{.button = MouseButton::Right, .shift = true, .ctrl = true, .alt = true};
    EXPECT_EQ(user.mouse(control("lblMoney1"), gesture), std::nullopt);
    ASSERT_EQ(host.asked.size(), 1U);
    EXPECT_EQ(host.asked[0].title, "แก้ไขภาษี");
    EXPECT_EQ(host.asked[0].prompt, "Edit Tax");
    EXPECT_EQ(reading("lblMoney1"), "1234.5");
    EXPECT_EQ(record.TaxValue, "1234.5");
    host.input.reset();
    EXPECT_EQ(user.mouse(control("lblMoney1"), gesture), std::nullopt);
    EXPECT_EQ(reading("lblMoney1"), "1234.5") << "a cancelled question changes nothing";
    EXPECT_EQ(user.mouse(control("lblMoney1"), {.button = MouseButton::Right, .shift = true}), std::nullopt);
    EXPECT_EQ(host.asked.size(), 2U);
}

} // namespace
} // namespace lodge
