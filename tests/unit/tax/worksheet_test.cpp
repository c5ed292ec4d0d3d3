#include "tax_fixture.h"

namespace lodge {
namespace {

class Worksheet : public TaxTest {
  protected:
    /// Page 2 with profit ticked.
    void showProfit() {
        show();
        click("chkTaxPay(0)");
        ASSERT_EQ(shown(), std::vector<std::string>{});
    }
};

TEST_F(Worksheet, GivesTheTaxOfASmallCompanyWithEveryKey) {
    showProfit();
    click("ChkBox_NewAtt(1)");
    ASSERT_TRUE(control("txtIncome(0)").enabled());
    auto& income = static_cast<TextBox&>(control("txtIncome(0)"));
    user.focus(income);
    user.edit(income, "2450000");
    EXPECT_EQ(reading("lbSumR(0)"), "322,500.00"); // 2,150,000 x 15%
    EXPECT_EQ(reading("lbSumTotal"), "322,500.00");
    EXPECT_EQ(reading("lblMoney1"), "322,500.00");
    EXPECT_EQ(reading("lbIncomeSum"), "2,450,000.00");
    EXPECT_EQ(reading("txtMoney(0)"), "2,450,000.00");
    EXPECT_EQ(reading("lblMoney"), "2,450,000.00");
    EXPECT_EQ(record.TaxValue, "322500.00");
    user.leave();
    EXPECT_EQ(reading("txtIncome(0)"), "2,450,000.00");
    EXPECT_EQ(record.WorkIncome[0], "2,450,000.00");
    EXPECT_EQ(record.WorkTax[0], "322,500.00");
    EXPECT_EQ(record.WorkIncomeSum, "2,450,000.00");
    EXPECT_EQ(record.WorkTaxSum, "322,500.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "322,500.00");
    EXPECT_EQ(reading("chkTaxAdd4"), "1");
}

TEST_F(Worksheet, RowsOfOneChoiceExcludeEachOtherAndEmptyTheIncome) {
    showProfit();
    click("ChkBox_NewAtt(1)");
    type("txtIncome(0)", "500000");
    click("ChkBox_NewAtt(0)");
    EXPECT_EQ(reading("ChkBox_NewAtt(1)"), "0");
    EXPECT_EQ(record.NewAtt1, "(1)");
    EXPECT_EQ(reading("txtIncome(0)"), "");
    EXPECT_EQ(reading("lbSumR(0)"), "");
    EXPECT_EQ(reading("lbIncomeSum"), "");
    EXPECT_EQ(reading("lbSumTotal"), "");
    EXPECT_EQ(reading("lblMoney1"), "0.00");
    type("txtIncome(0)", "500000");
    EXPECT_EQ(reading("lbSumR(0)"), "100,000.00"); // 20%
}

TEST_F(Worksheet, UntickingTheRowClosesItsIncome) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "500000");
    click("ChkBox_NewAtt(0)");
    EXPECT_FALSE(control("txtIncome(0)").enabled());
    EXPECT_EQ(control("txtIncome(0)").back(), BackColour::Button);
    EXPECT_EQ(reading("txtIncome(0)"), "");
    EXPECT_EQ(record.NewAtt1, "");
}

TEST_F(Worksheet, Row9IsRefusedOnceAndLeavesNothingTicked) {
    showProfit();
    static_cast<CheckBox&>(control("ChkBox_NewAtt(9)")).setValue(true);
    EXPECT_EQ(shown(), messages({"M538"}));
    EXPECT_EQ(reading("ChkBox_NewAtt(9)"), "0");
    EXPECT_EQ(reading("ChkBox_NewRate19"), "0");
    EXPECT_FALSE(control("txtIncome(2)").enabled());
    EXPECT_EQ(record.NewAtt3, "");
}

TEST_F(Worksheet, ZoneAndBankRowsStandBesideTheChoice) {
    zone();
    bank();
    showProfit();
    click("ChkBox_NewAtt(0)");
    click("ChkBox_NewAtt(8)");
    click("ChkBox_NewAtt(10)");
    type("txtIncome(0)", "1000"); // 20%: 200
    type("txtIncome(1)", "2000"); // 3%: 60
    type("txtIncome(3)", "3000"); // 10%: 300
    EXPECT_EQ(reading("lbSumR(0)"), "200.00");
    EXPECT_EQ(reading("lbSumR(1)"), "60.00");
    EXPECT_EQ(reading("lbSumR(2)"), "");
    EXPECT_EQ(reading("lbSumR(3)"), "300.00");
    EXPECT_EQ(reading("lbSumTotal"), "560.00");
    EXPECT_EQ(reading("lbIncomeSum"), "6,000.00");
    EXPECT_EQ(record.NewAtt2, "(2.6)");
    EXPECT_EQ(record.NewAtt4, "1");
    click("ChkBox_NewAtt(8)");
    EXPECT_EQ(record.NewAtt2, "");
    EXPECT_EQ(reading("txtIncome(1)"), "");
    EXPECT_EQ(reading("lbSumTotal"), "500.00");
    EXPECT_EQ(reading("txtMoney(0)"), "4,000.00");
}

TEST_F(Worksheet, ANegativeIncomeNeverReachesTheSums) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    auto& income = static_cast<TextBox&>(control("txtIncome(0)"));
    user.focus(income);
    user.edit(income, "-500");
    EXPECT_EQ(reading("lbIncomeSum"), "0.00");
    EXPECT_EQ(reading("txtMoney(0)"), "0.00");
    EXPECT_EQ(reading("lbSumR(0)"), "");
    user.leave();
    EXPECT_EQ(shown(), messages({"M073"}));
    EXPECT_EQ(reading("txtIncome(0)"), "");
}

TEST_F(Worksheet, ATextThatIsNoNumberIsEmptied) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "12x");
    EXPECT_EQ(shown(), messages({"M075"}));
    EXPECT_EQ(reading("txtIncome(0)"), "");
}

TEST_F(Worksheet, LeavingAnEmptyBoxSaysNothing) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "");
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

TEST_F(Worksheet, AZeroLeavesTheTaxAsItStood) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    auto& income = static_cast<TextBox&>(control("txtIncome(0)"));
    user.focus(income);
    user.edit(income, "1000");
    user.edit(income, "0");
    EXPECT_EQ(reading("lbSumR(0)"), "200.00");
    user.edit(income, "");
    EXPECT_EQ(reading("lbSumR(0)"), "");
}

TEST_F(Worksheet, AnIncomeOfSeventeenCharactersIsEmptiedWithOneMessage) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    auto& income = static_cast<TextBox&>(control("txtIncome(0)"));
    user.focus(income);
    user.edit(income, "9999999999999.99"); // sixteen
    EXPECT_EQ(shown(), std::vector<std::string>{});
    EXPECT_EQ(reading("lbSumR(0)"), "2,000,000,000,000.00"); // 1,999,999,999,999.998
    user.edit(income, "99999999999999.99");
    EXPECT_EQ(shown(), messages({"M069"}));
    EXPECT_EQ(reading("txtIncome(0)"), "");
    EXPECT_EQ(reading("lbSumR(0)"), "");
    EXPECT_EQ(reading("lbIncomeSum"), "");
    EXPECT_EQ(reading("lbSumTotal"), "");
    EXPECT_EQ(reading("txtMoney(0)"), "0.00");
}

TEST_F(Worksheet, ATaxTooLongToShowEmptiesItsRowWithOneMessage) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    auto& income = static_cast<TextBox&>(control("txtIncome(0)"));
    user.focus(income);
    user.edit(income, "99999999999999999999"); // its tax has 22 characters
    EXPECT_EQ(shown(), messages({"M069"}));
    EXPECT_EQ(reading("txtIncome(0)"), "");
    EXPECT_EQ(reading("lbSumTotal"), "");
    EXPECT_EQ(reading("lbIncomeSum"), "");
    EXPECT_EQ(reading("txtMoney(0)"), "0.00");
}

TEST_F(Worksheet, ShowsPlainDigitsWhileAnIncomeHasTheFocus) {
    showProfit();
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "1234.5");
    EXPECT_EQ(reading("txtIncome(0)"), "1,234.50");
    user.focus(control("txtIncome(0)"));
    EXPECT_EQ(reading("txtIncome(0)"), "1234.50");
    EXPECT_EQ(reading("lbSumR(0)"), "246.90");
}

} // namespace
} // namespace lodge
