#include "tax_fixture.h"

namespace lodge {
namespace {

class Line1 : public TaxTest {
  protected:
    std::string visibleRows() {
        std::string rows;
        for (int row = 0; row < worksheetRowCount; ++row) {
            if (control("ChkBox_NewAtt(" + std::to_string(row) + ")").visible())
                rows += std::to_string(row) + " ";
        }
        return rows;
    }
    std::string tickedRows() {
        std::string rows;
        for (int row = 0; row < worksheetRowCount; ++row) {
            if (reading("ChkBox_NewAtt(" + std::to_string(row) + ")") == "1")
                rows += std::to_string(row) + " ";
        }
        return rows;
    }
};

// --- Refusals ---

TEST_F(Line1, ATickBeforeItem3IsRefused) {
    state.strFldPage3_3[39].clear();
    state.strFldPage3_3[59].clear();
    record.NewAtt1 = "(1)";
    record.WorkTaxSum = "5.00";
    show();
    click("chkTaxPay(0)");
    EXPECT_EQ(shown(), messages({"M523"}));
    EXPECT_EQ(reading("chkTaxPay(0)"), "0");
    EXPECT_EQ(record.NewAtt1, "");
    EXPECT_EQ(record.WorkTaxSum, "");
    EXPECT_EQ(record.PayStatus, "0");
}

TEST_F(Line1, ATickBeforeTheSideBoxHasItsAmountIsRefused) {
    state.strFldPage3_3[19] = "100.00";
    state.strFldPage3_3[60].clear();
    show();
    click("chkTaxPay(1)");
    EXPECT_EQ(shown(), messages({"M529"}));
    EXPECT_EQ(reading("chkTaxPay(1)"), "0");
}

TEST_F(Line1, ATickBeforeTheSideBoxHasItsTickIsRefused) {
    state.strFldPage3_3[19] = "100.00";
    show();
    click("chkTaxPay(0)");
    EXPECT_EQ(shown(), messages({"M530"}));
    EXPECT_EQ(reading("chkTaxPay(0)"), "0");
    state.BoxProfit = true;
    click("chkTaxPay(0)");
    EXPECT_EQ(shown(), std::vector<std::string>{});
    EXPECT_EQ(reading("chkTaxPay(0)"), "1");
}

TEST_F(Line1, AnExemptBusinessDeclaresOnlyALoss) {
    for (const char* exempt : {"14", "9", "16", "17", "19", "21"}) {
        status(exempt, {"-"});
        show();
        click("chkTaxPay(0)");
        EXPECT_EQ(shown(), messages({"M524"})) << exempt;
        EXPECT_EQ(reading("chkTaxPay(0)"), "0");
        EXPECT_TRUE(control("txtMoney(0)").enabled());
        EXPECT_EQ(reading("lblMoney1"), "0.00");
        click("chkTaxPay(2)");
        EXPECT_EQ(shown(), messages({"M525"})) << exempt;
        EXPECT_EQ(reading("chkTaxPay(2)"), "0");
        click("chkTaxPay(1)");
        EXPECT_EQ(reading("chkTaxPay(1)"), "1");
        EXPECT_EQ(shown(), std::vector<std::string>{});
        program.desk.unload(frmLodgePage2::formName);
        state.strFldPage2 = {};
        record.Clear();
    }
}

TEST_F(Line1, ARefusedTickLeavesTheLossThatStands) {
    status("14", {"-"});
    show();
    click("chkTaxPay(1)");
    type("txtMoney(0)", "500");
    click("chkTaxPay(0)");
    shown();
    EXPECT_EQ(reading("chkTaxPay(1)"), "1");
    EXPECT_EQ(reading("txtMoney(0)"), "(500.00)");
    EXPECT_EQ(record.PayStatus, "2");
}

// --- What a status offers ---

struct Offer {
    const char* status;
    const char* visible;
    const char* ticked;
};

TEST_F(Line1, OffersTheRowsOfTheStatus) {
    for (const Offer& offer : {Offer{"1", "0 1 ", ""}, Offer{"2", "", ""}, Offer{"4", "0 ", ""},
             Offer{"5", "0 ", ""}, Offer{"6", "0 ", ""}, Offer{"7", "0 ", ""}, Offer{"11", "2 ", "2 "},
             Offer{"13", "3 ", "3 "}, Offer{"10", "4 ", "4 "}, Offer{"15", "5 ", "5 "},
             Offer{"20", "6 ", "6 "}, Offer{"18", "7 ", "7 "}}) {
        status(offer.status, {"(1)"});
        show();
        EXPECT_EQ(visibleRows(), "");
        click("chkTaxPay(0)");
        EXPECT_EQ(visibleRows(), offer.visible) << offer.status;
        EXPECT_EQ(tickedRows(), offer.ticked) << offer.status;
        click("chkTaxPay(0)");
        EXPECT_EQ(visibleRows(), "") << offer.status;
        EXPECT_EQ(tickedRows(), "") << offer.status;
        program.desk.unload(frmLodgePage2::formName);
        state.strFldPage2 = {};
        record.Clear();
    }
}

TEST_F(Line1, TheZoneAddsItsRowAndTheGeneralOne) {
    status("11", {"(2.2)"});
    zone();
    show();
    click("chkTaxPay(0)");
    EXPECT_EQ(visibleRows(), "0 2 8 ");
    EXPECT_EQ(tickedRows(), "2 ");
}

TEST_F(Line1, ABankSeesItsRow) {
    bank();
    show();
    EXPECT_FALSE(control("lblBankRate").visible());
    click("chkTaxPay(0)");
    EXPECT_EQ(visibleRows(), "0 1 10 ");
    EXPECT_TRUE(control("lblBankRate").visible());
    click("chkTaxPay(1)");
    EXPECT_FALSE(control("lblBankRate").visible());
}

// --- Amount and choice ---

TEST_F(Line1, AProfitIsNotTypedOnLine1) {
    show();
    click("chkTaxPay(0)");
    EXPECT_FALSE(control("txtMoney(0)").enabled());
    EXPECT_EQ(control("txtMoney(0)").back(), BackColour::Button);
    EXPECT_EQ(reading("txtMoney(0)"), "0");
    EXPECT_EQ(reading("lblMoney1"), "0.00");
    EXPECT_EQ(record.PayStatus, "1");
    EXPECT_EQ(record.RateCaseText, "กรณีทั่วไป");
}

TEST_F(Line1, ALossIsTypedAndShownInBrackets) {
    item3("-500.00");
    show();
    click("chkTaxPay(1)");
    EXPECT_TRUE(control("txtMoney(0)").enabled());
    EXPECT_FALSE(control("chkTaxCal(2)").visible());
    type("txtMoney(0)", "500");
    EXPECT_EQ(reading("txtMoney(0)"), "(500.00)");
    EXPECT_EQ(reading("lblMoney1"), "0.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "") << "nothing to pay and nothing paid";
    EXPECT_EQ(record.PayStatus, "2");
}

TEST_F(Line1, ReceiptsAreTaxedAtFivePercent) {
    show();
    click("chkTaxPay(2)");
    wait(250);
    EXPECT_EQ(reading("chkTaxCal(2)"), "1");
    EXPECT_EQ(record.Select_2_1, 3);
    type("txtMoney(0)", "1000000");
    EXPECT_EQ(reading("txtMoney(0)"), "1,000,000.00");
    EXPECT_EQ(reading("lblMoney1"), "50,000.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "50,000.00");
    EXPECT_EQ(reading("chkTaxAdd6"), "1");
}

TEST_F(Line1, ReceiptsAreTaxedAtFivePercentAfterAProfitAtAReducedRate) {
    show();
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(1)");
    wait(250);
    click("chkTaxPay(2)");
    wait(250);
    EXPECT_EQ(record.Select_2_1, std::int16_t{3}) << "the reduced case has gone behind the receipts";
    type("txtMoney(0)", "100000");
    EXPECT_EQ(reading("lblMoney1"), "5,000.00");
}

TEST_F(Line1, ABankTypesItsLossAndItsReceipts) {
    bank();
    show();
    click("chkTaxPay(1)");
    type("txtMoney(0)", "1000");
    EXPECT_EQ(reading("txtMoney(0)"), "(1,000.00)");
    EXPECT_EQ(reading("lblMoney1"), "0.00");
    click("chkTaxPay(2)");
    wait(250);
    type("txtMoney(0)", "100000");
    EXPECT_EQ(reading("lblMoney1"), "5,000.00");
    EXPECT_EQ(reading("lblMoney2(3)"), "5,000.00");
}

TEST_F(Line1, TheChoicesExcludeEachOtherAndTheNewTickStands) {
    show();
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "1000");
    click("chkTaxPay(1)");
    EXPECT_EQ(reading("chkTaxPay(0)") + reading("chkTaxPay(1)") + reading("chkTaxPay(2)"), "010");
    EXPECT_EQ(record.PayStatus, "2");
    EXPECT_EQ(tickedRows(), "");
    EXPECT_EQ(reading("txtIncome(0)"), "");
    EXPECT_TRUE(control("txtMoney(0)").enabled());
    click("chkTaxPay(2)");
    EXPECT_EQ(reading("chkTaxPay(0)") + reading("chkTaxPay(1)") + reading("chkTaxPay(2)"), "001");
    EXPECT_EQ(record.PayStatus, "3");
    click("chkTaxPay(0)");
    EXPECT_EQ(reading("chkTaxPay(0)") + reading("chkTaxPay(1)") + reading("chkTaxPay(2)"), "100");
    EXPECT_EQ(reading("chkTaxCal(2)"), "0");
}

TEST_F(Line1, UntickingProfitEmptiesTheLine) {
    show();
    click("chkTaxPay(0)");
    click("ChkBox_NewAtt(0)");
    type("txtIncome(0)", "1000");
    click("chkTaxPay(0)");
    EXPECT_EQ(record.PayStatus, "0");
    EXPECT_EQ(reading("txtMoney(0)"), "");
    EXPECT_EQ(reading("lblMoney1"), "");
    EXPECT_FALSE(control("Cmd_Deposit").visible());
}

TEST_F(Line1, AClickIntoAnAmountBeforeItem3SaysSo) {
    state.strFldPage3_3[60].clear();
    show();
    click("txtMoney(4)");
    EXPECT_EQ(shown(), messages({"M523"}));
    EXPECT_EQ(focused(), "txtMoney(2)");
    state.strFldPage3_3[19] = "1.00";
    click("txtMoney(4)");
    EXPECT_EQ(shown(), messages({"M529"}));
    state.strFldPage3_3[60] = "1.00";
    click("txtMoney(4)");
    EXPECT_EQ(shown(), messages({"M530"}));
    state.BoxLoss = true;
    click("txtMoney(4)");
    EXPECT_EQ(shown(), std::vector<std::string>{});
}

// --- The green sheet's part ---

TEST_F(Line1, AfterAnUntickTheNextChoiceEmptiesTheGreenSheet) {
    bank();
    show();
    click("chkTaxPay(0)");
    click("chkTaxPay(0)");
    state.strFldPage1_2[0] = "5.00";
    click("chkTaxPay(1)");
    EXPECT_EQ(state.strFldPage1_2[0], "");
}

TEST_F(Line1, AfterAnUntickABankFindsItsProfitLocked) {
    bank();
    show();
    click("chkTaxPay(0)");
    EXPECT_FALSE(control("txtMoney(0)").locked());
    click("chkTaxPay(0)");
    state.strFldPage1_2[2] = "1000.00";
    state.strFldPage1_2[5] = "100.00";
    click("chkTaxPay(0)");
    EXPECT_TRUE(control("txtMoney(0)").locked());
    EXPECT_EQ(reading("txtMoney(0)"), "1,000.00");
    EXPECT_EQ(reading("lblMoney1"), "100.00");
}

TEST_F(Line1, OnceNoProfitIsTickedTheLineIsOpen) {
    zone();
    bank();
    show();
    EXPECT_TRUE(control("txtMoney(0)").locked());
    click("chkTaxPay(1)");
    EXPECT_FALSE(control("txtMoney(0)").locked());
    program.desk.hide(frmLodgePage2::formName);
    program.desk.show(frmLodgePage2::formName);
    EXPECT_FALSE(control("txtMoney(0)").locked()) << "an activation leaves it open";
}

TEST_F(Line1, TwoStatusesOfEarlierFormsTypeTheTax) {
    state.strFldPage1[20] = "1";
    state.strFldPage1[48] = "1";
    show();
    click("chkTaxPay(2)");
    EXPECT_TRUE(control("txtMoney(1)").visible());
    EXPECT_FALSE(control("lblMoney1").visible());
    EXPECT_EQ(reading("txtMoney(1)"), "0.00");
    type("txtMoney(1)", "75");
    EXPECT_EQ(shown(), messages({"M081"}));
    EXPECT_EQ(reading("txtMoney(1)"), "75.00");
    EXPECT_EQ(reading("lblMoney2(1)"), "75.00");
    EXPECT_EQ(reading("txtMoney_Show"), "75.00");
}

} // namespace
} // namespace lodge
