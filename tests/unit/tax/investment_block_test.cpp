#include "tax_fixture.h"

namespace lodge {
namespace {

class InvestmentBlock : public TaxTest {
  protected:
    InvestmentBlock() { state.intInvestment = 1; }
};

TEST_F(InvestmentBlock, IsOpenForInvestmentPromotionAlone) {
    for (std::int16_t investment = 0; investment <= 5; ++investment) {
        state.intInvestment = investment;
        state.ChkInvestmentFlag1 = investment == 1 ? 1 : 0;
        show();
        const bool open = investment == 1;
        for (const char* name :
            {"txtInvestID", "mskInvestDate", "cmdSISIC2", "cmdCISIC2", "txtOther", "chkInvestType(0)",
                "chkInvestType(3)", "txtYearNo(2)", "mskDateFrom(1)", "mskDateTo(3)", "txtInvestOther"}) {
            EXPECT_EQ(control(name).enabled(), open) << name << " " << investment;
        }
        EXPECT_EQ(control("txtInvestID").back(), open ? BackColour::Window : BackColour::Button);
        EXPECT_EQ(reading("ChkNewInvestment01"), open ? "1" : "0");
        program.desk.unload(frmLodgePage2::formName);
    }
}

TEST_F(InvestmentBlock, OneOptionOpensItsRowAndClosesTheOthers) {
    show();
    click("chkInvestType(0)");
    EXPECT_TRUE(control("txtYearNo(0)").enabled());
    EXPECT_FALSE(control("txtYearNo(1)").enabled());
    EXPECT_FALSE(control("txtInvestOther").enabled());
    EXPECT_TRUE(control("txtMoney(6)").enabled());
    type("txtYearNo(0)", "8");
    click("chkInvestType(3)");
    EXPECT_EQ(reading("chkInvestType(0)"), "0");
    EXPECT_EQ(reading("txtYearNo(0)"), "");
    EXPECT_FALSE(control("txtYearNo(0)").enabled());
    EXPECT_TRUE(control("txtYearNo(3)").enabled());
    EXPECT_TRUE(control("txtInvestOther").enabled());
    EXPECT_FALSE(control("txtMoney(6)").enabled());
    EXPECT_TRUE(control("txtMoney(5)").enabled());
}

TEST_F(InvestmentBlock, UntickingTheHalfRateLowersTheSumOfLine3) {
    show();
    click("chkInvestType(0)");
    type("txtMoney(2)", "100");
    type("txtMoney(6)", "30");
    EXPECT_EQ(reading("lblMoney2(0)"), "130.00");
    click("chkInvestType(0)");
    EXPECT_EQ(reading("lblMoney2(0)"), "100.00");
    EXPECT_EQ(reading("txtMoney(6)"), "");
    EXPECT_FALSE(control("txtMoney(6)").enabled());
}

TEST_F(InvestmentBlock, TheLastDayFollowsFromTheYears) {
    show();
    click("chkInvestType(0)");
    type("txtYearNo(0)", "8");
    type("mskDateFrom(0)", "15032560");
    EXPECT_EQ(reading("mskDateTo(0)"), "14032568");
    type("mskDateFrom(0)", "29022559"); // 2559 leaves 3: a leap year; 2567 is one, too
    EXPECT_EQ(reading("mskDateTo(0)"), "28022567");
    type("txtYearNo(0)", "1");
    type("mskDateFrom(0)", "29022559"); // 29 February 2560 is the 28th, and a day earlier the 27th
    EXPECT_EQ(reading("mskDateTo(0)"), "27022560");
}

TEST_F(InvestmentBlock, YearsAreDigitsAndNotNil) {
    show();
    click("chkInvestType(0)");
    type("txtYearNo(0)", "a1b2");
    EXPECT_EQ(reading("txtYearNo(0)"), "12");
    type("txtYearNo(0)", "007");
    EXPECT_EQ(reading("txtYearNo(0)"), "7");
    type("txtYearNo(0)", "0");
    EXPECT_EQ(reading("txtYearNo(0)"), "");
    EXPECT_EQ(focused(), "txtYearNo(0)");
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

// The test host's day is 20 May 2562.
TEST_F(InvestmentBlock, DatesAreCheckedAgainstTheDay) {
    show();
    type("mskInvestDate", "31042561");
    EXPECT_EQ(shown(), messages({"M026"}));
    EXPECT_EQ(focused(), "mskInvestDate");
    type("mskInvestDate", "21052562");
    EXPECT_EQ(shown(), messages({"M027"}));
    type("mskInvestDate", "20052562");
    EXPECT_EQ(shown(), std::vector<std::string>{}) << "today itself may be";
    click("chkInvestType(0)");
    type("txtYearNo(0)", "3");
    type("mskDateFrom(0)", "20052562");
    EXPECT_EQ(shown(), messages({"M032"})) << "the privilege began before today";
    type("mskDateFrom(0)", "19052562");
    EXPECT_EQ(shown(), std::vector<std::string>{});
    type("mskDateTo(0)", "19052562");
    EXPECT_EQ(shown(), messages({"M033"}));
    EXPECT_EQ(reading("mskDateTo(0)"), "");
    EXPECT_EQ(focused(), "mskDateTo(0)");
    type("mskDateTo(0)", "20052562");
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

TEST_F(InvestmentBlock, TheDayIsBuddhistOnEitherMachine) {
    host.calendarIs = Calendar::Buddhist;
    show();
    type("mskInvestDate", "20052562");
    EXPECT_EQ(shown(), std::vector<std::string>{});
    type("mskInvestDate", "21052562");
    EXPECT_EQ(shown(), messages({"M027"}));
}

TEST_F(InvestmentBlock, AWalkOverThePageLeavesTheLastDay) {
    show();
    click("chkInvestType(0)");
    type("txtYearNo(0)", "8");
    type("mskDateFrom(0)", "15032560");
    type("mskDateTo(0)", "31122563");
    ASSERT_TRUE(leave());
    EXPECT_EQ(state.strFldPage2[17], "31/12/2563");
}

TEST_F(InvestmentBlock, TheBusinessCanBeCleared) {
    auto& page = show();
    page.lblISICName2.setCaption("ซูเปอร์มาร์เก็ต");
    page.lblISICCode2.setCaption("471110");
    click("cmdCISIC2");
    EXPECT_EQ(reading("lblISICName2") + reading("lblISICCode2"), "");
}

} // namespace
} // namespace lodge
