#include "tax_fixture.h"

namespace lodge {
namespace {

class RatePanel : public TaxTest {
  protected:
    void open() { control("lblTaxChoose").raise(control("lblTaxChoose").onClick); }
};

TEST_F(RatePanel, ClosesWhatLiesUnderItAndGivesItBack) {
    state.intInvestment = 1;
    show();
    const std::string before = picture();
    open();
    EXPECT_TRUE(control("picTaxRate").visible());
    EXPECT_FALSE(control("chkTaxPay(0)").visible());
    EXPECT_FALSE(control("chkTaxCal(0)").visible());
    EXPECT_FALSE(control("txtMoney(0)").enabled());
    EXPECT_FALSE(control("txtMoney(5)").enabled());
    EXPECT_FALSE(control("txtInvestID").enabled());
    click("cmdTaxRateExit");
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(focused(), "txtMoney(2)");
}

TEST_F(RatePanel, NamesTheRatesOfListedCompanies) {
    state.strFldPage1[13] = "1";
    show();
    open();
    EXPECT_EQ(static_cast<CheckBox&>(control("chkTaxChoose(0)")).caption(), "ข้อ 2.1");
    EXPECT_EQ(static_cast<CheckBox&>(control("chkTaxChoose(1)")).caption(), "ข้อ 2.3");
    EXPECT_FALSE(control("chkTaxChoose(2)").visible());
}

TEST_F(RatePanel, WithoutATickOkDoesNothing) {
    show();
    open();
    click("cmdTaxRateOK");
    EXPECT_TRUE(control("picTaxRate").visible());
}

struct Choice {
    int box;
    const char* label;
    const char* number;
};

TEST_F(RatePanel, TheLastRuleThatAppliesGivesTheLabel) {
    for (const Choice& choice : {Choice{0, "(1.1)", "1"}, Choice{1, "(1.2)", "4"}, Choice{2, "(1.3)", "5"}}) {
        show();
        control("Cmd_Deposit").setEnabled(false);
        open();
        click("chkTaxChoose(" + std::to_string(choice.box) + ")");
        click("cmdTaxRateOK");
        EXPECT_EQ(reading("lblTaxValue"), choice.label);
        EXPECT_EQ(state.strFldPage2[45], choice.number);
        program.desk.unload(frmLodgePage2::formName);
    }
}

TEST_F(RatePanel, OpensTheGreenSheet) {
    show();
    record.nRateCode = "1.1";
    open();
    click("chkTaxChoose(0)");
    click("cmdTaxRateOK");
    EXPECT_EQ(record.RateCaseText, "1.1กรณีลดอัตราภาษี ");
    ASSERT_NE(program.desk.find<frmLodgePage1_2>(), nullptr);
    EXPECT_TRUE(program.desk.find<frmLodgePage1_2>()->isShown());
    EXPECT_FALSE(control("picTaxRate").visible());
}

} // namespace
} // namespace lodge
